#include "rules/suivi_annuel_nombre.h"

#include <algorithm>
#include <array>
#include <charconv>
#include <optional>

#include "data/jour.h"
#include "data/texte.h"

namespace rules {

namespace {

using data::Monnaie;

// Of the decimals that were too many, whatever was asked for.
constexpr std::size_t DecimalesGardees = 2;
constexpr int Arrondi = 5;
// Hours or days. Beyond, the product of two numbers of a line could not be held.
constexpr std::int64_t Plafond = 1'000'000;

constexpr std::int64_t Unite = 10'000;  // ten-thousandths in a whole

// As a number turned to text has them: without the zeros at the end, "0" for none.
std::string decimalesDe(std::int64_t reste) {
  std::string decimales = std::to_string(Unite + reste).substr(1);
  while (decimales.size() > 1 && decimales.back() == '0') decimales.pop_back();
  return decimales;
}

// Nearly every number on file: digits alone, after a sign, and few of them.
std::optional<int> entierCourt(std::string_view texte) {
  constexpr std::size_t ChiffresMax = 8;
  int nombre = 0;
  const auto [fin, erreur] = std::from_chars(texte.data(), texte.data() + texte.size(), nombre);
  const bool entier = erreur == std::errc() && fin == texte.data() + texte.size();
  return entier && texte.size() <= ChiffresMax ? std::optional(nombre) : std::nullopt;
}

Monnaie bornee(Monnaie valeur) {
  return valeur.Absolue() > Monnaie::Entier(Plafond) ? Monnaie() : valeur;
}

Monnaie lue(Monnaie (*lire)(std::string_view), std::string_view texte) {
  try {
    return bornee(lire(texte));
  } catch (const data::NombreInvalide&) {
    return {};
  }
}

}  // namespace

std::string formeSuivi(Monnaie valeur, int avant, int apres) {
  const std::int64_t unites = valeur.Absolue().DixMilliemes();
  const std::string entier = std::to_string(unites / Unite);
  std::string decimales = decimalesDe(unites % Unite);
  if (decimales.size() > static_cast<std::size_t>(apres)) {
    decimales = std::to_string(std::stoi(decimales) + Arrondi).substr(0, DecimalesGardees);
  }
  const auto largeur = static_cast<std::size_t>(std::max(avant, 0));
  std::string forme(largeur - std::min(largeur, entier.size()), ' ');
  forme += entier;
  forme += ',';
  forme += decimales;
  if (decimales.size() < static_cast<std::size_t>(apres)) {
    forme.append(static_cast<std::size_t>(apres) - decimales.size(), '0');
  }
  if (valeur < Monnaie()) forme.front() = '-';
  return forme;
}

Monnaie lireForme(std::string_view texte) {
  return lue(Monnaie::Valeur, texte);
}

Monnaie entierLu(std::string_view texte) {
  if (const auto court = entierCourt(texte)) return bornee(Monnaie::Entier(*court));
  return lue(Monnaie::DeTexte, texte);
}

Monnaie centiemesLus(std::string_view texte) {
  static const Monnaie cent = Monnaie::Entier(100);
  if (const auto court = entierCourt(texte)) return bornee(Monnaie::Entier(*court) / cent);
  return lue(Monnaie::DeCentiemes, texte);
}

long long centiemes(Monnaie valeur) {
  const Monnaie cent = Monnaie::Entier(100);
  return (valeur * cent + Monnaie::DeTexte("0,5")).PartieEntiere().DixMilliemes() / 10000;
}

std::string centiemesEcrits(Monnaie valeur) {
  return std::to_string(centiemes(valeur));
}

std::string etiquetteMois(std::string_view periode) {
  // The calendar's names in capitals, made once: every row and every choice has one.
  static const auto noms = [] {
    std::array<std::string, 12> mois;
    std::string premier = "200001";
    for (std::string& nom : mois) {
      const std::string texte = data::moisAnnee(premier);
      nom = data::majuscules(texte.substr(0, texte.find(' ') + 1));
      premier = data::decalePeriode(premier, 1);
    }
    return mois;
  }();
  if (!data::premierJour(periode)) return std::string(periode);
  const auto mois = static_cast<std::size_t>((periode[4] - '0') * 10 + periode[5] - '1');
  return noms[mois] + std::to_string((periode[0] - '0') * 1000 + (periode[1] - '0') * 100 +
                                     (periode[2] - '0') * 10 + periode[3] - '0');
}

}  // namespace rules
