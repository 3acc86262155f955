#include "demo/calendrier.h"

#include <algorithm>

#include "data/jour.h"

namespace demo {
namespace {

// Easter Sunday by the Gregorian computus.
long paques(int an) {
  const int a = an % 19;
  const int b = an / 100;
  const int c = an % 100;
  const int epacte = (19 * a + b - b / 4 - (b - (b + 8) / 25 + 1) / 3 + 15) % 30;
  const int l = (32 + 2 * (b % 4) + 2 * (c / 4) - epacte - c % 4) % 7;
  const int m = (a + 11 * epacte + 22 * l) / 451;
  const int rang = epacte + l - 7 * m + 114;
  return data::jourDe({an, rang / 31, rang % 31 + 1}).value();
}

bool ferie(long jour, long paques) {
  constexpr int Fixes[] = {101, 501, 508, 714, 815, 1101, 1111, 1225};  // month and day
  constexpr int ApresPaques[] = {1, 39, 50};
  const data::Date date = data::dateDe(jour);
  return std::find(std::begin(Fixes), std::end(Fixes), date.mois * 100 + date.jour) !=
             std::end(Fixes) ||
         std::find(std::begin(ApresPaques), std::end(ApresPaques), jour - paques) !=
             std::end(ApresPaques);
}

}  // namespace

JoursDuMois joursDuMois(const std::string& periode) {
  const long pascal = paques(std::stoi(periode) / 100);
  JoursDuMois compte;
  for (long jour = data::premierJour(periode).value(); jour <= data::dernierJour(periode); ++jour) {
    ++compte.total;
    if (data::jourDeSemaine(jour) >= 5) {
      ++compte.samediDimanche;
    } else if (ferie(jour, pascal)) {
      ++compte.feries;
    }
  }
  return compte;
}

long moisPlusTard(long jour, int mois) {
  const data::Date date = data::dateDe(jour);
  const std::string cible = data::decalePeriode(data::periodeDe(jour), mois);
  const long premier = data::premierJour(cible).value();
  return std::min(premier + date.jour - 1, data::dernierJour(cible).value());
}

}  // namespace demo
