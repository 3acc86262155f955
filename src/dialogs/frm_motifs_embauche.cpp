#include "dialogs/frm_motifs_embauche.h"

#include "data/nombre.h"

namespace dialogs {

namespace {

constexpr const char* SansControle =
    "La table des motifs d'embauche ne peut pas être modifiée ici : l'écran de paramétrage des "
    "tables n'est pas installé sur ce poste. Modifiez-la depuis un poste qui en dispose.";

struct Propriete {
  const char* nom;
  const char* valeur;
};

// In the order in which the control expects them.
constexpr Propriete Contexte[] = {
    {"TheDatabase", "Db"},
    {"TheClient", "LeClient"},
    {"TheCle", Frm_MotifsEmbauche::Table},
    {"W_Droits", Frm_MotifsEmbauche::Droit},
    {"DroitsUtilisateur", "W_Droits"},
};

}  // namespace

Frm_MotifsEmbauche::Frm_MotifsEmbauche(screen::Platform& platform, session::Session&)
    : Form(platform, "Frm_MotifsEmbauche", "Motifs contrats CDD"),
      controle_(platform.controles.Trouver(NomControle)) {}

bool Frm_MotifsEmbauche::Demarrer() {
  if (controle_ == nullptr) {
    MessageBox(SansControle, screen::Boutons::Ok, screen::Icone::Exclamation);
    return false;
  }
  for (const Propriete& p : Contexte) controle_->Regler(p.nom, p.valeur);
  controle_->Appeler("init");
  return true;
}

void Frm_MotifsEmbauche::AdapteExe() {
  if (controle_ == nullptr) return;
  controle_->Regler("Mode", Mode);
  largeur_ = static_cast<int>(data::entier(controle_->Lire("Width"))) + Marge;
  hauteur_ = static_cast<int>(data::entier(controle_->Lire("Height"))) + Marge;
}

bool Frm_MotifsEmbauche::QueryUnload() {
  return controle_ == nullptr || controle_->Lire("W_Sortir") != "0";
}

}  // namespace dialogs
