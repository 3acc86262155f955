#pragma once
// The codes of the first tab: agreement, legal entity and employer, each with its label list. One
// step leads to the next: a new agreement empties the entity, and a new entity what hangs on it, so
// that no code outlives what it was chosen for. With agreement "02" the person helped is the
// employer, who can be searched for by name.

#include <string>

#include "session/dossier.h"
#include "session/paire_code.h"

namespace editor {

class Frm_ElementsContrat;

class CodesOrigine {
 public:
  // The fields stand on `page`; `sourdine` is their tab's.
  CodesOrigine(Frm_ElementsContrat& editeur, screen::Frame& page, session::Sourdine& sourdine);

  // Entities and agreements, which stay the same from contract to contract.
  void Remplir_Combos();
  // The looks under the agreement in the box.
  void SelonConvention();
  void AfficherNouveau();
  // The agreement, the entity and the employer of a contract on file, which never change.
  void AfficherExistant();
  void Ecrire(data::CItem& contrat) const;
  // Disables or enables entity and employer.
  void Griser_ComboOng1() { Activer(false); }
  void Degriser_ComboOng1() { Activer(true); }

  const std::string& Convention() const { return Txt_ConvColContrat.Text(); }
  const std::string& Entite() const { return Txt_AssocContrat.Text(); }
  const std::string& Employeur() const { return Txt_EmplEtabContrat.Text(); }
  const std::string& LibelleEntite() const { return Cbo_LibAssocContrat.Text(); }
  const std::string& LibelleEmployeur() const { return Cbo_LibEmplEtabContrat.Text(); }
  bool Particuliers() const { return Convention() == data::ConventionParticuliers; }
  // The agreement row of the code in the box: label, then the counting modes of paid and seniority
  // leave and the provident flag.
  const data::ListeCodes::Ligne* LigneConvention() const {
    return convention_.Lignes().ParCode(Convention());
  }
  // To the agreement, where it can be chosen.
  void SetFocus() {
    if (Txt_ConvColContrat.Enabled()) Txt_ConvColContrat.SetFocus();
  }

 private:
  // Code lengths, in characters.
  static constexpr int LongueurConvention = 2;
  static constexpr int LongueurEntite = 3;
  static constexpr int LongueurEtablissement = 3;
  static constexpr int LongueurParticulier = 5;
  static constexpr int LongueurLibelle = 60;

  session::RegleCode RegleConvention();
  session::RegleCode RegleEntite();
  session::RegleCode RegleEmployeur();
  void Activer(bool actifs);

  void ChoisirConvention();
  void ViderEntite();
  void ChoisirEntite();
  void Remplir_Etablissements();
  void QuitterEmployeur();
  std::optional<std::string> NomEmployeur(const std::string& code) const;
  std::optional<std::string> LibelleEtablissement(const std::string& code) const;
  void ChercherEmployeur(char32_t& touche);
  void Remplir_Aide(const std::string& nom);
  void Cmd_DetailEmpl_Click();
  session::Session& Session() const;

  Frm_ElementsContrat& editeur_;
  screen::Frame& page_;
  session::Sourdine& sourdine_;

  screen::Label Etq_ConvColContrat{page_, "Etq_ConvColContrat", "Conv. Coll."};
  screen::TextField Txt_ConvColContrat{page_, "Txt_ConvColContrat", LongueurConvention};
  screen::ComboBox Cbo_LibConvColContrat{page_, "Cbo_LibConvColContrat", true, LongueurLibelle};
  screen::Label Etq_AssocContrat{page_, "Etq_AssocContrat", "Entité juridique"};
  screen::TextField Txt_AssocContrat{page_, "Txt_AssocContrat", LongueurEntite};
  screen::ComboBox Cbo_LibAssocContrat{page_, "Cbo_LibAssocContrat", true, LongueurLibelle};
  screen::Label Etq_EmplEtabContrat{page_, "Etq_EmplEtabContrat", "Etablissement"};
  screen::TextField Txt_EmplEtabContrat{page_, "Txt_EmplEtabContrat", LongueurParticulier};
  screen::ComboBox Cbo_LibEmplEtabContrat{page_, "Cbo_LibEmplEtabContrat", true, LongueurLibelle};
  screen::Button Cmd_DetailEmpl{page_, "Cmd_DetailEmpl", "Détail employeur"};

  session::PaireCode convention_{Txt_ConvColContrat, Cbo_LibConvColContrat, sourdine_,
                                 RegleConvention()};
  session::PaireCode entite_{Txt_AssocContrat, Cbo_LibAssocContrat, sourdine_, RegleEntite()};
  session::PaireCode employeur_{Txt_EmplEtabContrat, Cbo_LibEmplEtabContrat, sourdine_,
                                RegleEmployeur()};
};

}  // namespace editor
