#include "rules/suivi_annuel_mois.h"

#include "data/jour.h"
#include "data/layouts/contrat.h"

namespace rules {

namespace {

constexpr const char* Decembre = "12";

bool estPeriode(const std::string& texte) {
  return data::premierJour(texte).has_value();
}

int annee(const std::string& periode) {
  return estPeriode(periode) ? std::stoi(periode.substr(0, 4)) : 0;
}

std::string mois(const std::string& periode) {
  return periode.substr(4);
}

std::string periode(int annee, const std::string& mois) {
  const std::string chiffres = std::to_string(annee);
  return std::string(chiffres.size() < 4 ? 4 - chiffres.size() : 0, '0') + chiffres + mois;
}

std::string cloture(const std::string& mois) {
  return estPeriode("2000" + mois) ? mois : Decembre;
}

std::vector<std::string> suite(std::string premier, const std::string& dernier) {
  std::vector<std::string> periodes;
  for (; estPeriode(premier) && premier <= dernier; premier = data::decalePeriode(premier, 1)) {
    periodes.push_back(premier);
  }
  return periodes;
}

}  // namespace

std::vector<std::string> moisDeLAnnee(int annee) {
  if (!estPeriode(periode(annee, Decembre))) return {};
  std::vector<std::string> mois;
  for (const char* const chiffres :
       {"01", "02", "03", "04", "05", "06", "07", "08", "09", "10", "11", "12"}) {
    mois.push_back(periode(annee, chiffres));
  }
  return mois;
}

std::vector<std::string> moisOfferts(const ExerciceSuivi& exercice) {
  const std::string& traitee = exercice.periodeTraitee;
  const bool tournee = estPeriode(traitee) && mois(traitee) == Decembre;
  const int an = tournee ? annee(traitee) + 1 : annee(exercice.periodePaie);
  if (exercice.parCloture) {
    const std::string fin = periode(an, cloture(exercice.moisCloture));
    const bool close = exercice.periodePaie > fin;
    return suite(data::decalePeriode(fin, close ? 1 : -11),
                 data::decalePeriode(exercice.periodePaie, 1));
  }
  if (!exercice.decembre) return moisDeLAnnee(an);
  return suite(periode(an - 1, Decembre), periode(an, "11"));
}

int anneeSuivi(const data::CItem& contrat, const std::string& moisCloture,
               const std::string& periodePaie) {
  const std::string traitee = contrat(data::Contrat::PeriodeTraitee);
  if (estPeriode(traitee)) {
    return annee(traitee) + (mois(traitee) < cloture(moisCloture) ? 0 : 1);
  }
  const std::string calculee = contrat(data::Contrat::DernierCalcul);
  return annee(estPeriode(calculee) ? calculee : periodePaie);
}

}  // namespace rules
