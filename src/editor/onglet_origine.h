#pragma once
// First tab, "Origine": what the contract is. Agreement, legal entity, employer, type, pay basis,
// status, dates, trial period, nature. The agreement steers the whole editor: with "02" the person
// helped is the employer.
//
// Code boxes and label lists go in pairs: a complete code shows its label, a chosen label its code.

#include <string>

#include "data/citem.h"
#include "editor/onglet.h"

namespace editor {

class OngletOrigine : public Onglet {
 public:
  explicit OngletOrigine(Frm_ElementsContrat& editeur);

  // Fills the fixed drop-downs: entities, agreements.
  void Remplir_Combos();
  // From ItemContrat to the fields; for a new contract only the enabling.
  void Afficher_Ong1();
  // From the fields to ItemContrat. With EcritureVerifiee it checks first; false when it refused.
  bool Ecrire_Ong1();
  // The checks in their order; the first failure is shown and focused. True when all hold.
  bool Verif_Ong1();
  // Disables or enables entity and employer.
  void Griser_ComboOng1();
  void Degriser_ComboOng1();

  // Run by the frame on every tab change too.
  void Txt_DatDebContrat_LostFocus();

  // The start date on file when the tab was shown, as an internal day text.
  std::string DebutInitial;
  // Rows of code and label, and for agreements the counting modes and the provident flag.
  data::CItem ListeAssociations;
  data::CItem ListeConvCol;
  // Item NATURECONTRAT of TABLES.
  data::CItem ListeNatures;
  // The provident code that stood before the employer's was looked up.
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
  // Handlers and phases: declared with the code that fills them.
};

}  // namespace editor
