#pragma once
// The weekly working time that a carer may owe, all contracts together, beside the unavailability
// that the planning holds. A contract that passes the legal maximum is not forbidden: the user is
// asked.
//
//   hebdomadaire(15167, 3)          3500: 151,67 hours a month are 35,00 a week
//
// Amounts are hundredths of an hour. A year has 52 weeks and 12 months, and each contract's amount
// is rounded to a whole hundredth before it is added.

#include <optional>
#include <string>

#include "data/db.h"

namespace rules {

// The weekly amount of a working time by its frequency code: 1 weekly, 2 fortnightly, 3 monthly,
// 4 yearly. Nothing for another code.
std::optional<long long> hebdomadaire(long long duree, int frequence);

// A contract, or an amendment of it, as it stands on the screen.
struct TempsTravail {
  long long duree = 0;
  // Frequency code, 0 for none: the time then counts as weekly.
  int frequence = 0;
  // Internal days: the effect of the amendment, the start of the contract.
  long effet = 0;
  long debut = 0;
};

struct AvisHeures {
  std::string texte;
  // The user may go on; otherwise nothing can be said about the hours, and he may not.
  bool question = false;
};

// Adds up the carer's contracts in force on the day of effect, `numero` with its time on the screen
// instead of the one on file ("" for a new one), and what is unavailable on the day of the start.
// Nothing when the maximum is not passed. Writes nothing.
std::optional<AvisHeures> Verif_NbHeures(data::Db& db, const std::string& codeAidant,
                                         const std::string& numero, const TempsTravail& temps);

}  // namespace rules
