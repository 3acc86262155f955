#include "editor/caracteristiques_anciennete.h"

#include "data/nombre.h"
#include "editor/editeur.h"

namespace editor {

namespace C = data::Contrat;

Anciennete::Anciennete(Frm_ElementsContrat& editeur, screen::Frame& page)
    : editeur_(editeur),
      page_(page),
      date_(editeur.Session(), Txt_DateAnciennete, Txt_JourSuspAnc, Txt_DatReferenceAnc,
            C::JoursSuspensionAnciennete, [this] { return editeur_.origine.DateDebut(); }) {}

std::vector<session::Zone> Anciennete::Zones() {
  return {session::jour(Txt_DateAnciennete, C::DateAnciennete)};
}

void Anciennete::Lier() {
  Txt_DateAnciennete.LostFocus = [this] { date_.QuitterDepart(); };
}

std::optional<long> Anciennete::Depart() const {
  const auto& lib = editeur_.Session().Lib;
  const data::CItem& contrat = editeur_.Dossier().ItemContrat;
  auto depart = lib.LireDate(Txt_DateAnciennete.Text());
  if (!depart) depart = lib.LireDate(lib.DateFromInternal(contrat.Vue(C::DateAnciennete)));
  if (!depart) depart = editeur_.origine.Debut();
  if (!depart) return std::nullopt;
  const auto saisis = data::enUnites(Txt_JourSuspAnc.Text(), 2);
  const long long centiemes =
      saisis.value_or(data::entier(contrat.Vue(C::JoursSuspensionAnciennete)));
  return *depart + static_cast<long>(centiemes / 100);
}

}  // namespace editor
