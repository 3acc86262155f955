#include "data/jour.h"

#include <algorithm>
#include <vector>

#include "data/texte.h"

namespace data {

namespace {

constexpr int premiereAnnee = 1;
constexpr int derniereAnnee = 9999;

// Bounds of a year that a clerk can mean, and where two digits change century.
constexpr int premiereAnneeSaisie = 1900;
constexpr int derniereAnneeSaisie = 2199;
constexpr int premiereDuSieclePasse = 50;

constexpr int joursParMois[] = {31, 28, 31, 30, 31, 30, 31, 31, 30, 31, 30, 31};

constexpr const char* nomsDesMois[] = {"janvier",   "février", "mars",     "avril",
                                       "mai",       "juin",    "juillet",  "août",
                                       "septembre", "octobre", "novembre", "décembre"};

// Days from 01/01/0001 to the first day of a year.
constexpr long daysBefore(int annee) {
  const long passees = annee - 1;
  return passees * 365 + passees / 4 - passees / 100 + passees / 400;
}

// Days from 01/01/0001 to day 0.
constexpr long origine = daysBefore(1968) - 1;

bool onlyDigits(std::string_view texte) {
  return !texte.empty() && std::all_of(texte.begin(), texte.end(), estChiffre);
}

// The number of a text of at most four digits; -1 for any other text.
int smallNumber(std::string_view texte) {
  if (!onlyDigits(texte) || texte.size() > 4) return -1;
  int nombre = 0;
  for (const char c : texte) nombre = nombre * 10 + (c - '0');
  return nombre;
}

std::string padded(int nombre, int largeur) {
  return completeAGauche(std::to_string(nombre), largeur, '0');
}

struct Periode {
  int annee;
  int mois;
};

std::optional<Periode> readPeriod(std::string_view texte) {
  if (texte.size() != 6 || !onlyDigits(texte)) return std::nullopt;
  const Periode p{smallNumber(texte.substr(0, 4)), smallNumber(texte.substr(4))};
  if (p.annee < premiereAnnee || p.mois < 1 || p.mois > 12) return std::nullopt;
  return p;
}

std::string periodText(const Periode& p) {
  return padded(p.annee, 4) + padded(p.mois, 2);
}

// Day, month and year as typed, still texts; empty when the text has not that shape.
std::vector<std::string> typedParts(std::string_view texte) {
  std::string saisie = sansBlancs(texte);
  if (onlyDigits(saisie)) {
    if (saisie.size() == 4) return {saisie.substr(0, 2), saisie.substr(2)};
    if (saisie.size() != 6 && saisie.size() != 8) return {};
    return {saisie.substr(0, 2), saisie.substr(2, 2), saisie.substr(4)};
  }
  // A separator parts two pieces; two in a row would leave a piece empty.
  std::vector<std::string> parties(1);
  bool apresSeparateur = false;
  for (const char c : saisie) {
    const bool separateur = c == '/' || c == '-' || c == '.';
    const bool enTete = parties.size() == 1 && parties.back().empty();
    if (separateur && (apresSeparateur || enTete)) return {};
    if (separateur || c == ' ') {
      apresSeparateur = apresSeparateur || separateur;
      if (!parties.back().empty()) parties.emplace_back();
    } else {
      apresSeparateur = false;
      parties.back() += c;
    }
  }
  return parties;
}

}  // namespace

bool bissextile(int annee) {
  return annee % 4 == 0 && (annee % 100 != 0 || annee % 400 == 0);
}

int joursDuMois(int annee, int mois) {
  if (mois < 1 || mois > 12) return 0;
  return joursParMois[mois - 1] + (mois == 2 && bissextile(annee) ? 1 : 0);
}

std::optional<long> jourDe(const Date& date) {
  if (date.annee < premiereAnnee || date.annee > derniereAnnee) return std::nullopt;
  if (date.jour < 1 || date.jour > joursDuMois(date.annee, date.mois)) return std::nullopt;
  long jour = daysBefore(date.annee) - origine;
  for (int mois = 1; mois < date.mois; ++mois) jour += joursDuMois(date.annee, mois);
  return jour + date.jour - 1;
}

Date dateDe(long jour) {
  const long rang =
      std::clamp(jour, -origine, daysBefore(derniereAnnee + 1) - 1 - origine) + origine;
  // A year has at least 365 days: the estimate is never too early, and late by few years only.
  int annee = static_cast<int>(std::min<long>(rang / 365 + 1, derniereAnnee));
  while (daysBefore(annee) > rang) --annee;
  int reste = static_cast<int>(rang - daysBefore(annee));
  int mois = 1;
  while (reste >= joursDuMois(annee, mois)) reste -= joursDuMois(annee, mois++);
  return {annee, mois, reste + 1};
}

int jourDeSemaine(long jour) {
  // Day 0 was a Sunday.
  return static_cast<int>((jour % 7 + 7 + 6) % 7);
}

std::string dateAffichee(long jour) {
  const Date d = dateDe(jour);
  if (jourDe(d) != jour) return {};
  return padded(d.jour, 2) + "/" + padded(d.mois, 2) + "/" + padded(d.annee, 4);
}

std::optional<long> lireDateAffichee(std::string_view texte) {
  if (texte.size() != 10 || texte[2] != '/' || texte[5] != '/') return std::nullopt;
  return jourDe({smallNumber(texte.substr(6)), smallNumber(texte.substr(3, 2)),
                 smallNumber(texte.substr(0, 2))});
}

std::optional<long> lireDateSaisie(std::string_view texte, int anneeCourante) {
  std::vector<std::string> parties = typedParts(texte);
  if (parties.size() == 2) parties.push_back(std::to_string(anneeCourante));
  // As other programs write it: AAAA-MM-JJ.
  if (parties.size() == 3 && parties[0].size() == 4) std::swap(parties[0], parties[2]);
  if (parties.size() != 3 || parties[0].size() > 2 || parties[1].size() > 2) return std::nullopt;
  const std::string& anneeSaisie = parties[2];
  if (anneeSaisie.size() != 2 && anneeSaisie.size() != 4) return std::nullopt;
  int annee = smallNumber(anneeSaisie);
  if (annee < 0) return std::nullopt;
  if (anneeSaisie.size() == 2) annee += annee < premiereDuSieclePasse ? 2000 : 1900;
  if (annee < premiereAnneeSaisie || annee > derniereAnneeSaisie) return std::nullopt;
  return jourDe({annee, smallNumber(parties[1]), smallNumber(parties[0])});
}

std::optional<long> premierJour(std::string_view periode) {
  const auto p = readPeriod(periode);
  if (!p) return std::nullopt;
  return jourDe({p->annee, p->mois, 1});
}

std::optional<long> dernierJour(std::string_view periode) {
  const auto p = readPeriod(periode);
  if (!p) return std::nullopt;
  return jourDe({p->annee, p->mois, joursDuMois(p->annee, p->mois)});
}

std::string decalePeriode(std::string_view periode, int mois) {
  const auto p = readPeriod(periode);
  if (!p) return {};
  const long rang = p->annee * 12L + p->mois - 1 + mois;
  const long annee = rang / 12;
  if (rang < 0 || annee < premiereAnnee || annee > derniereAnnee) return {};
  return periodText({static_cast<int>(annee), static_cast<int>(rang % 12) + 1});
}

std::string periodeDe(long jour) {
  const Date d = dateDe(jour);
  return periodText({d.annee, d.mois});
}

std::string moisAnnee(std::string_view periode) {
  const auto p = readPeriod(periode);
  if (!p) return {};
  return std::string(nomsDesMois[p->mois - 1]) + " " + std::to_string(p->annee);
}

}  // namespace data
