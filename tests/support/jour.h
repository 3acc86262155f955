#pragma once
// A day as tables and scenarios write it, "22/11/2026", as the number that the records hold.

#include <string>

#include "data/jour.h"

namespace support {

inline long jour(const std::string& affichee) {
  return data::lireDateAffichee(affichee).value();
}

}  // namespace support
