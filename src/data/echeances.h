#pragma once
// The days of a contract that a clerk must not miss, as the record says them. The index of
// contracts by these days and the list of what is due both take them from here.
//
//   "E21570"    the index's value of a trial that ends on day 21570

#include <string>
#include <string_view>
#include <vector>

#include "data/layouts/recherches.h"
#include "data/storage.h"

namespace data {

enum class GenreEcheance : char {
  Fin = 'F',          // the presumed end of a fixed term that is still open
  Essai = 'E',        // the last day of the trial
  Declaration = 'D',  // the start, of a contract whose hiring declaration was not printed
  Suivi = 'S',        // a modulated contract without end has not been followed up for a year
};

struct JourEcheance {
  GenreEcheance genre = GenreEcheance::Fin;
  long jour = 0;
  bool operator==(const JourEcheance&) const = default;
};

// The last day of a trial of so many days: the first day of the contract counts.
constexpr long dernierJourEssai(long debut, long jours) {
  return debut + jours - 1;
}

// Of one contract, in the order of the kinds above; none of a cancelled one.
std::vector<JourEcheance> joursEcheances(std::string_view contrat);

// The index of contracts holds the values of valeursEcheances; its range of the days
// from `debut` to `fin`. Days have five digits from 1995 to 2241.
KeyRange valeursEcheances(GenreEcheance genre, long debut, long fin);

}  // namespace data
