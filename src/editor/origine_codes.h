#pragma once
// The codes of the first tab: agreement, legal entity and employer, each with its label list. One
// step leads to the next: a new agreement empties the entity, and a new entity what hangs on it, so
// that no code outlives what it was chosen for.

#include <string>

#include "editor/origine_employeur.h"

namespace editor {

class Frm_ElementsContrat;

class CodesOrigine {
 public:
  // The fields stand on `page`; `sourdine` is their tab's.
  CodesOrigine(Frm_ElementsContrat& editeur, screen::Frame& page, session::Sourdine& sourdine);

  // Entities and agreements, which stay the same from contract to contract.
  void Remplir_Combos();
  // The looks under the agreement in the box.
  void SelonConvention() { employeur_.SelonConvention(); }
  void AfficherNouveau();
  // The agreement, the entity and the employer of a contract on file, which never change.
  void AfficherExistant();
  void Ecrire(data::CItem& contrat) const;
  // Disables or enables entity and employer.
  void Griser_ComboOng1() { Activer(false); }
  void Degriser_ComboOng1() { Activer(true); }

  const std::string& Convention() const { return Txt_ConvColContrat.Text(); }
  const std::string& Entite() const { return Txt_AssocContrat.Text(); }
  const std::string& Employeur() const { return employeur_.Code(); }
  const std::string& LibelleEmployeur() const { return employeur_.Libelle(); }
  bool Particuliers() const { return Convention() == data::ConventionParticuliers; }
  // Whom the leave statement and the reports name: the private employer, else the legal entity.
  data::ListeCodes::Ligne Nomme() const;
  // To the agreement, where it can be chosen.
  void SetFocus() {
    if (Txt_ConvColContrat.Enabled()) Txt_ConvColContrat.SetFocus();
  }

 private:
  // Code lengths, in characters.
  static constexpr int LongueurConvention = 2;
  static constexpr int LongueurEntite = 3;
  static constexpr int LongueurLibelle = 60;

  session::RegleCode RegleConvention();
  session::RegleCode RegleEntite();
  void Activer(bool actifs);

  void ChoisirConvention();
  void ViderEntite();
  void ChoisirEntite();
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
  EmployeurOrigine employeur_{editeur_, *this, page_, sourdine_};

  session::PaireCode convention_{Txt_ConvColContrat, Cbo_LibConvColContrat, sourdine_,
                                 RegleConvention()};
  session::PaireCode entite_{Txt_AssocContrat, Cbo_LibAssocContrat, sourdine_, RegleEntite()};
};

}  // namespace editor
