#pragma once
// The employer on the first tab: an establishment of the legal entity, or with agreement "02" the
// person helped, who can be searched for by name.

#include <optional>
#include <string>

#include "session/dossier.h"
#include "session/paire_code.h"

namespace editor {

class CodesOrigine;
class Frm_ElementsContrat;

class EmployeurOrigine {
 public:
  // `codes`: the agreement and the entity that stand above him. `sourdine` is their tab's.
  EmployeurOrigine(Frm_ElementsContrat& editeur, const CodesOrigine& codes, screen::Frame& page,
                   session::Sourdine& sourdine);

  // Caption, button and form of the code under the agreement in its box.
  void SelonConvention();
  // The employer of a contract on file.
  void Afficher();
  // No employer is offered yet; one of the same kind as on file comes back.
  void Reprendre();
  // The establishments of the entity in its box: the only one is taken.
  void Remplir_Etablissements();
  // Nothing is offered.
  void Oublier() { employeur_.Remplir({}); }
  // Empties code and label, as the user would.
  void Vider() { employeur_.Vider(); }
  void Activer(bool actif) {
    screen::Activer({&Txt_EmplEtabContrat, &Cbo_LibEmplEtabContrat}, actif);
  }
  void SetFocus() { Txt_EmplEtabContrat.SetFocus(); }

  const std::string& Code() const { return Txt_EmplEtabContrat.Text(); }
  const std::string& Libelle() const { return Cbo_LibEmplEtabContrat.Text(); }

 private:
  // Code lengths, in characters.
  static constexpr int LongueurEtablissement = 3;
  static constexpr int LongueurParticulier = 5;
  static constexpr int LongueurLibelle = 60;

  session::RegleCode Regle();
  void Quitter();
  std::optional<std::string> NomParticulier(const std::string& code) const;
  std::optional<std::string> LibelleEtablissement(const std::string& code) const;
  void Chercher(char32_t& touche);
  void Remplir_Aide(const std::string& nom);
  session::Session& Session() const;

  Frm_ElementsContrat& editeur_;
  const CodesOrigine& codes_;
  screen::Frame& page_;
  session::Sourdine& sourdine_;

  screen::Label Etq_EmplEtabContrat{page_, "Etq_EmplEtabContrat", "Etablissement"};
  screen::TextField Txt_EmplEtabContrat{page_, "Txt_EmplEtabContrat", LongueurParticulier};
  screen::ComboBox Cbo_LibEmplEtabContrat{page_, "Cbo_LibEmplEtabContrat", true, LongueurLibelle};
  screen::Button Cmd_DetailEmpl{page_, "Cmd_DetailEmpl", "Détail employeur"};

  session::PaireCode employeur_{Txt_EmplEtabContrat, Cbo_LibEmplEtabContrat, sourdine_, Regle()};
};

}  // namespace editor
