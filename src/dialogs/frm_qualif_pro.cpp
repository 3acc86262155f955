#include "dialogs/frm_qualif_pro.h"

#include <utility>

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

// This table's control takes the client first.
std::vector<FormeHebergee::Propriete> Frm_QualifPro::Contexte() const {
  std::vector<Propriete> contexte = FormeParamTable::Contexte();
  std::swap(contexte[0], contexte[1]);
  return contexte;
}

}  // namespace dialogs
