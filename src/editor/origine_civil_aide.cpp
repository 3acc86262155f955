#include "editor/origine_civil_aide.h"

namespace editor {

namespace {

constexpr const char* SansControle =
    "Le détail de l'employeur ne peut pas être affiché ici : l'écran d'état civil des aidés n'est "
    "pas installé sur ce poste. Consultez-le depuis le dossier de l'aidé.";

}  // namespace

Frm_CivilAide::Frm_CivilAide(screen::Platform& platform)
    : Form(platform, "Frm_CivilAide", "Etat Civil de l'Aidé"),
      controle_(platform.controles.Trouver(NomControle)) {}

bool Frm_CivilAide::Demarrer(const std::string& codeAide) {
  if (controle_ == nullptr) {
    MessageBox(SansControle, screen::Boutons::Ok, screen::Icone::Exclamation);
    return false;
  }
  controle_->Regler("DroitsUtilisateur", "W_Droits");
  controle_->Regler("W_CodeAide", codeAide);
  controle_->Regler("TheDatabase", "Db");
  controle_->Regler("TheClient", "LeClient");
  controle_->Appeler("init");
  return true;
}

bool Frm_CivilAide::QueryUnload() {
  return controle_ == nullptr || controle_->Lire("W_Occupe") != "-1";
}

}  // namespace editor
