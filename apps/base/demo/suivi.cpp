// The year's hours of modulated contracts: paid month by month in the record itself, and in
// effective working time in AIDANTTTE.

#include <algorithm>

#include "data/layouts/contrat.h"
#include "data/layouts/fichiers.h"
#include "data/layouts/voisins.h"
#include "demo/calendrier.h"
#include "demo/contrat.h"

namespace demo {
namespace {

namespace C = data::Contrat;

int annee(const std::string& periode) {
  return std::stoi(periode.substr(0, 4));
}

// First period of a follow-up year: January, or December before it for entities that count so.
std::string premierePeriode(const Contrat& contrat, int an) {
  const bool decembre = std::string_view(Entites[contrat.plan.entite].decembre) != "0";
  return decembre ? std::to_string(an - 1) + "12" : std::to_string(an) + "01";
}

int anneeSuivi(const Contrat& contrat, const std::string& periode) {
  const int an = annee(periode);
  return premierePeriode(contrat, an + 1) <= periode ? an + 1 : an;
}

// Months of that follow-up year that the contract was paid for.
std::vector<std::string> moisPayes(const Contrat& contrat, const std::string& premier) {
  std::vector<std::string> mois;
  const std::string debut = std::max(premier, data::periodeDe(contrat.plan.debut));
  const std::string dernier = std::min(data::decalePeriode(premier, 11), contrat.traitee);
  for (std::string periode = debut; periode <= dernier; periode = data::decalePeriode(periode, 1)) {
    mois.push_back(periode);
  }
  return mois;
}

// `groupe`: period, hours by contract, absences, real hours, difference, regularisation.
void setMois(Contrat& contrat, const int (&groupe)[6], const std::vector<std::string>& mois) {
  for (int rang = 1; const std::string& periode : mois) {
    const long absences = contrat.alea.surCent(15) ? contrat.alea.entre(1, 10) * 350 : 0;
    const long heures = std::max(contrat.heuresMois, absences);
    const long difference = contrat.alea.entre(-60, 80) * 25;
    const long reel = std::max(0L, heures - absences + difference);
    const long regul = contrat.alea.surCent(10) ? contrat.alea.entre(-8, 8) * 50 : 0;
    const long valeurs[] = {heures, absences, reel, reel - (heures - absences), regul};
    data::CItem& item = contrat.item;
    item.Set(groupe[0], rang, periode);
    for (int i = 0; i < 5; ++i) item.Set(groupe[i + 1], rang, texte(valeurs[i]));
    ++rang;
  }
}

// Half days come as 50: days are hundredths here.
void ecrireAnnee(Sortie& sortie, Contrat& contrat, int an) {
  namespace T = data::AidantTte;
  const std::vector<std::string> mois = moisPayes(contrat, std::to_string(an) + "01");
  if (mois.empty()) return;
  // A day of five in the week, 52 weeks in the year; even, so that half days stay whole numbers.
  const long parJour = contrat.heuresMois * 12 / 260 / 2 * 2;
  data::CItem item;
  long solde = 0;
  for (int rang = 1; const std::string& periode : mois) {
    const JoursDuMois jours = joursDuMois(periode);
    const long conges = contrat.alea.surCent(30) ? contrat.alea.entre(1, 10) * 50 : 0;
    const long maladie = contrat.alea.surCent(8) ? contrat.alea.entre(1, 4) * 100 : 0;
    const long potentiel =
        (jours.total - jours.samediDimanche - jours.feries) * 100L - conges - maladie;
    const long ecart = contrat.alea.entre(-20, 30) * 50;
    const long potentielHeures = parJour * potentiel / 100;
    const long effectif = std::max(0L, potentielHeures + ecart);
    const long regul = contrat.alea.surCent(10) ? contrat.alea.entre(-4, 4) * 100 : 0;
    solde += effectif - potentielHeures - regul;
    const long valeurs[] = {
        parJour, jours.total, jours.samediDimanche, jours.feries, conges, maladie, 0, effectif,
        regul,   solde};
    item.Set(T::Mois, rang, periode);
    for (int i = 0; i < 10; ++i) item.Set(T::HeuresParJour + i, rang, texte(valeurs[i]));
    ++rang;
  }
  sortie.ecrire(data::fichier::AIDANTTTE, contrat.cle + std::to_string(an), item);
}

}  // namespace

void setSuivi(Contrat& contrat) {
  if (!contrat.module || contrat.traitee.empty()) return;
  const int an = anneeSuivi(contrat, contrat.traitee);
  setMois(contrat, C::GroupeSuiviPrecedent, moisPayes(contrat, premierePeriode(contrat, an - 1)));
  setMois(contrat, C::GroupeSuivi, moisPayes(contrat, premierePeriode(contrat, an)));
}

void ecrireTempsEffectif(Sortie& sortie, Contrat& contrat) {
  if (!contrat.module || contrat.traitee.empty() || contrat.plan.particulier) return;
  if (!Conventions[contrat.plan.convention].modulable) return;
  const int an = annee(contrat.traitee);
  ecrireAnnee(sortie, contrat, an - 1);
  ecrireAnnee(sortie, contrat, an);
}

}  // namespace demo
