#include "editor/paie_transport.h"

#include "data/layouts/voisins.h"
#include "editor/editeur.h"

namespace editor {

PaieTransport::PaieTransport(Frm_ElementsContrat& editeur, screen::Frame& page)
    : editeur_(editeur), page_(page) {
  Cbo_CartOrangContrat.DropDown = [this] { Cbo_CartOrangContrat_DropDown(); };
  Cbo_CartOrangContrat.LostFocus = [this] { Cbo_CartOrangContrat_LostFocus(); };
}

std::vector<session::Zone> PaieTransport::Zones() {
  return {session::code(Cbo_CartOrangContrat, data::Contrat::ZoneTransport, zonesTransport_)};
}

void PaieTransport::Preparer() {
  data::CItem zones;
  editeur_.Session().F_TABLES.Lire(data::Tables::CarteOrange, zones);
  zonesTransport_ = data::ListeCodes::DeTable(zones);
  Cbo_CartOrangContrat.Clear();
}

void PaieTransport::Cbo_CartOrangContrat_DropDown() {
  if (Cbo_CartOrangContrat.ListCount() > 0) return;
  for (const auto& zone : zonesTransport_.Lignes()) Cbo_CartOrangContrat.AddItem(zone.libelle);
}

void PaieTransport::Cbo_CartOrangContrat_LostFocus() {
  const std::string& saisie = Cbo_CartOrangContrat.Text();
  if (saisie.empty() || zonesTransport_.ParLibelle(saisie) != nullptr) return;
  editeur_.MessageBox("La zone carte orange saisie n'existe pas, veuillez la ressaisir.",
                      screen::Boutons::Ok, screen::Icone::Exclamation);
  Cbo_CartOrangContrat.SetText("");
  editeur_.Ong_Contrat.SetTab(ElementsPaie);
  Cbo_CartOrangContrat.SetFocus();
}

}  // namespace editor
