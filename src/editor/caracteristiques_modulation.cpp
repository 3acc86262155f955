#include "editor/caracteristiques_modulation.h"

#include "data/layouts/contrat.h"
#include "data/nombre.h"
#include "dialogs/frm_contrat_annuel.h"
#include "editor/editeur.h"

namespace editor {

namespace {

namespace C = data::Contrat;

// Treatments of the hours.
constexpr const char* Retrait = "C";   // negative ones withdrawn, with or without the positive paid
constexpr const char* Paiement = "L";  // positive ones paid
constexpr const char* Sans = "S";

bool leve(const std::string& drapeau) {
  return data::entier(drapeau) != 0;
}

}  // namespace

Modulation::Modulation(Frm_ElementsContrat& editeur, screen::Frame& page,
                       session::Sourdine& sourdine)
    : editeur_(editeur), page_(page) {
  Cac_Lissage.Click = sourdine.SiAudible([this] { Cac_Lissage_Click(); });
  Cmd_SuiviAnnuel.Click = [this] { Cmd_SuiviAnnuel_Click(); };
  screen::Activer({&Cac_RetraitHeuresNeg, &Cac_PaiementHeuresPos, &Cmd_SuiviAnnuel}, false);
}

void Modulation::Montrer(const data::CItem& contrat, int rang) {
  surFichier_ = true;
  lissageSurFichier_ = contrat(C::Lissage, rang);
  traitementSurFichier_ = contrat(C::Modulation, rang);
  Cac_Lissage.SetValue(leve(lissageSurFichier_) ? 1 : 0);
  screen::Activer({&Cac_RetraitHeuresNeg, &Cac_PaiementHeuresPos}, Cac_Lissage.Value() != 0);
  Cac_RetraitHeuresNeg.SetValue(traitementSurFichier_ == Retrait ? 1 : 0);
  Cac_PaiementHeuresPos.SetValue(
      traitementSurFichier_ == Retrait || traitementSurFichier_ == Paiement ? 1 : 0);
  Cmd_SuiviAnnuel.SetEnabled(true);
  casesMontrees_ = Cases();
}

void Modulation::MontrerNouveau() {
  surFichier_ = false;
  for (screen::CheckBox* const c : {&Cac_Lissage, &Cac_RetraitHeuresNeg, &Cac_PaiementHeuresPos}) {
    c->SetValue(0);
  }
  screen::Activer({&Cac_RetraitHeuresNeg, &Cac_PaiementHeuresPos, &Cmd_SuiviAnnuel}, false);
}

void Modulation::Ouvrir(bool ouverte) {
  screen::Montrer({&Cdr_Lissage, &Cmd_SuiviAnnuel}, ouverte);
}

void Modulation::Ecrire(data::CItem& contrat, int rang) const {
  if (!Cdr_Lissage.Visible()) {
    const bool dejaClair = surFichier_ && !leve(lissageSurFichier_);
    contrat.Set(C::Lissage, rang, dejaClair ? lissageSurFichier_ : "0");
    contrat.Set(C::Modulation, rang, "");
    return;
  }
  const bool intact = surFichier_ && Cases() == casesMontrees_;
  contrat.Set(C::Lissage, rang, intact ? lissageSurFichier_ : std::to_string(Cac_Lissage.Value()));
  contrat.Set(C::Modulation, rang, intact ? traitementSurFichier_ : Traitement());
}

std::string Modulation::Cases() const {
  return std::to_string(Cac_Lissage.Value()) + std::to_string(Cac_RetraitHeuresNeg.Value()) +
         std::to_string(Cac_PaiementHeuresPos.Value());
}

std::string Modulation::Traitement() const {
  if (Cac_RetraitHeuresNeg.Value() != 0) return Retrait;
  return Cac_PaiementHeuresPos.Value() != 0 ? Paiement : Sans;
}

void Modulation::Cac_Lissage_Click() {
  const bool lisse = Cac_Lissage.Value() != 0;
  screen::Activer({&Cac_RetraitHeuresNeg, &Cac_PaiementHeuresPos}, lisse);
  if (lisse) return;
  Cac_RetraitHeuresNeg.SetValue(0);
  Cac_PaiementHeuresPos.SetValue(0);
}

void Modulation::Cmd_SuiviAnnuel_Click() {
  const auto& origine = editeur_.origine;
  dialogs::Frm_ContratAnnuel(editeur_.Services(), editeur_.Dossier(),
                             {origine.Convention(), origine.Entite(), origine.Employeur()})
      .ShowModal();
}

}  // namespace editor
