#pragma once
// First tab, "Origine": what the contract is. Agreement, legal entity, employer, type, pay basis,
// status, dates, trial period, nature. The agreement steers the whole editor: with "02" the person
// helped is the employer.
//
// Code boxes and label lists go in pairs: a complete code shows its label, a chosen label its code.
// A code that is not on file is refused, emptied and focused. One step leads to the next: a new
// agreement empties the entity, and a new entity the employer, the activities and the retirement
// body, so that no code outlives what it was chosen for.

#include <string>

#include "data/citem.h"
#include "editor/onglet.h"
#include "editor/origine_paire.h"
#include "editor/origine_verif.h"

namespace editor {

class OngletOrigine : public Onglet {
 public:
  explicit OngletOrigine(Frm_ElementsContrat& editeur);

  // Fills the fixed drop-downs, entities and agreements, and reads the lists that stay the same
  // from contract to contract.
  void Remplir_Combos();
  // From ItemContrat to the fields, change handlers being off meanwhile. For a new contract, only
  // the enabling, and what an earlier contract may have left in the boxes that are not emptied.
  void Afficher_Ong1();
  // From the fields to ItemContrat. With EcritureVerifiee it checks first; false when it refused.
  // Run again on other fields, it leaves what a single run on them would; what shows just what it
  // showed at first keeps the form that it has on file.
  bool Ecrire_Ong1();
  // The checks in their order; the first failure is shown and focused. True when all hold.
  bool Verif_Ong1();
  // Disables or enables entity and employer.
  void Griser_ComboOng1();
  void Degriser_ComboOng1();

  // Run by the frame on every tab change too.
  void Txt_DatDebContrat_LostFocus();

  // The start date on file when the tab was shown, as an internal day text; "" for a new contract.
  std::string DebutInitial;
  // Rows of code and label, and for agreements the counting modes and the provident flag.
  data::CItem ListeAssociations;
  data::CItem ListeConvCol;
  // Item NATURECONTRAT of TABLES.
  data::CItem ListeNatures;
  // Keys of the charge headings of home help, which the pay tab treats apart: one row each.
  data::CItem RubriquesAideDomicile;
  // What stands in the drop-downs of other tabs that follow agreement, entity and employer: rows of
  // code and label, in the order of Cbo_LibPrevContrat and Cbo_OrgRetraite.
  data::CItem ListePrev;
  data::CItem ListeOrgRetraite;
  // The provident contract of the private employer chosen, which the contract takes whatever the
  // third tab shows; "" when there is none in force.
  std::string PrevContratPrecedent;

  screen::Label Etq_NumContrat;
  screen::TextField Txt_NumContrat;
  screen::Label Etq_ConvColContrat;
  screen::TextField Txt_ConvColContrat;
  screen::ComboBox Cbo_LibConvColContrat;
  screen::Label Etq_AssocContrat;
  screen::TextField Txt_AssocContrat;
  screen::ComboBox Cbo_LibAssocContrat;
  screen::Label Etq_EmplEtabContrat;
  screen::TextField Txt_EmplEtabContrat;
  screen::ComboBox Cbo_LibEmplEtabContrat;
  screen::Button Cmd_DetailEmpl;

  screen::Frame Cdr_Type;
  screen::OptionButton Opt_Indetermine;
  screen::OptionButton Opt_Determine;
  screen::Frame Cdr_Salaire;
  screen::OptionButton Opt_Horaire;
  screen::OptionButton Opt_Mensuel;
  screen::Frame Cdr_Fonction;
  screen::OptionButton Opt_Administratif;
  screen::OptionButton Opt_Production;

