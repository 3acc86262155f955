#pragma once
// How a contract's time is split over activities, period by period. The split in force stands apart
// from the earlier ones, as in the record:
//
//   latest period     104, with its activities in 36 and their shares in 37, one value each
//   earlier periods   105, latest first; 106 and 107 hold one value a period, one subvalue a part
//
//   Repartition r = Repartition::DuContrat(contrat);
//   r.Ajouter("202612", {{"001DOM", "6000"}, {"001GAR", "4000"}});
//   r.Ecrire(contrat);
//
// Shares are whole hundredths of a percent. A split that is put in adds up to the whole; what a
// record held before is kept as it was found, right or wrong, until it is replaced.
//
// Invariants: a period that was put in stands once, and before every earlier one.

#include <string>
#include <string_view>
#include <vector>

#include "data/citem.h"

namespace rules {

class Repartition {
 public:
  // The whole, in hundredths of a percent.
  static constexpr long long Tout = 10000;

  struct Part {
    std::string activite;  // ACTIVITES key
    std::string part;      // hundredths of a percent, "" where the record has none
    bool operator==(const Part&) const = default;
  };
  using Parts = std::vector<Part>;
  // Of shares that may be anything: what is no number counts as nothing.
  static long long Total(const Parts& parts);

  // Without activities there is no split in force, whatever its period says. The parts of an
  // earlier period end at its first empty code.
  static Repartition DuContrat(const data::CItem& contrat);
  // The six attributes, whole.
  void Ecrire(data::CItem& contrat) const;
  // What a contract has that is split over nothing: the five attributes of shares and periods go.
  static void Effacer(data::CItem& contrat);

  bool Vide() const { return tranches_.size() == 1 && tranches_.front().parts.empty(); }
  // The period of the split in force; "" without one.
  const std::string& Derniere() const { return tranches_.front().periode; }
  // The earlier periods, latest first.
  std::vector<std::string> Anterieures() const;
  bool Connait(std::string_view periode) const { return Rang(periode) < tranches_.size(); }
  // The split of that period; nothing for one that is not known.
  Parts A(std::string_view periode) const;
  // The split in force, with or without a period.
  const Parts& EnVigueur() const { return tranches_.front().parts; }

  // Other parts for a period that stands already. False, and nothing changes, when it does not or
  // when they do not add up.
  bool Remplacer(std::string_view periode, Parts parts);
  // A further period: one that is later than the latest takes its place, and that one goes down to
  // the earlier ones; another one goes in before the first earlier period that lies before it.
  // False, and nothing changes, when none does: what was paid before the first period is closed.
  // False too when the period is known, is none, or when the parts do not add up.
  bool Ajouter(std::string_view periode, Parts parts);

  bool operator==(const Repartition&) const = default;

 private:
  struct Tranche {
    std::string periode;
    Parts parts;
    bool operator==(const Tranche&) const = default;
  };
  // The place of a period; the number of them for one that is not known.
  std::size_t Rang(std::string_view periode) const;

  // The split in force, which may be empty, then the earlier ones.
  std::vector<Tranche> tranches_ = std::vector<Tranche>(1);
};

}  // namespace rules
