#include "dialogs/frm_qualif_pro.h"

namespace dialogs {

namespace {

constexpr FormeHebergee::Hebergement TableQualif{
    FormeParamTable::NomControle,
    "Aucune qualification ne peut être ajoutée ici : l'écran de paramétrage des tables n'est pas "
    "installé sur ce poste. Ajoutez-la depuis un poste qui en dispose.",
    FormeParamTable::ProprieteSortie, FormeParamTable::SortieRetenue};

}  // namespace

Frm_QualifPro::Frm_QualifPro(screen::Platform& platform)
    : FormeParamTable(platform, "Frm_QualifPro", "Ajout Qualification Professionnelle", TableQualif,
                      "QUALIF", "DOSAIDANTCONTRAT") {}

}  // namespace dialogs
