#include "dialogs/frm_vespamoi.h"

namespace dialogs {

namespace {

constexpr FormeHebergee::Hebergement Vespario{
    .controle = "Ctr_Vespamoi",
    .absent =
        "Les droits de télégestion ne peuvent pas être modifiés ici : l'écran de paramétrage "
        "VESPARIO n'est pas installé sur ce poste. Modifiez-les depuis un poste qui en dispose.",
    .sortie = "W_Sortir",
    .retenue = nullptr,
    .liberee = "-1"};

std::string titre(const ContexteTelegestion& c) {
  std::string texte =
      "Télégestion VESPARIO : paramétrages pour l'aidant " + c.codeAidant + " " + c.nomAidant;
  if (c.particuliers) texte += " / pour l'aidé " + c.employeur + " " + c.nomEmployeur;
  return texte;
}

}  // namespace

Frm_VESPAMOI::Frm_VESPAMOI(screen::Platform& platform, ContexteTelegestion contexte)
    : FormeHebergee(platform, "Frm_VESPAMOI", titre(contexte), Vespario),
      contexte_(std::move(contexte)) {}

std::vector<FormeHebergee::Propriete> Frm_VESPAMOI::Contexte() const {
  std::string activites;
  for (const std::string& code : contexte_.activites) activites += code;
  return {{"TheDatabase", "Db"},
          {"TheClient", "LeClient"},
          {"W_CodeAsso", contexte_.association},
          {"W_CodeAide", contexte_.employeur},
          {"W_CodeAidant", contexte_.codeAidant},
          {"W_TypeAct", contexte_.particuliers ? "M" : "P"},
          {"W_StrAct", activites}};
}

}  // namespace dialogs
