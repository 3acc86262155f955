#pragma once
// A picture that moves while it is active, to show that work is under way. It takes no user act.

#include "screen/field.h"

namespace screen {

class Animation : public Image {
 public:
  using Image::Image;

  bool Active() const { return active_; }
  void Demarrer() { active_ = true; }
  void Arreter() { active_ = false; }

 private:
  bool active_ = false;
};

}  // namespace screen
