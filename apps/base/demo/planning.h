#pragma once
// The planning of one carer: regular interventions inside the days of each contract, exceptions to
// them, indirect work, unavailability, and the absences that planning and payroll share.

#include <map>
#include <set>
#include <string>
#include <utility>
#include <vector>

#include "demo/contrat.h"

namespace demo {

// Gathered over the carer's contracts, then written in key order.
class Planning {
 public:
  // Numbers say whether the carer has died.
  Planning(const Parametres& parametres, const BaseAidant& base, const NumerosAidant& numeros);

  // Adds what one contract brings. To be called once its record is complete.
  void ajouter(const Contrat& contrat);
  void ecrire(Sortie& sortie);

 private:
  BaseAide choisirAide(const Contrat& contrat);
  void ajouterIntervention(const Contrat& contrat, long dernierJour);
  void ajouterException(const std::string& intervention, long debut, long fin, int jour,
                        const std::string& heure);
  void ajouterReste(const Contrat& contrat);
  void ajouterOpposition(const Contrat& contrat);
  void ajouterMainDOeuvreIndirecte(const Contrat& contrat, long jour);
  void tirerAbsence(const Contrat& contrat);
  void ajouterAbsence(const std::string& type, long debut, long fin);
  void ajouterIndisponibilites();

  const Parametres& parametres_;
  const BaseAidant& base_;
  Alea alea_;
  std::set<long> plages_;                        // weekday * 10 + time slot, each used once
  std::vector<std::pair<long, long>> absences_;  // first and last days; none shares a day
  std::map<std::string, std::map<std::string, data::CItem>> articles_;  // by file, by key
};

}  // namespace demo
