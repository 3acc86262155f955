#pragma once
// The year that a follow-up is about, and the months that can be typed in it. Periods are AAAAMM.

#include <string>
#include <vector>

#include "data/citem.h"

namespace rules {

// The twelve months of a year.
std::vector<std::string> moisDeLAnnee(int annee);

// What the months of the paid hours depend on.
struct ExerciceSuivi {
  // Last period that payroll has processed of this contract, "" for none.
  std::string periodeTraitee;
  // The current pay period.
  std::string periodePaie;
  // The entity counts its year from December to November.
  bool decembre = false;
  // Private employers: the year ends with the closing month.
  bool parCloture = false;
  // mm; a text that is no month counts as December.
  std::string moisCloture = {};
};

// The calendar year, or that of December to November; for private employers the modulation year in
// hand, up to the month after the pay period. The year turns when December was processed.
std::vector<std::string> moisOfferts(const ExerciceSuivi& exercice);

// The year of the effective working time: that of the last period processed, the next one from the
// closing month on; without such a period that of the last payslip computed, else of the period
// that is being paid.
int anneeSuivi(const data::CItem& contrat, const std::string& moisCloture,
               const std::string& periodePaie);

}  // namespace rules
