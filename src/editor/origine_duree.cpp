#include "editor/origine_duree.h"

#include <utility>

#include "data/nombre.h"
#include "editor/editeur.h"
#include "screen/touches.h"

namespace editor {

namespace {

namespace C = data::Contrat;

}  // namespace

DureeOrigine::DureeOrigine(Frm_ElementsContrat& editeur, screen::Frame& page)
    : editeur_(editeur), page_(page) {}

void DureeOrigine::Lier() {
  Txt_DatDebContrat.LostFocus = [this] { Txt_DatDebContrat_LostFocus(); };
  // Whole days by the keys; a text that stands there, or is pasted, is kept as it is.
  Txt_PerEssaiContrat.KeyPress = screen::chiffresSeuls;
}

std::vector<session::Zone> DureeOrigine::Zones() {
  return {session::jour(Txt_DatDebContrat, C::DateDebut),
          session::texte(Txt_PerEssaiContrat, C::PeriodeEssai),
          session::drapeau(Cac_RenouvEssaiContrat, C::EssaiRenouvelable),
          session::jour(Txt_DatFinContrat, C::DateFinPresumee),
          session::texte(Txt_DureeMinContrat, C::DureeMinimale)};
}

void DureeOrigine::Preparer() {
  debutDeplace_ = false;
  finAvant_.clear();
  Cac_RenouvEssaiContrat.SetValue(0);
}

void DureeOrigine::Ouvrir() {
  const session::Dossier& dossier = editeur_.Dossier();
  const bool libre = !dossier.ModeCreation || dossier.ItemContrat.Vue(C::PeriodeTraitee).empty();
  screen::Activer({&Txt_DatDebContrat, &Txt_DatFinContrat}, libre);
}

void DureeOrigine::SelonType(bool determine) {
  screen::Montrer(
      {&Etq_DatFinContrat, &Txt_DatFinContrat, &Etq_DureeMinContrat, &Txt_DureeMinContrat},
      determine);
  if (!determine) return;
  const std::string fin = std::exchange(finAvant_, {});
  if (Txt_DatFinContrat.Text().empty()) Txt_DatFinContrat.SetText(fin);
}

// A first amendment may take effect on the very day on which the contract on file starts: only a
// start that was moved is held against it.
void DureeOrigine::Txt_DatDebContrat_LostFocus() {
  if (!session::QuitterDate(editeur_.Session(), Txt_DatDebContrat)) return;
  if (editeur_.Dossier().ModeCreation) {
    editeur_.caracteristiques.DebuterLe(Txt_DatDebContrat.Text());
    return;
  }
  const auto avenant = editeur_.Dossier().ItemContrat.Vue(C::DateEffet, 2);
  if (!DebutDeplace() || avenant.empty() || *Debut() < data::entier(avenant)) return;
  editeur_.MessageBox(
      "La date de début de contrat doit être inférieure à la date d'effet du 1er avenant.",
      screen::Boutons::Ok, screen::Icone::Exclamation);
  Txt_DatDebContrat.SetText("");
  Txt_DatDebContrat.SetFocus();
}

std::optional<long> DureeOrigine::Debut() const {
  return editeur_.Session().Lib.LireDate(DateDebut());
}

std::optional<long> DureeOrigine::FinPresumee() const {
  return editeur_.Session().Lib.LireDate(DateFin());
}

// On file, where a copy of the screen may stand already.
bool DureeOrigine::DebutDeplace() const {
  const session::Dossier& dossier = editeur_.Dossier();
  const auto debut = Debut();
  return !dossier.ModeCreation && debut &&
         std::to_string(*debut) != dossier.Initial.Vue(C::DateDebut);
}

// Writing.

void DureeOrigine::Ecrire(data::CItem& contrat, bool determine) {
  EcrireDebut(contrat);
  if (!determine) EcrireTerme(contrat);
}

// The effect date of the contract as signed moves along, and its grid start where that was the same
// day. What an earlier copy of the screen moved is put back first.
void DureeOrigine::EcrireDebut(data::CItem& contrat) {
  const std::string debut = contrat(C::DateDebut);
  const std::string debutInitial = editeur_.Dossier().Initial(C::DateDebut);
  // What was typed in their place since stays.
  if (debutDeplace_ && contrat.Vue(C::DateEffet, 1) == debutPose_) {
    contrat.Set(C::DateEffet, 1, effetAvant_);
  }
  if (debutDeplace_ && contrat.Vue(C::DepartGrille, 1) == debutPose_) {
    contrat.Set(C::DepartGrille, 1, departGrilleAvant_);
  }
  debutPose_ = debut;
  debutDeplace_ = debut != debutInitial;
  if (!debutDeplace_) return;
  effetAvant_ = contrat(C::DateEffet, 1);
  departGrilleAvant_ = contrat(C::DepartGrille, 1);
  contrat.Set(C::DateEffet, 1, debut);
  if (!departGrilleAvant_.empty() && departGrilleAvant_ == debutInitial) {
    contrat.Set(C::DepartGrille, 1, debut);
  }
}

// Not even an end that was typed before the type was changed.
void DureeOrigine::EcrireTerme(data::CItem& contrat) {
  if (!Txt_DatFinContrat.Text().empty()) finAvant_ = Txt_DatFinContrat.Text();
  Txt_DatFinContrat.SetText("");
  contrat.Set(C::DateFinPresumee, "");
}

}  // namespace editor