  screen::Label Etq_DatDebContrat;
  screen::TextField Txt_DatDebContrat;
  screen::Label Etq_DatFinContrat;
  screen::TextField Txt_DatFinContrat;
  screen::Label Etq_PerEssaiContrat;
  screen::TextField Txt_PerEssaiContrat;
  screen::Label Etq_JoursEssai;
  screen::CheckBox Cac_RenouvEssaiContrat;
  screen::Label Etq_DureeMinContrat;
  screen::TextField Txt_DureeMinContrat;
  screen::Label Etq_NatureContrat;
  screen::ComboBox Cbo_NatureContrat;
  screen::Button Cmd_Stage;
  screen::Button Cmd_MotifCDD;
  screen::Label Etq_DateSignConvEmplAide;
  screen::TextField Txt_DateSignConvEmplAide;
  screen::Label Etq_NumRef;
  screen::TextField Txt_NumRef;
  screen::Label Etq_Contrepartie;
  screen::ComboBox Cbo_Contrepartie;

 private:
  // Code lengths, in characters.
  static constexpr int LongueurConvention = 2;
  static constexpr int LongueurEntite = 3;
  static constexpr int LongueurEtablissement = 3;
  static constexpr int LongueurParticulier = 5;

  void LierCodes();
  void LierOptions();
  void LierSaisies();
  // The label list of a pair, which it follows only while change handlers are on.
  void LierListe(screen::ComboBox& liste, PaireCode& paire);

  // The agreement is that of private employers.
  bool Particuliers() const;
  int LongueurEmployeur() const;
  void ActiverCodes(bool actifs);

  // Agreement.
  void Txt_ConvColContrat_Change();
  void ChoisirConvention();
  void MontrerSelonConvention();
  void AdapterConvention();
  void Proposer_PCS();
  void Proposer_Conges();
  void Remplir_Grilles();
  void Remplir_Prevoyance();
  void Proposer_Prevoyance();
  void ViderPrevoyance();

  // Entity.
  void Txt_AssocContrat_Change();
  void ViderEntite();
  std::string QuestionActivites() const;
  bool Remplir_Activites();
  void Remplir_Etablissements();
  void Remplir_OrgRetraite();

  // Employer.
  void Txt_EmplEtabContrat_Change();
  void LireParticulier();
  void LireEtablissement();
  void LirePrevoyanceEmployeur();
  void RafraichirEmployeur();
  void Cbo_LibEmplEtabContrat_KeyPress(char32_t& touche);
  void Remplir_Aide(const std::string& nom);

  // Options, nature and the other fields.
  void MontrerTerme(bool determine);
  void Opt_Determine_Click();
  void Opt_Horaire_Click();
  void MontrerLissage();
  void Opt_Fonction_Click();
  void MontrerRepartition();
  void ChargerNatures();
  void Cbo_NatureContrat_DropDown();
  void Cbo_NatureContrat_LostFocus();
  void MontrerStage();
  void AdapterReference();
  void Cmd_DetailEmpl_Click();
  void Cmd_MotifCDD_Click();
  void Cmd_Stage_Click();

  // Display.
  void AfficherNouveau();
  void AfficherExistant();
  void AfficherCodes();
  void AfficherEmployeur();
  void AfficherOptions();
  void AfficherSaisies();

  // Checks and writing.
  SaisieOrigine Saisie() const;
  // The attributes that the fields stand for, dates as they are typed.
  data::CItem Champs() const;
  void EcrireChamps();
  void EcrireDebut();
  void EcrireTerme();
  void ViderStage();
  void RendreStage();
  std::string LibelleNature(std::string_view code) const;
  std::string CodeNature() const;

  PaireCode convention_{Txt_ConvColContrat, Cbo_LibConvColContrat};
  PaireCode entite_{Txt_AssocContrat, Cbo_LibAssocContrat};
  PaireCode employeur_{Txt_EmplEtabContrat, Cbo_LibEmplEtabContrat};

  // The contract and the Champs() of its untouched fields when the tab was shown; both empty for a
  // new one.
  data::CItem surFichier_;
  data::CItem montres_;

  // What a copy of the screen took away, to be put back when the fields are set back: the first
  // values of effect date and grid start before a moved start date changed them, the presumed end
  // of a contract made open-ended, the traineeship of a nature changed.
  bool debutDeplace_ = false;
  std::string effetAvant_;
  std::string departGrilleAvant_;
  std::string finAvant_;
  data::CItem stageAvant_;
};

}  // namespace editor
