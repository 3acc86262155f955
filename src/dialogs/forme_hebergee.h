#pragma once
// A window in which a control of another component of the suite works: the host has it or has not.
// The window hands over its context as properties, in the order in which the control expects them,
// starts it, and closes only when the control can be left.
//
//   Frm_CivilAide detail(Services(), codeAide);
//   detail.Ouvrir(*this);       // the wait state stands on the caller while it loads

#include <string>
#include <vector>

#include "screen/form.h"

namespace dialogs {

class FormeHebergee : public screen::Form {
 public:
  struct Propriete {
    const char* nom;
    std::string valeur;
  };
  struct Hebergement {
    // The control's name among those that the host has.
    const char* controle;
    // What is said when the host does not have it: what cannot be done here, and where it can.
    const char* absent;
    // The property by which it says whether it can be left, and the answer that keeps it open.
    const char* sortie;
    const char* retenue;
    // Instead: the one answer that lets it close.
    const char* liberee = nullptr;
  };

  // Starts the control and shows the window until it is left. False, after a message, when the host
  // does not have the control.
  bool Ouvrir(screen::Form& appelante);

 protected:
  FormeHebergee(screen::Platform& platform, std::string nom, std::string titre,
                const Hebergement& hebergement);

  // The context, in order. An object of the session is handed over by the name that the session has
  // for it: the host, which gave it, knows it.
  virtual std::vector<Propriete> Contexte() const = 0;
  bool QueryUnload() override;
  // nullptr when the host does not have it.
  screen::ControleHeberge* Controle() const { return controle_; }

 private:
  const Hebergement& hebergement_;
  screen::ControleHeberge* controle_;
};

}  // namespace dialogs
