#include "dialogs/frm_periode_conges.h"

namespace dialogs {

namespace {

constexpr FormeHebergee::Hebergement PeriodeConges{
    "Ctr_PeriodeConges",
    "La période de congés ne peut pas être affichée ici : son écran n'est pas installé sur ce "
    "poste.",
    "W_Occupe", "-1"};

}  // namespace

Frm_PeriodeConges::Frm_PeriodeConges(screen::Platform& platform)
    : FormeHebergee(platform, "Frm_PeriodeConges", "Période de congés", PeriodeConges) {}

std::vector<FormeHebergee::Propriete> Frm_PeriodeConges::Contexte() const {
  return {{"TheDatabase", "Db"}, {"TheClient", "LeClient"}};
}

}  // namespace dialogs
