#pragma once
// First tab, "Origine": what the contract is. Agreement, legal entity, employer, type, pay basis,
// status, dates, trial period, nature. Its values steer the other tabs, above all the agreement:
// with "02" the person helped is the employer.

#include <string>

#include "editor/onglet.h"
#include "editor/origine_codes.h"
#include "editor/origine_nature.h"

namespace editor {

class OngletOrigine : public Onglet {
 public:
  explicit OngletOrigine(Frm_ElementsContrat& editeur);

  void Afficher_Ong1();
  // Run again on other fields, it leaves what a single run on them would.
  void Ecrire_Ong1();
  bool Verif_Ong1();
  void Remplir_Combos() { codes_.Remplir_Combos(); }
  void SelonConvention(const std::string& convention) override;
  // The dates of a contract on file are always open; those of a new one until payroll processes it.
  void RafraichirEmployeur();
  // Run by the frame on every tab change too.
  void Txt_DatDebContrat_LostFocus();
  // The start of the contract is missing for what was to be done: says so, and goes to its box.
  void DemanderDebut();
  // To the first field in which a new contract begins.
  void Commencer() { codes_.SetFocus(); }

  const std::string& Convention() const { return codes_.Convention(); }
  // The label of the contract's nature.
  const std::string& Nature() const { return nature_.Libelle(); }
  const std::string& Entite() const { return codes_.Entite(); }
  const std::string& Employeur() const { return codes_.Employeur(); }
  const std::string& LibelleEmployeur() const { return codes_.LibelleEmployeur(); }
  bool Particuliers() const { return codes_.Particuliers(); }
  // Whom the leave statement and the reports name: the private employer, else the legal entity.
  const std::string& CodeNomme() const { return Particuliers() ? Employeur() : Entite(); }
  const std::string& LibelleNomme() const {
    return Particuliers() ? codes_.LibelleEmployeur() : codes_.LibelleEntite();
  }
  bool Administratif() const { return Opt_Administratif.Value(); }
  bool Production() const { return Opt_Production.Value(); }
  bool Mensuel() const { return Opt_Mensuel.Value(); }
  bool Determine() const { return Opt_Determine.Value(); }
  // The start as displayed, and its internal day; nothing for what is no date.
  const std::string& DateDebut() const { return Txt_DatDebContrat.Text(); }
  std::optional<long> Debut() const;
  std::optional<long> FinPresumee() const;

 private:
  static const rules::Verification<OngletOrigine> Verifications[];

  void Afficher_Ong() override { Afficher_Ong1(); }
  bool Verif_Ong() override { return Verif_Ong1(); }
  bool Ecrire_Ong(bool) override;
  void Vider_Ong() override;

  void Lier();
  void SelonType();
  void SelonStatut();
  void Opt_Determine_Click();
  void AdapterReference();
  void Cmd_MotifCDD_Click();

  void EcrireDebut();
  void EcrireTerme();

  bool DebutDeplace() const;
  bool BulletinCalcule(const std::string& periode) const;

  screen::Label Etq_NumContrat{Page, "Etq_NumContrat", "N° Contrat"};
  screen::TextField Txt_NumContrat{Page, "Txt_NumContrat", 3};
  CodesOrigine codes_{editeur_, Page, sourdine_};

  screen::Frame Cdr_Type{Page, "Cdr_Type", "Type "};
  screen::OptionButton Opt_Indetermine{Cdr_Type, "Opt_Indetermine", "Indéterminé"};
  screen::OptionButton Opt_Determine{Cdr_Type, "Opt_Determine", "Déterminé"};
  screen::Frame Cdr_Salaire{Page, "Cdr_Salaire", "Salaire "};
  screen::OptionButton Opt_Horaire{Cdr_Salaire, "Opt_Horaire", "Horaire"};
  screen::OptionButton Opt_Mensuel{Cdr_Salaire, "Opt_Mensuel", "Mensualisé"};
  screen::Frame Cdr_Fonction{Page, "Cdr_Fonction", "Statut "};
  screen::OptionButton Opt_Administratif{Cdr_Fonction, "Opt_Administratif", "Adm / Ssiad"};
  screen::OptionButton Opt_Production{Cdr_Fonction, "Opt_Production", "Production"};

  screen::Label Etq_DatDebContrat{Page, "Etq_DatDebContrat", "Date début"};
  screen::TextField Txt_DatDebContrat{Page, "Txt_DatDebContrat", LongueurDate};
  screen::Label Etq_DatFinContrat{Page, "Etq_DatFinContrat", "Date fin présumée"};
  screen::TextField Txt_DatFinContrat{Page, "Txt_DatFinContrat", LongueurDate};
  screen::Label Etq_PerEssaiContrat{Page, "Etq_PerEssaiContrat", "Période Essai"};
  screen::TextField Txt_PerEssaiContrat{Page, "Txt_PerEssaiContrat", LongueurTexte};
  screen::Label Etq_JoursEssai{Page, "Etq_JoursEssai", "jours"};
  screen::CheckBox Cac_RenouvEssaiContrat{Page, "Cac_RenouvEssaiContrat", "Renouvelable"};
  screen::Label Etq_DureeMinContrat{Page, "Etq_DureeMinContrat", "Durée minimale"};
  screen::TextField Txt_DureeMinContrat{Page, "Txt_DureeMinContrat", LongueurTexte};
  NatureOrigine nature_{editeur_, Page};
  screen::Button Cmd_MotifCDD{Page, "Cmd_MotifCDD", "Motif C.D.D."};
  screen::Label Etq_DateSignConvEmplAide{Page, "Etq_DateSignConvEmplAide",
                                         "Date signature convention emploi aidé"};
  screen::TextField Txt_DateSignConvEmplAide{Page, "Txt_DateSignConvEmplAide", LongueurDate};
  screen::Label Etq_NumRef{Page, "Etq_NumRef", "N° de référence"};
  screen::TextField Txt_NumRef{Page, "Txt_NumRef", LongueurTexte};
  screen::Label Etq_Contrepartie{Page, "Etq_Contrepartie", "Contrepartie pour interruption"};
  screen::ComboBox Cbo_Contrepartie{Page, "Cbo_Contrepartie", false};

  session::Zones zones_;

  // What a copy of the screen took away, to be put back when the fields are set back: the first
  // values of effect date and grid start before a moved start date changed them, the presumed end
  // of a contract made open-ended.
  bool debutDeplace_ = false;
  std::string debutPose_;
  std::string effetAvant_;
  std::string departGrilleAvant_;
  std::string finAvant_;
};

}  // namespace editor
