#pragma once
// A contract beside the carer's planning. Its dates and activities frame the interventions that are
// planned on it; what falls outside is reported, and a contract that is shortened deletes, cuts or
// leaves without contract what lies after its new last day.
//
// Looking and doing are parted: one finds the incidences, tells them line by line, and only then
// applies them. Days are internal ones.

#include <functional>
#include <optional>
#include <string>
#include <vector>

#include "data/db.h"
#include "data/liste_codes.h"

namespace rules {

struct ContratPlanifie {
  std::string codeAidant;
  std::string convention;
  std::string association;
  std::string employeur;
  bool determine = false;
  long debut = 0;
  // It has an end; its last day worked.
  bool termine = false;
  std::optional<long> dernierJour;
  // The ends and starts of the carer's contracts next to it: 0 and SansFin without any.
  long derniereFinAvant = 0;
  long prochainDebutApres = 0;
  // The type of its first activity, the activities of the entity, and the labels of its own.
  std::string typeActivite;
  data::ListeCodes activitesOffertes;
  std::vector<std::string> activites;
};

// A planned intervention as its record has it.
struct Intervention {
  std::string cle;
  std::string fin;       // internal day, "" for none
  std::string heureFin;  // 4 digits

  long Debut() const;
  std::string Activite() const;
};

// How the planning works: past the end of a contract work stays without one; times in hundredths.
struct ParametresPlanning {
  bool resteSansContrat = false;
  bool enCentiemes = false;
};
ParametresPlanning parametresPlanning(data::Db& db);

// One intervention in words, on a line of its own.
std::string ligneIntervention(data::Db& db, const Intervention& intervention,
                              const ParametresPlanning& parametres);

// Verif_CoherencePlanning: the interventions outside the dates of the contract (of its end only
// with `avecFin`), and those on activities that are not its own. "" when all is in order, or when
// the planning does not keep work without contract.
std::string Verif_CoherencePlanning(data::Db& db, const ContratPlanifie& contrat, bool avecFin);

enum class Sort { SansContrat, Supprimee, Coupee };
struct Incidence {
  Intervention intervention;
  Sort sort;
};

// What becomes of the interventions after the last day worked, by weekday and time.
std::vector<Incidence> incidences(data::Db& db, const ContratPlanifie& contrat);
// That in words; `anomalies` goes before it.
std::string rapportIncidences(data::Db& db, const ContratPlanifie& contrat,
                              const std::vector<Incidence>& incidences,
                              const std::string& anomalies);

// Applies them one after the other, and gathers what the replacements say. What was applied stays:
// when a write fails, Faites tells how many incidences were applied before it.
class MiseAJourPlanning {
 public:
  MiseAJourPlanning(data::Db& db, const ContratPlanifie& contrat, long ancienDernierJour,
                    const std::string& utilisateur);

  void Appliquer(const std::vector<Incidence>& incidences);
  // The planning stays as it is: its work is without contract (Creer_TpsSansContrat).
  void LaisserSansContrat();

  int Faites() const { return faites_; }
  const std::vector<std::string>& Remplacements() const { return remplacements_; }

 private:
  void Remplacer(const std::string& cle);
  void Ecourter(const std::string& cle, Sort sort);
  void Supprimer_ExceptionsApres(const std::string& cle);
  void EffacerListe();

  data::Db& db_;
  const ContratPlanifie& contrat_;
  long ancienDernierJour_;
  std::string utilisateur_;
  std::string liste_;
  std::vector<std::string> remplacements_;
  int faites_ = 0;
};

}  // namespace rules
