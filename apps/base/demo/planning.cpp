#include "demo/planning.h"

#include <algorithm>

#include "data/layouts/contrat.h"
#include "data/layouts/fichiers.h"
#include "data/layouts/voisins.h"
#include "demo/generateur.h"

namespace demo {
namespace {

using data::CItem;
namespace fichier = data::fichier;

// Start and end of the rounds of a day, in hundredths of an hour.
struct Plage {
  const char* debut;
  const char* fin;
};
constexpr Plage Plages[] = {{"0750", "0900"}, {"0925", "1075"}, {"1100", "1250"},
                            {"1350", "1500"}, {"1550", "1675"}, {"1750", "1900"}};
constexpr long NombrePlages = static_cast<long>(std::size(Plages));

// The planning keeps what ended less than this many days ago.
constexpr long Recent = 60;

// First day from `debut` on that falls on that weekday.
long prochain(long debut, int jourSemaine) {
  return debut + (jourSemaine - data::jourDeSemaine(debut) + 7) % 7;
}

}  // namespace

Planning::Planning(const Parametres& parametres, const BaseAidant& base)
    : parametres_(parametres),
      base_(base),
      alea_(parametres.graine, Domaine::Planning, static_cast<std::uint64_t>(base.numero)) {
  if (base.absenceDebut != 0) {
    articles_[std::string(fichier::ABSENCESAIDANT)][base.cleAbsence()].Set(
        data::AbsencesAidant::DateFin, texte(base.absenceFin));
  }
  ajouterIndisponibilites();
}

void Planning::ajouterIndisponibilites() {
  namespace T = data::TpsAidantIndispo;
  if (!alea_.surCent(15)) return;
  for (long i = alea_.entre(1, 2); i > 0; --i) {
    const long debut = alea_.entre(parametres_.aujourdhui - 500, parametres_.aujourdhui);
    const Plage& plage = alea_.parmi(Plages);
    CItem item;
    if (alea_.surCent(50)) item.Set(T::DateFin, texte(debut + alea_.entre(30, 800)));
    item.Set(T::HeureFin, plage.fin);
    item.Set(T::Comptee, alea_.surCent(70) ? "O" : "");
    articles_[std::string(fichier::TPSAIDANTINDISPO)]
             [base_.code + chiffres(debut, 5) + texte(alea_.entre(0, 6)) + plage.debut] = item;
  }
}

void Planning::ajouterAbsence(const Contrat& contrat) {
  const PlanContrat& plan = contrat.plan;
  const long fin = plan.fin != 0 ? plan.fin : parametres_.aujourdhui + 60;
  if (fin - plan.debut < 120 || !alea_.surCent(35)) return;
  constexpr const char* Courtes[] = {"05", "05", "06", "18", "19", "21"};
  const long debut = alea_.entre(plan.debut + 60, fin - 30);
  CItem item;
  item.Set(data::AbsencesAidant::DateFin, texte(debut + alea_.entre(0, 25)));
  articles_[std::string(fichier::ABSENCESAIDANT)]
           [base_.code + alea_.parmi(Courtes) + chiffres(debut, 5)] = item;
}

void Planning::ajouter(const Contrat& contrat) {
  namespace C = data::Contrat;
  const PlanContrat& plan = contrat.plan;
  if (plan.annule) return;
  ajouterAbsence(contrat);
  if (alea_.surCent(2)) {
    articles_[std::string(fichier::OPPOSITION)][contrat.cle + "01"].Set(data::Opposition::Libelle,
                                                                        "Avis à tiers détenteur");
  }
  const bool close = plan.fin != 0;
  if (close && plan.type == 'D' && plan.fin > parametres_.aujourdhui - 400 && alea_.surCent(25)) {
    const std::string portee =
        plan.particulier ? std::string(contrat.codeEntite()) + "M" : contrat.employeur().substr(3);
    articles_[std::string(fichier::TPSSANSCONTRAT)][base_.code + portee];
  }
  if (contrat.administratif || (close && plan.fin < parametres_.aujourdhui - Recent)) return;
  const long dernierJour = close ? std::stol(contrat.item(C::DernierJourTravaille)) : 0;
  for (long i = alea_.entre(1, 4); i > 0; --i) ajouterIntervention(contrat, dernierJour);
  if (alea_.surCent(10) && plan.debut <= parametres_.aujourdhui) {
    const long limite =
        close ? std::min(dernierJour, parametres_.aujourdhui) : parametres_.aujourdhui;
    const long jour = alea_.entre(std::max(plan.debut, limite - 60), limite);
    articles_[std::string(fichier::TPSMOI)][base_.code + chiffres(jour, 5) + "01"].Set(
        data::TpsMoi::Contrat, contrat.cle);
  }
}

// `dernierJour`: last day worked of a closed contract, else 0.
void Planning::ajouterIntervention(const Contrat& contrat, long dernierJour) {
  namespace T = data::TpsDetailsInterv;
  const PlanContrat& plan = contrat.plan;
  const long jour = alea_.surCent(85) ? alea_.entre(0, 4) : alea_.entre(5, 6);
  const long plage = alea_.entre(0, NombrePlages - 1);
  if (!plages_.insert(jour * 10 + plage).second) return;
  int aide = plan.employeur;
  if (!plan.particulier) {
    aide = base_.numero + static_cast<int>(alea_.entre(0, VoisinageAides - 2));
    if (baseAide(parametres_, aide).parti) ++aide;
  }
  const long limite = std::max(plan.debut, parametres_.aujourdhui - 5);
  const long debut =
      alea_.entre(plan.debut, dernierJour != 0 ? std::min(dernierJour, limite) : limite);
  const long nombre = static_cast<long>(contrat.activites.size());
  const std::string& activite =
      contrat.activites[static_cast<std::size_t>(alea_.entre(0, nombre - 1))];
  const Plage& heures = Plages[plage];
  const std::string cle =
      base_.code + codePersonne(aide) + chiffres(debut, 5) + activite + texte(jour) + heures.debut;
  CItem item;
  long fin = dernierJour;
  if (fin == 0 && plan.type == 'D') fin = std::max(debut, plan.finPresumee);
  if (fin == 0 && alea_.surCent(15)) fin = debut + alea_.entre(20, 400);
  if (fin != 0) item.Set(T::DateFin, texte(fin));
  item.Set(T::HeureFin, heures.fin);
  articles_[std::string(fichier::TPSDETAILSINTERV)][cle] = item;
  if (alea_.surCent(30)) {
    ajouterException(cle, debut, fin != 0 ? fin : parametres_.aujourdhui + 30,
                     static_cast<int>(jour), heures.debut);
  }
}

// One of the days of an intervention, done otherwise or by somebody else.
void Planning::ajouterException(const std::string& intervention, long debut, long fin, int jour,
                                const std::string& heure) {
  const long premier = prochain(debut, jour);
  if (premier > fin) return;
  const long date = premier + 7 * alea_.entre(0, (fin - premier) / 7);
  articles_[std::string(fichier::TPSEXCEPTIONS)][base_.code + chiffres(date, 5) + heure].Set(
      data::TpsExceptions::Intervention, intervention);
}

void Planning::ecrire(Sortie& sortie) {
  for (const auto& [nom, articles] : articles_) {
    for (const auto& [cle, item] : articles) sortie.ecrire(nom, cle, item);
  }
}

}  // namespace demo
