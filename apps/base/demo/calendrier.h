#pragma once
// What the demonstration data need of the calendar beside data/jour.h.

#include <string>

namespace demo {

struct JoursDuMois {
  int total = 0;
  int samediDimanche = 0;
  int feries = 0;  // public holidays that fall from Monday to Friday
};
JoursDuMois joursDuMois(const std::string& periode);

// The same day `mois` months later, or the last one that this month has.
long moisPlusTard(long jour, int mois);

}  // namespace demo
