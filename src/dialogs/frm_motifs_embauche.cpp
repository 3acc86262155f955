#include "dialogs/frm_motifs_embauche.h"

namespace dialogs {

namespace {

constexpr FormeHebergee::Hebergement TableMotifs{
    FormeParamTable::NomControle,
    "La table des motifs d'embauche ne peut pas être modifiée ici : l'écran de paramétrage des "
    "tables n'est pas installé sur ce poste. Modifiez-la depuis un poste qui en dispose.",
    FormeParamTable::ProprieteSortie, FormeParamTable::SortieRetenue};

constexpr const char* Mode = "PARAMAUTREINTERVAIDE";

}  // namespace

Frm_MotifsEmbauche::Frm_MotifsEmbauche(screen::Platform& platform)
    : FormeParamTable(platform, "Frm_MotifsEmbauche", "Motifs contrats CDD", TableMotifs,
                      "MOTIFEMBAUCHE", "MOTIFS EMBAUCHE") {}

void Frm_MotifsEmbauche::AdapteExe() {
  Controle()->Regler("Mode", Mode);
  FormeParamTable::AdapteExe();
}

}  // namespace dialogs
