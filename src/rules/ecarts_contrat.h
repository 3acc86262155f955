#pragma once
// Where two versions of a contract differ, for a clerk: somebody else has saved one while the other
// was being typed. Captions are French, values in the form in which the screens show them.

#include <string>
#include <string_view>
#include <vector>

#include "data/citem.h"
#include "data/lib.h"
#include "screen/platform.h"

namespace rules {

// In the order of the attributes; of an attribute with several values, each value that differs is
// a line of its own and says which it is: the amendment, the month, or its rank.
std::vector<screen::Conflit::Ecart> ecartsContrat(const data::Lib& lib,
                                                  const data::CItem& surFichier,
                                                  const data::CItem& ici);

// "MARIE, le 22/11/2026 à 09:14" for the user and the time stamp "2026-11-22 09:14:31".
std::string auteurLisible(const std::string& utilisateur, std::string_view horodatage);

}  // namespace rules
