#pragma once
// Somebody else has saved the record that is being saved: both versions side by side, and whose is
// to stand. Nothing is lost by a hasty answer: Échap and Entrée go back to the screen.

#include "screen/platform.h"

namespace hote {

class Bureau;
class CurseurQt;

class ConflitsQt : public screen::Conflits {
 public:
  ConflitsQt(Bureau& bureau, CurseurQt& curseur) : bureau_(bureau), curseur_(curseur) {}
  screen::Tranche Trancher(const screen::Conflit& conflit) override;

 private:
  Bureau& bureau_;
  CurseurQt& curseur_;
};

}  // namespace hote
