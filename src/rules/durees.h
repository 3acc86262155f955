#pragma once
// How long a contract lasts, in the words that a clerk counts in.

#include <string>

namespace rules {

// "2 mois", "1 an, 3 mois et 12 jours", "1 jour": both days count. "" when the end comes first.
std::string dureeEnClair(long debut, long fin);

}  // namespace rules
