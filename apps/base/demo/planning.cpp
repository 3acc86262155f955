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

std::vector<std::string> activitesCommunes(const Contrat& contrat, const BaseAide& aide) {
  std::vector<std::string> communes;
  for (std::string& code : aide.codesActivites()) {
    const auto& activites = contrat.activites;
    if (std::find(activites.begin(), activites.end(), code) != activites.end()) {
      communes.push_back(std::move(code));
    }
  }
  return communes;
}

}  // namespace

Planning::Planning(const Parametres& parametres, const BaseAidant& base,
                   const NumerosAidant& numeros)
    : parametres_(parametres),
      base_(base),
      alea_(parametres.graine, Domaine::Planning, static_cast<std::uint64_t>(base.numero)) {
  if (base.absenceDebut != 0) {
    ajouterAbsence(base.absenceType, base.absenceDebut, base.absenceFin);
  }
  if (numeros.deces == 0) ajouterIndisponibilites();
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

// Nobody is absent twice on a day: what would overlap is left out.
void Planning::ajouterAbsence(const std::string& type, long debut, long fin) {
  for (const auto& [premier, dernier] : absences_) {
    if (debut <= dernier && premier <= fin) return;
  }
  absences_.emplace_back(debut, fin);
  articles_[std::string(fichier::ABSENCESAIDANT)][base_.code + type + chiffres(debut, 5)].Set(
      data::AbsencesAidant::DateFin, texte(fin));
}

void Planning::tirerAbsence(const Contrat& contrat) {
  const PlanContrat& plan = contrat.plan;
  const long fin = plan.fin != 0 ? plan.fin : parametres_.aujourdhui + 60;
  if (fin - plan.debut < 120 || !alea_.surCent(35)) return;
  constexpr const char* Courtes[] = {"05", "05", "06", "18", "19", "21"};
  const long debut = alea_.entre(plan.debut + 60, fin - 30);
  const long duree = alea_.entre(0, 25);
  ajouterAbsence(alea_.parmi(Courtes), debut, debut + duree);
}

void Planning::ajouter(const Contrat& contrat) {
  namespace C = data::Contrat;
  const PlanContrat& plan = contrat.plan;
  if (plan.annule) return;
  tirerAbsence(contrat);
  if (alea_.surCent(2)) ajouterOpposition(contrat);
  if (contrat.nonVenu) return ajouterReste(contrat);
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
    ajouterMainDOeuvreIndirecte(contrat, alea_.entre(std::max(plan.debut, limite - 60), limite));
  }
}

// What the suite still holds of a contract whose carer never came, and what keeps it from being
// deleted; or nothing.
void Planning::ajouterReste(const Contrat& contrat) {
  enum { Opposition, Intervention, Indirecte, Rien };
  const long jour = contrat.plan.debut;
  switch (alea_.entre(Opposition, Rien)) {
    case Opposition:
      return ajouterOpposition(contrat);
    case Intervention:
      return ajouterIntervention(contrat, jour);
    case Indirecte:
      return ajouterMainDOeuvreIndirecte(contrat, jour);
    default:
      return;
  }
}

void Planning::ajouterOpposition(const Contrat& contrat) {
  articles_[std::string(fichier::OPPOSITION)][contrat.cle + "01"].Set(data::Opposition::Libelle,
                                                                      "Avis à tiers détenteur");
}

void Planning::ajouterMainDOeuvreIndirecte(const Contrat& contrat, long jour) {
  articles_[std::string(fichier::TPSMOI)][base_.code + chiffres(jour, 5) + "01"].Set(
      data::TpsMoi::Contrat, contrat.cle);
}

// The employer; else a person still helped to whom an activity of the contract is open, a person
// without any when there is none nearby.
BaseAide Planning::choisirAide(const Contrat& contrat) {
  if (contrat.plan.particulier) return baseAide(parametres_, contrat.plan.employeur);
  const int depart = static_cast<int>(alea_.entre(0, VoisinageAides - 1));
  for (int i = 0; i < VoisinageAides; ++i) {
    BaseAide aide = baseAide(parametres_, base_.numero + (depart + i) % VoisinageAides);
    if (aide.depart == 0 && !activitesCommunes(contrat, aide).empty()) return aide;
  }
  return {};
}

// `dernierJour`: last day worked of a closed contract, else 0.
void Planning::ajouterIntervention(const Contrat& contrat, long dernierJour) {
  namespace T = data::TpsDetailsInterv;
  const PlanContrat& plan = contrat.plan;
  const long jour = alea_.surCent(85) ? alea_.entre(0, 4) : alea_.entre(5, 6);
  const long plage = alea_.entre(0, NombrePlages - 1);
  if (!plages_.insert(jour * 10 + plage).second) return;
  const BaseAide aide = choisirAide(contrat);
  const std::vector<std::string> activites = activitesCommunes(contrat, aide);
  if (activites.empty()) return;
  const long limite = std::max(plan.debut, parametres_.aujourdhui - 5);
  const long debut =
      alea_.entre(plan.debut, dernierJour != 0 ? std::min(dernierJour, limite) : limite);
  const long nombre = static_cast<long>(activites.size());
  const std::string& activite = activites[static_cast<std::size_t>(alea_.entre(0, nombre - 1))];
  const Plage& heures = Plages[plage];
  const std::string cle =
      base_.code + aide.code + chiffres(debut, 5) + activite + texte(jour) + heures.debut;
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
