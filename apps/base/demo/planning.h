#pragma once
// The planning of one carer: regular interventions inside the days of each contract, exceptions to
// them, indirect work, unavailability, and the absences that planning and payroll share.

#include <map>
#include <set>
#include <string>

#include "demo/contrat.h"

namespace demo {

// Gathered over the carer's contracts, then written in key order.
class Planning {
 public:
  Planning(const Parametres& parametres, const BaseAidant& base);

  // Adds what one contract brings. To be called once its record is complete.
  void ajouter(const Contrat& contrat);
  void ecrire(Sortie& sortie);

 private:
  void ajouterIntervention(const Contrat& contrat, long dernierJour);
  void ajouterException(const std::string& intervention, long debut, long fin, int jour,
                        const std::string& heure);
  void ajouterAbsence(const Contrat& contrat);
  void ajouterIndisponibilites();

  const Parametres& parametres_;
  const BaseAidant& base_;
  Alea alea_;
  std::set<long> plages_;  // weekday * 10 + time slot, each used once
  std::map<std::string, std::map<std::string, data::CItem>> articles_;  // by file, by key
};

}  // namespace demo
