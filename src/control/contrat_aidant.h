#pragma once
// What the list knows of each of a carer's contracts, cancelled ones and those that the filters
// hide included: enough to count them and to lay them out on a time axis. Plain values.

#include <optional>
#include <string>
#include <vector>

#include "data/citem.h"
#include "rules/chevauchement.h"

namespace control {

enum class EtatContrat { EnCours, Termine, AVenir, Annule };

struct ContratAidant {
  std::string cle;
  rules::Portee portee;
  // 0 as a start: the contract has none.
  rules::Dates dates;
  // The end that a fixed term is expected to have, until it has one.
  std::optional<long> finPresumee;
  bool annule = false;

  bool operator==(const ContratAidant&) const = default;

  static ContratAidant De(const data::CItem& contrat);
  // The end that is to be counted on: the one that was given, else the presumed one.
  std::optional<long> FinAttendue() const { return dates.fin ? dates.fin : finPresumee; }
};

// A contract runs from its first day to its last, both included, and without an end for ever;
// without a start it is to come.
EtatContrat etatContrat(const rules::Dates& dates, long aujourdhui);
EtatContrat etatContrat(const ContratAidant& contrat, long aujourdhui);

// How many there are of each; `prochaine` is the contract that ends next, of those that run or are
// to come, its end being the one to be counted on.
struct Compte {
  int enCours = 0;
  int aVenir = 0;
  int termines = 0;
  int annules = 0;
  struct Fin {
    long jour;
    std::string cle;
  };
  std::optional<Fin> prochaine = {};

  int Vivants() const { return enCours + aVenir + termines; }
};
Compte compter(const std::vector<ContratAidant>& contrats, long aujourdhui);

}  // namespace control
