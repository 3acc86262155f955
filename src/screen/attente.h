#pragma once
// The wait state of a screen during long work: wait cursor, form disabled. Lifted at the end of the
// scope, also when a store error rises, so that the user gets the screen back.

#include "screen/form.h"

namespace screen {

class Attente {
 public:
  explicit Attente(Form& form) : form_(form) {
    form_.Services().curseur.Attente(true);
    form_.SetEnabled(false);
  }
  ~Attente() { Lever(); }
  Attente(const Attente&) = delete;
  Attente& operator=(const Attente&) = delete;

  // Processes what the user did meanwhile, then gives the screen back. Later calls do nothing.
  void Finir() {
    if (!active_) return;
    form_.Services().curseur.TraiterEvenements();
    Lever();
  }

 private:
  void Lever() {
    if (!active_) return;
    active_ = false;
    form_.Services().curseur.Attente(false);
    form_.SetEnabled(true);
  }

  Form& form_;
  bool active_ = true;
};

}  // namespace screen
