#include "demo/generateur.h"

#include <map>
#include <stdexcept>

#include "data/layouts/fichiers.h"
#include "data/layouts/voisins.h"
#include "demo/contrat.h"
#include "demo/planning.h"
#include "demo/referentiel.h"

namespace demo {
namespace {

using data::CItem;
namespace fichier = data::fichier;

// A contract that has just been closed has its end to declare; one that an open-ended contract
// follows has not.
void ecrireEvenement(Sortie& sortie, Contrat& contrat) {
  const PlanContrat& plan = contrat.plan;
  if (plan.particulier || plan.annule || plan.fin == 0 || plan.suivant != 0) return;
  if (plan.fin < contrat.parametres.aujourdhui - 90) return;
  CItem item;
  item.Set(data::DsnEvenement::EtatInitial, contrat.alea.surCent(50) ? "01" : "");
  item.Set(data::DsnEvenement::FinContrat, "1");
  sortie.ecrire(fichier::DSNEVENEMENT, contrat.cle, item);
}

// The absence that a provident contract compensates, month by month.
void ecrireIndemnites(Sortie& sortie, const Contrat& contrat) {
  const BaseAidant& base = contrat.base;
  const PlanContrat& plan = contrat.plan;
  if (base.absenceDebut == 0 || contrat.prevoyance.empty() || plan.particulier || plan.annule ||
      plan.type != 'I' || plan.debut != base.cdiDebut) {
    return;
  }
  CItem item;
  std::string periode = data::periodeDe(base.absenceDebut);
  const std::string fin =
      std::min(data::periodeDe(base.absenceFin), contrat.parametres.derniereTraitee);
  for (int rang = 1; periode <= fin; ++rang, periode = data::decalePeriode(periode, 1)) {
    item.Set(data::HistorIndem::Periodes, rang, periode);
  }
  if (!item.Vide()) sortie.ecrire(fichier::HISTORINDEM, contrat.prevoyance + base.code, item);
}

// What is kept by carer: private employers, missions, the follow-up to refresh.
void ecrireAnnexes(Sortie& sortie, const BaseAidant& base, const Carriere& carriere, Alea& alea) {
  std::map<std::string, CItem> inverses;
  CItem missions;
  bool suivi = false;
  int rang = 0;
  for (const PlanContrat& plan : carriere.contrats) {
    if (plan.annule) continue;
    if (plan.particulier) {
      CItem& inverse = inverses[base.code + codePersonne(plan.employeur)];
      inverse.Set(data::ContratInv::Numeros, inverse.DCount(data::ContratInv::Numeros) + 1,
                  chiffres(plan.numero, 3));
      continue;
    }
    suivi = true;
    if (plan.type != 'I') continue;
    missions.Set(data::MissionsAidant::Associations, ++rang, Entites[plan.entite].code);
    if (plan.fin != 0) missions.Set(data::MissionsAidant::Fins, rang, texte(plan.fin));
  }
  for (const auto& [cle, inverse] : inverses) sortie.ecrire(fichier::CONTRATINV, cle, inverse);
  if (!missions.Vide()) sortie.ecrire(fichier::MISSIONSAIDANT, base.code, missions);
  if (suivi && alea.surCent(15)) sortie.marquer(fichier::ACTUSUIVICONTRAT, base.code);
}

void ecrireTout(Sortie& sortie, const Parametres& parametres, int numero) {
  const BaseAidant base = baseAidant(parametres, numero);
  const Carriere carriere = construireCarriere(parametres, base);
  ecrireAidant(sortie, parametres, base, carriere.numeros);
  Planning planning(parametres, base, carriere.numeros);
  for (const PlanContrat& plan : carriere.contrats) {
    Contrat contrat(parametres, base, plan);
    ecrireContrat(sortie, contrat);
    ecrireEvenement(sortie, contrat);
    ecrireIndemnites(sortie, contrat);
    planning.ajouter(contrat);
  }
  planning.ecrire(sortie);
  Alea alea(parametres.graine, Domaine::Etat, static_cast<std::uint64_t>(numero), 1);
  ecrireAnnexes(sortie, base, carriere, alea);
}

// Each index file made on the way is announced, so that the suite's other programs find it.
void ecrireLiens(Sortie& sortie) {
  for (const std::string& nom : sortie.index()) {
    const bool avenant = nom.starts_with(fichier::PrefixeAvenants);
    sortie.marquer(avenant ? fichier::LIENAVENANT : fichier::LIENCONTRAT, nom);
  }
}

// How many persons go by between two calls of the progress.
constexpr long Pas = 200;

}  // namespace

std::string codePersonne(int numero) {
  constexpr int Chiffres = 100'000;
  constexpr int ParLettre = 10'000;
  if (numero < Chiffres) return chiffres(numero, 5);
  const int rang = numero - Chiffres;
  return static_cast<char>('A' + rang / ParLettre) + chiffres(rang % ParLettre, 4);
}

void genererDemo(data::Storage& storage, const OptionsDemo& options, const Progres& progres) {
  if (options.aidants < 1 || options.aidants > AidantsMax) {
    throw std::invalid_argument("Le nombre d'aidants doit être compris entre 1 et " +
                                std::to_string(AidantsMax) + ".");
  }
  const Parametres parametres(options.graine, options.aujourdhui);
  Sortie sortie(storage);
  const int aides = options.aidants + VoisinageAides;
  const long total = long{options.aidants} + aides;
  long faits = 0;
  const auto avancer = [&] {
    if ((++faits % Pas == 0 || faits == total) && progres) progres(faits, total);
  };
  ecrireReferentiel(sortie, parametres);
  for (int numero = 1; numero <= aides; ++numero) {
    ecrireAide(sortie, parametres, baseAide(parametres, numero));
    avancer();
  }
  for (int numero = 1; numero <= options.aidants; ++numero) {
    ecrireTout(sortie, parametres, numero);
    avancer();
  }
  ecrireLiens(sortie);
}

}  // namespace demo
