#include "session/aide.h"

namespace session {

namespace {

constexpr int Place = 256;   // of the window's left and top edges
constexpr int Taille = 512;  // width and height

std::string dansDossier(std::string dossier, const char* nom) {
  if (!dossier.empty() && dossier.back() != '/' && dossier.back() != '\\') dossier += '/';
  return dossier + nom;
}

}  // namespace

AideEnLigne::AideEnLigne(screen::Aide& aide)
    : aide_(aide), fichier_(dansDossier(aide.Dossier(), NomFichier)) {}

void AideEnLigne::Preparer(JeuAide jeu) {
  const char* const nom = jeu == JeuAide::Deux ? ">HlpWnd02" : ">HlpWnd03";
  aide_.Preparer(fichier_, {nom, Place, Place, Taille, Taille});
}

}  // namespace session
