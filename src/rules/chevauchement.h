#pragma once
// Two live contracts of one scope never cover the same day, and at most one of them is open-ended.
// The scope of a private employer's contract is that agreement, entity and employer; every other
// contract sees all the carer's contracts of its entity, private employers' left out.
//
// Both rules take the dates as they stand on the screen and look at the carer's other contracts in
// CONTRAT. They write nothing and stop at the first contract in the way.

#include <optional>
#include <string>

#include "data/db.h"
#include "rules/refus.h"

namespace rules {

// The day that stands for a missing end date.
inline constexpr long SansFin = 99999;

// The contract in hand, by what fixes its scope. `numero` is "" for one that has no number yet.
struct Portee {
  std::string codeAidant;
  std::string numero;
  std::string convention;
  std::string association;
  std::string employeur;
  bool operator==(const Portee&) const = default;
};

// Its dates as internal days.
struct Dates {
  long debut = 0;
  std::optional<long> fin;
  bool operator==(const Dates&) const = default;
};

// The rule itself, on values. Both days of a period count, and one without an end goes on for ever.
bool seChevauchent(const Dates& a, const Dates& b);
// Two contracts of one carer see each other. A contract does not see itself.
bool memePortee(const Portee& a, const Portee& b);

struct Voisinage {
  // An overlap was found: the message, and the displayed end of the contract in the way, "" when
  // it is open-ended.
  std::optional<Refus> conflit;
  std::string finContratConflit;
  // Among the contracts looked at before any overlap: the latest end before the start (0 for
  // none) and, for a contract with an end, the earliest start after it (SansFin for none).
  long derniereFinAvant = 0;
  long prochainDebutApres = SansFin;
};

// The contract may not cover a day of another one; the day on which another one ends counts.
Voisinage VerifContratExist(data::Db& db, const Portee& portee, const Dates& dates);

// The end date has been changed or removed.
std::optional<Refus> Verif_SuppDateFin(data::Db& db, const Portee& portee, const Dates& dates);

}  // namespace rules
