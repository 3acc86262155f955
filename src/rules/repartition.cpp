#include "rules/repartition.h"

#include <algorithm>

#include "data/jour.h"
#include "data/layouts/contrat.h"
#include "data/nombre.h"

namespace rules {

namespace {

namespace C = data::Contrat;
using Parts = Repartition::Parts;

// Decimals of a share on file.
constexpr int SansDecimale = 0;
// Wrong records hold anything: more than this counts as this, so that a sum stays a number.
constexpr long long PartAberrante = 1'000'000'000;

// The pieces between the separators; none for the empty text.
std::vector<std::string_view> couper(std::string_view texte, char separateur) {
  std::vector<std::string_view> morceaux;
  if (texte.empty()) return morceaux;
  for (std::size_t debut = 0;;) {
    const std::size_t fin = texte.find(separateur, debut);
    morceaux.push_back(texte.substr(debut, fin - debut));
    if (fin == std::string_view::npos) return morceaux;
    debut = fin + 1;
  }
}

// The piece at that place; "" beyond the end, where an item cuts what is empty.
std::string_view en(const std::vector<std::string_view>& morceaux, std::size_t rang) {
  return rang < morceaux.size() ? morceaux[rang] : std::string_view();
}

Parts lire(std::string_view codes, std::string_view parts, char separateur, bool jusquAuVide) {
  const auto lesCodes = couper(codes, separateur);
  const auto lesParts = couper(parts, separateur);
  Parts resultat;
  for (std::size_t i = 0; i < lesCodes.size(); ++i) {
    if (jusquAuVide && lesCodes[i].empty()) break;
    resultat.push_back({std::string(lesCodes[i]), std::string(en(lesParts, i))});
  }
  return resultat;
}

std::string joindre(const Parts& parts, std::string Repartition::Part::*champ, char separateur) {
  std::string texte;
  for (std::size_t i = 0; i < parts.size(); ++i) {
    if (i > 0) texte += separateur;
    texte += parts[i].*champ;
  }
  return texte;
}

bool entiere(const Parts& parts) {
  return Repartition::Total(parts) == Repartition::Tout;
}

}  // namespace

long long Repartition::Total(const Parts& parts) {
  long long total = 0;
  for (const Part& part : parts) {
    const long long lue = data::enUnites(part.part, SansDecimale).value_or(0);
    total += std::clamp(lue, -PartAberrante, PartAberrante);
  }
  return total;
}

Repartition Repartition::DuContrat(const data::CItem& contrat) {
  Repartition r;
  if (!contrat.Vue(C::Activites).empty()) {
    r.tranches_.front() = {
        contrat(C::PeriodeEffet),
        lire(contrat.Vue(C::Activites), contrat.Vue(C::PartsActivites), data::SepValeur, false)};
  }
  const auto periodes = couper(contrat.Vue(C::PeriodesEffetAnterieures), data::SepValeur);
  const auto codes = couper(contrat.Vue(C::ActivitesAnterieures), data::SepValeur);
  const auto parts = couper(contrat.Vue(C::PartsAnterieures), data::SepValeur);
  for (std::size_t k = 0; k < periodes.size(); ++k) {
    r.tranches_.push_back(
        {std::string(periodes[k]), lire(en(codes, k), en(parts, k), data::SepSousValeur, true)});
  }
  return r;
}

void Repartition::Ecrire(data::CItem& contrat) const {
  const Tranche& derniere = tranches_.front();
  contrat.Set(C::Activites, joindre(derniere.parts, &Part::activite, data::SepValeur));
  contrat.Set(C::PartsActivites, joindre(derniere.parts, &Part::part, data::SepValeur));
  contrat.Set(C::PeriodeEffet, derniere.periode);
  std::string periodes;
  std::string codes;
  std::string parts;
  for (std::size_t k = 1; k < tranches_.size(); ++k) {
    if (k > 1) {
      for (std::string* const texte : {&periodes, &codes, &parts}) *texte += data::SepValeur;
    }
    periodes += tranches_[k].periode;
    codes += joindre(tranches_[k].parts, &Part::activite, data::SepSousValeur);
    parts += joindre(tranches_[k].parts, &Part::part, data::SepSousValeur);
  }
  contrat.Set(C::PeriodesEffetAnterieures, periodes);
  contrat.Set(C::ActivitesAnterieures, codes);
  contrat.Set(C::PartsAnterieures, parts);
}

void Repartition::Effacer(data::CItem& contrat) {
  contrat.Set(C::PartsActivites, "");
  contrat.Set(C::PeriodeEffet, "");
  for (const int a : C::GroupePeriodesEffet) contrat.Set(a, "");
}

std::vector<std::string> Repartition::Anterieures() const {
  std::vector<std::string> periodes;
  for (std::size_t k = 1; k < tranches_.size(); ++k) periodes.push_back(tranches_[k].periode);
  return periodes;
}

std::size_t Repartition::Rang(std::string_view periode) const {
  std::size_t k = 0;
  while (k < tranches_.size() && (periode.empty() || tranches_[k].periode != periode)) ++k;
  return k;
}

Parts Repartition::A(std::string_view periode) const {
  const std::size_t k = Rang(periode);
  return k < tranches_.size() ? tranches_[k].parts : Parts();
}

bool Repartition::Remplacer(std::string_view periode, Parts parts) {
  const std::size_t k = Rang(periode);
  if (k == tranches_.size() || !entiere(parts)) return false;
  tranches_[k].parts = std::move(parts);
  return true;
}

bool Repartition::Ajouter(std::string_view periode, Parts parts) {
  if (!data::premierJour(periode) || Connait(periode) || !entiere(parts)) return false;
  Tranche nouvelle{std::string(periode), std::move(parts)};
  if (periode > Derniere()) {
    // A split without a period was in force at no time that could be told: it is replaced.
    if (Derniere().empty()) tranches_.erase(tranches_.begin());
    tranches_.insert(tranches_.begin(), std::move(nouvelle));
    return true;
  }
  const auto suivante =
      std::find_if(tranches_.begin() + 1, tranches_.end(),
                   [&](const Tranche& tranche) { return tranche.periode < periode; });
  if (suivante == tranches_.end()) return false;
  tranches_.insert(suivante, std::move(nouvelle));
  return true;
}

}  // namespace rules
