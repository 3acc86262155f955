#pragma once
// The help of the suite's screens: one help file beside the application, opened in the help window
// of the calling control.

#include <string>

#include "screen/platform.h"

namespace session {

// The mouse button that opens the help menu of a form.
inline constexpr int BoutonDroit = 2;

class AideEnLigne {
 public:
  static constexpr const char* NomFichier = "Brivalon.HLP";
  // `dossier` is where the application stands; a separator is put before the file's name when it
  // lacks one.
  AideEnLigne(screen::Aide& aide, std::string dossier);

  const std::string& Fichier() const { return fichier_; }
  void Sommaire() { aide_.Appeler(fichier_, screen::Aide::Sommaire); }
  void Fermer() { aide_.Appeler(fichier_, screen::Aide::Quitter); }

 private:
  screen::Aide& aide_;
  std::string fichier_;
};

}  // namespace session
