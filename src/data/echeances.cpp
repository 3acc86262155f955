#include "data/echeances.h"

#include <algorithm>

#include "data/jour.h"
#include "data/layouts/contrat.h"
#include "data/nombre.h"
#include "data/select.h"

namespace data {

namespace {

namespace C = Contrat;

constexpr std::size_t Chiffres = 5;

// In the order of the attributes, as the reader wants them.
enum Lu : std::size_t {
  Type,
  Debut,
  Fin,
  Essai,
  FinPresumee,
  Annule,
  Modulation,
  MoisPrecedents,
  Mois,
  Declaration
};
const std::vector<int> Attributs{
    C::Type,   C::DateDebut,  C::DateFin,          C::PeriodeEssai, C::DateFinPresumee,
    C::Annule, C::Modulation, C::SuiviPrecPeriode, C::SuiviPeriode, C::DateDeclaration};

std::string_view derniereValeur(std::string_view attribut) {
  const auto place = attribut.rfind(SepValeur);
  return place == std::string_view::npos ? attribut : attribut.substr(place + 1);
}

// The latest month of a list of months.
std::string_view dernierMois(std::string_view mois) {
  std::string_view dernier;
  while (!mois.empty()) {
    const auto fin = mois.find(SepValeur);
    dernier = std::max(dernier, mois.substr(0, fin));
    mois.remove_prefix(fin == std::string_view::npos ? mois.size() : fin + 1);
  }
  return dernier;
}

// The day after twelve months without one followed: since the last, or since the start.
long suiviDu(long debut, std::string_view mois) {
  const auto suivi = dernierJour(mois);
  const Date depuis = dateDe(suivi ? *suivi + 1 : debut);
  const int jour = std::min(depuis.jour, joursDuMois(depuis.annee + 1, depuis.mois));
  return jourDe({depuis.annee + 1, depuis.mois, jour}).value_or(0);
}

std::string valeur(GenreEcheance genre, long jour) {
  std::string chiffres = std::to_string(std::clamp(jour, 0L, 99999L));
  chiffres.insert(0, Chiffres - chiffres.size(), '0');
  return static_cast<char>(genre) + chiffres;
}

}  // namespace

std::vector<JourEcheance> joursEcheances(std::string_view contrat) {
  AttributeReader lu(Attributs);
  lu.open(contrat);
  std::vector<JourEcheance> jours;
  const auto debut = static_cast<long>(entier(lu[Debut]));
  if (!lu[Annule].empty() || debut <= 0) return jours;
  const auto fin = static_cast<long>(entier(lu[Fin]));
  const auto presumee = static_cast<long>(entier(lu[FinPresumee]));
  if (lu[Type] == "D" && fin == 0 && presumee > 0) {
    jours.push_back({GenreEcheance::Fin, presumee});
  }
  const long finEssai = dernierJourEssai(debut, static_cast<long>(entier(lu[Essai])));
  if (finEssai >= debut && (fin == 0 || finEssai <= fin)) {
    jours.push_back({GenreEcheance::Essai, finEssai});
  }
  if (lu[Declaration].empty()) jours.push_back({GenreEcheance::Declaration, debut});
  if (lu[Type] == "I" && fin == 0 && !derniereValeur(lu[Modulation]).empty()) {
    jours.push_back({GenreEcheance::Suivi, suiviDu(debut, std::max(dernierMois(lu[MoisPrecedents]),
                                                                   dernierMois(lu[Mois])))});
  }
  return jours;
}

std::vector<std::string> valeursEcheances(std::string_view contrat) {
  std::vector<std::string> valeurs;
  for (const auto& [genre, jour] : joursEcheances(contrat)) valeurs.push_back(valeur(genre, jour));
  return valeurs;
}

KeyRange valeursEcheances(GenreEcheance genre, long debut, long fin) {
  return {valeur(genre, debut), valeur(genre, fin + 1), false};
}

}  // namespace data
