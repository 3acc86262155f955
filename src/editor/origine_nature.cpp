#include "editor/origine_nature.h"

#include <algorithm>

#include "data/layouts/voisins.h"
#include "dialogs/frm_stage.h"
#include "editor/editeur.h"

namespace editor {

namespace {

namespace C = data::Contrat;

constexpr std::string_view NatureStagiaire = "Stagiaire";

}  // namespace

NatureOrigine::NatureOrigine(Frm_ElementsContrat& editeur, screen::Frame& page)
    : editeur_(editeur), page_(page) {
  Cbo_NatureContrat.DropDown = [this] { Cbo_NatureContrat_DropDown(); };
  Cbo_NatureContrat.LostFocus = [this] { Cbo_NatureContrat_LostFocus(); };
  Cbo_NatureContrat.Click = Cbo_NatureContrat.Change = [this] { MontrerStage(); };
  Cmd_Stage.Click = [this] { Cmd_Stage_Click(); };
}

std::vector<session::Zone> NatureOrigine::Zones() {
  return {session::code(Cbo_NatureContrat, C::Nature, natures_)};
}

void NatureOrigine::Preparer() {
  stageAvant_ = data::CItem();
  Cbo_NatureContrat.Clear();
  data::CItem natures;
  editeur_.Session().F_TABLES.Lire(data::Tables::NatureContrat, natures);
  natures_ = data::ListeCodes::DeTable(natures, data::Tables::Codes, data::Tables::Libelles,
                                       data::Tables::NatureChoisissables);
}

bool NatureOrigine::StageRequis() const {
  return Libelle() == NatureStagiaire;
}

void NatureOrigine::MontrerStage() {
  Cmd_Stage.SetVisible(StageRequis());
}

void NatureOrigine::Cmd_Stage_Click() {
  RendreStage();
  dialogs::Frm_Stage(editeur_.Services(), editeur_.Dossier()).ShowModal();
}

void NatureOrigine::EcrireStage() {
  data::CItem& contrat = editeur_.Dossier().ItemContrat;
  RendreStage();
  if (contrat.Vue(C::Nature) == C::NatureStage || contrat.Vue(C::StageEcole).empty()) return;
  for (const int a : C::GroupeStage) {
    stageAvant_.Set(a, contrat.Vue(a));
    contrat.Set(a, "");
  }
}

void NatureOrigine::RendreStage() {
  if (stageAvant_.Vide()) return;
  for (const int a : C::GroupeStage) editeur_.Dossier().ItemContrat.Set(a, stageAvant_.Vue(a));
  stageAvant_ = data::CItem();
}

void NatureOrigine::Cbo_NatureContrat_DropDown() {
  if (Cbo_NatureContrat.ListCount() > 0) return;
  const session::Dossier& dossier = editeur_.Dossier();
  const std::string actuelle = dossier.ModeCreation ? "" : dossier.ItemContrat(C::Nature);
  for (const auto& nature : natures_.Lignes()) {
    const bool dejaLa = !nature.code.empty() && nature.code == actuelle;
    if (nature.suite.front() == "O" || dejaLa) Cbo_NatureContrat.AddItem(nature.libelle);
  }
}

void NatureOrigine::Cbo_NatureContrat_LostFocus() {
  if (Libelle().empty()) return;
  Cbo_NatureContrat_DropDown();
  const auto& natures = Cbo_NatureContrat.Rows();
  if (std::find(natures.begin(), natures.end(), Libelle()) != natures.end()) return;
  editeur_.MessageBox("La nature saisie n'existe pas, veuillez la ressaisir.", screen::Boutons::Ok,
                      screen::Icone::Exclamation);
  Cbo_NatureContrat.SetText("");
  editeur_.Ong_Contrat.SetTab(Origine);
  Cbo_NatureContrat.SetFocus();
}

}  // namespace editor
