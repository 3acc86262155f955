#include "session/aide.h"

namespace session {

AideEnLigne::AideEnLigne(screen::Aide& aide, std::string dossier)
    : aide_(aide), fichier_(std::move(dossier)) {
  if (!fichier_.empty() && fichier_.back() != '/' && fichier_.back() != '\\') fichier_ += '/';
  fichier_ += NomFichier;
}

}  // namespace session
