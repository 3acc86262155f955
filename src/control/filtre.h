#pragma once
// Which of a carer's contracts the list keeps: those of one legal entity or of all, by validity and
// by kind of employer. A cancelled contract is never shown.

#include <string>

#include "data/citem.h"

namespace control {

struct FiltreContrats {
  // Active: not ended before the pay period; historical: ended before today.
  enum { TousValid, Actifs, Historiques } validite = TousValid;
  enum { TousType, ParticuliersEmployeurs, Autres } type = TousType;
  // "" for all.
  std::string association;
  // Internal days.
  long debutPeriode = 0;
  long aujourdhui = 0;

  bool Garde(const data::CItem& contrat) const;

 private:
  bool EstValide(const data::CItem& contrat) const;
};

}  // namespace control
