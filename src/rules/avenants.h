#pragma once
// An amendment is one more value in the attributes of its group: value 1 is the contract as signed,
// value n + 1 the amendment n. These are the rules of that list, on the record itself.

#include <string>
#include <string_view>

#include "data/citem.h"

namespace rules {

// Where the start of the contract moved from and to, internal days; equal when it did not.
struct Debut {
  std::string avant;
  std::string apres;

  bool Deplace() const { return avant != apres; }
  // A date that was the old start moves along with it; any other one stays.
  std::string Suivre(const std::string& jour) const {
    return Deplace() && jour == avant ? apres : jour;
  }
};

// The number of the next amendment: two digits at least, "01" for a contract without any.
std::string numeroAvenant(const data::CItem& contrat);
// How many states the contract has had: 1 for one as signed, be its number on file or not.
int etatsContrat(const data::CItem& contrat);
// The place of the next amendment. A contract as signed that says so nowhere says it now: number
// "0", in effect from its start.
int ouvrirAvenant(data::CItem& contrat);
// The public-law attributes that end before the last amendment go on as they were.
void completerDroitPublic(data::CItem& contrat);

// What an effect date may not be, "" when it may: `avant` is the effect date of the amendment
// before, "" for none, all of them internal days. The same day passes.
std::string_view refusDateEffet(long effet, std::string_view avant, long debut);

}  // namespace rules
