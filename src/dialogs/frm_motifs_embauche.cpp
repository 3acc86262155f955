#include "dialogs/frm_motifs_embauche.h"

#include "data/nombre.h"

namespace dialogs {

namespace {

constexpr FormeHebergee::Hebergement ParamTable{
    "Ctr_ParamTable",
    "La table des motifs d'embauche ne peut pas être modifiée ici : l'écran de paramétrage des "
    "tables n'est pas installé sur ce poste. Modifiez-la depuis un poste qui en dispose.",
    "W_Sortir", "0"};

constexpr const char* Mode = "PARAMAUTREINTERVAIDE";

}  // namespace

Frm_MotifsEmbauche::Frm_MotifsEmbauche(screen::Platform& platform)
    : FormeHebergee(platform, "Frm_MotifsEmbauche", "Motifs contrats CDD", ParamTable) {}

std::vector<FormeHebergee::Propriete> Frm_MotifsEmbauche::Contexte() const {
  return {{"TheDatabase", "Db"},
          {"TheClient", "LeClient"},
          {"TheCle", "MOTIFEMBAUCHE"},
          {"W_Droits", "MOTIFS EMBAUCHE"},
          {"DroitsUtilisateur", "W_Droits"}};
}

void Frm_MotifsEmbauche::AdapteExe() {
  Controle()->Regler("Mode", Mode);
  largeur_ = static_cast<int>(data::entier(Controle()->Lire("Width"))) + Marge;
  hauteur_ = static_cast<int>(data::entier(Controle()->Lire("Height"))) + Marge;
}

}  // namespace dialogs
