#pragma once
// What payroll and planning have done with a contract, which then cannot be removed, nor end before
// that work. Each rule looks at the files of the suite, writes nothing and stops at the first
// record in the way.

#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "data/db.h"
#include "rules/refus.h"

namespace rules {

// A contract, by what decides which files hold its results.
struct ContratTraite {
  // Carer code, then number.
  std::string cle;
  std::string convention;
  std::string association;
  std::string employeur;
  bool administratif = false;
  // That of its first activity: "P" for the entity's services, "M" for a private employer's.
  std::string typeActivite;
};

// The files that hold its results, under keys that begin with its own.
std::vector<std::string_view> fichiersTraites(const ContratTraite& contrat);
// Any payslip was computed for it.
std::optional<Refus> Verif_SuppressionPossible(data::Db& db, const ContratTraite& contrat);
// One was computed for a month after `mois`, AAAAMM: the month of its end, or that of its last
// payslip where that is earlier.
std::optional<Refus> Verif_ModificationPossible(data::Db& db, const ContratTraite& contrat,
                                                const std::string& mois);
std::optional<Refus> Verif_Opposition(data::Db& db, const ContratTraite& contrat);

// The days that the planning of a contract to be deleted is looked at: from its start on, or, when
// it had a last day worked, what lies between that day and its end.
struct JoursPlanifies {
  long debut = 0;
  std::optional<long> dernierJour;
  std::optional<long> fin;
};
// Interventions, or indirect work, are planned on it.
std::optional<Refus> Verif_PlanningSuppression(data::Db& db, const ContratTraite& contrat,
                                               const JoursPlanifies& jours);

}  // namespace rules
