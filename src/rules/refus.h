#pragma once
// What a rule answers when it refuses: everything that the screen must show and do.

#include <string>

#include "screen/platform.h"

namespace rules {

struct Refus {
  std::string texte;
  screen::Icone icone = screen::Icone::Exclamation;
  // The field that takes the focus, by name; "" for none.
  std::string champ = {};
};

}  // namespace rules
