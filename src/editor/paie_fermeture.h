#pragma once
// What is closed on the whole screen while a split of activities is being entered, so that it is
// finished first.

#include <vector>

#include "screen/field.h"

namespace editor {

class Frm_ElementsContrat;

class PaieFermeture {
 public:
  explicit PaieFermeture(Frm_ElementsContrat& editeur) : editeur_(editeur) {}

  // Opens again, or closes, all that is no part of the entry. What was closed before stays closed.
  void GriserSaufActivite(bool actif);

 private:
  Frm_ElementsContrat& editeur_;
  // A split is being entered; what was closed already when it began.
  bool grise_ = false;
  std::vector<const screen::Field*> fermes_;
};

}  // namespace editor
