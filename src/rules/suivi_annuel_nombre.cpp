#include "rules/suivi_annuel_nombre.h"

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

Monnaie lue(Monnaie (*lire)(std::string_view), std::string_view texte) {
  try {
    const Monnaie valeur = lire(texte);
    return valeur.Absolue() > Monnaie::Entier(Plafond) ? Monnaie() : valeur;
  } catch (const data::NombreInvalide&) {
    return {};
  }
}

}  // namespace

std::string formeSuivi(Monnaie valeur, int avant, int apres) {
  const std::string texte = valeur.Absolue().TexteCourt();
  const auto virgule = texte.find(',');
  std::string decimales = virgule == std::string::npos ? "0" : texte.substr(virgule + 1);
  if (static_cast<int>(decimales.size()) > apres) {
    decimales = std::to_string(std::stoi(decimales) + Arrondi).substr(0, DecimalesGardees);
  }
  std::string forme = data::completeAGauche(texte.substr(0, virgule), avant) + "," +
                      data::completeADroite(decimales, apres, '0');
  if (valeur < Monnaie()) forme.front() = '-';
  return forme;
}

Monnaie lireForme(std::string_view texte) {
  return lue(Monnaie::Valeur, texte);
}

Monnaie entierLu(std::string_view texte) {
  return lue(Monnaie::DeTexte, texte);
}

Monnaie centiemesLus(std::string_view texte) {
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
  const std::string mois = data::moisAnnee(periode);
  return mois.empty() ? std::string(periode) : data::majuscules(mois);
}

}  // namespace rules
