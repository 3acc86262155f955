#pragma once
// The help of the suite's screens: one help file beside the application, opened in the help window
// of the calling control.

#include <string>

#include "screen/platform.h"

namespace session {

// The mouse button that opens the help menu of a form.
inline constexpr int BoutonDroit = 2;

// The sets of help windows of the suite.
enum class JeuAide { Deux, Trois };

class AideEnLigne {
 public:
  static constexpr const char* NomFichier = "Brivalon.HLP";
  // The help file stands in the application's folder, which `aide` knows.
  explicit AideEnLigne(screen::Aide& aide);

  const std::string& Fichier() const { return fichier_; }
  // Describes the help window of a set, once, before the first call.
  void Preparer(JeuAide jeu);
  void Sommaire() { aide_.Appeler(fichier_, screen::Aide::Sommaire); }
  void Fermer() { aide_.Appeler(fichier_, screen::Aide::Quitter); }

 private:
  screen::Aide& aide_;
  std::string fichier_;
};

}  // namespace session
