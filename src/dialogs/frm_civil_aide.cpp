#include "dialogs/frm_civil_aide.h"

namespace dialogs {

namespace {

constexpr FormeHebergee::Hebergement CivilAide{
    "Ctr_CivilAide",
    "Le détail de l'employeur ne peut pas être affiché ici : l'écran d'état civil des aidés n'est "
    "pas installé sur ce poste. Consultez-le depuis le dossier de l'aidé.",
    "W_Occupe", "-1"};

}  // namespace

Frm_CivilAide::Frm_CivilAide(screen::Platform& platform, std::string codeAide)
    : FormeHebergee(platform, "Frm_CivilAide", "Etat Civil de l'Aidé", CivilAide),
      codeAide_(std::move(codeAide)) {}

std::vector<FormeHebergee::Propriete> Frm_CivilAide::Contexte() const {
  return {{"DroitsUtilisateur", "W_Droits"},
          {"W_CodeAide", codeAide_},
          {"TheDatabase", "Db"},
          {"TheClient", "LeClient"}};
}

}  // namespace dialogs
