#include "rules/durees.h"

#include <algorithm>
#include <vector>

#include "data/jour.h"

namespace rules {

namespace {

// The same day of a later month, its last one where it has no such day.
long apresMois(const data::Date& depuis, int mois) {
  const int rang = depuis.annee * 12 + depuis.mois - 1 + mois;
  const int annee = rang / 12;
  const int duMois = rang % 12 + 1;
  const int jour = std::min(depuis.jour, data::joursDuMois(annee, duMois));
  return data::jourDe({annee, duMois, jour}).value_or(0);
}

std::string compte(long nombre, const char* un, const char* plusieurs) {
  return std::to_string(nombre) + " " + (nombre > 1 ? plusieurs : un);
}

}  // namespace

std::string dureeEnClair(long debut, long fin) {
  if (fin < debut) return {};
  const data::Date depuis = data::dateDe(debut);
  const data::Date jusque = data::dateDe(fin + 1);
  int mois = (jusque.annee - depuis.annee) * 12 + jusque.mois - depuis.mois;
  if (apresMois(depuis, mois) > fin + 1) --mois;
  const long jours = fin + 1 - apresMois(depuis, mois);
  std::vector<std::string> parties;
  if (mois >= 12) parties.push_back(compte(mois / 12, "an", "ans"));
  if (mois % 12 > 0) parties.push_back(compte(mois % 12, "mois", "mois"));
  if (jours > 0) parties.push_back(compte(jours, "jour", "jours"));
  std::string texte;
  for (std::size_t i = 0; i < parties.size(); ++i) {
    if (i > 0) texte += i + 1 == parties.size() ? " et " : ", ";
    texte += parties[i];
  }
  return texte;
}

}  // namespace rules
