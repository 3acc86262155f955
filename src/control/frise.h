#pragma once
// A carer's contracts on a time axis, as values: who draws it only has to scale it.
//
//   contracts of one entity    ====001====|  |==002==| |--003-- - - -
//   with a private employer        |========004=================>
//
// The contracts that must not overlap stand in one band, in as many rows as it takes: one, unless
// some of them do overlap or were cancelled. Which ones overlap is said by the rule that refuses it
// (rules/chevauchement.h).

#include <optional>
#include <string>
#include <vector>

#include "control/contrat_aidant.h"

namespace control {

struct Barre {
  std::string cle;  // "" for a new contract
  EtatContrat etat = EtatContrat::EnCours;
  int rang = 0;  // row of the strip, from 0
  // First and last day drawn. Without an end the bar runs to the end of the axis, `sansFin`.
  long debut = 0;
  long fin = 0;
  // The last day that is not merely presumed: `fin`, where nothing is presumed; before `debut`,
  // where all is.
  long certaine = 0;
  bool sansFin = false;
  // The end that words name, which may lie before the last day drawn, and whether it is presumed.
  long dite = 0;
  bool presumee = false;
  // The contract in the editor, with its dates as they are typed.
  bool enMain = false;
  bool chevauche = false;
};

struct Bande {
  // A contract of it, from whom its name can be had.
  rules::Portee portee;
  int rang = 0;  // its first row
  int rangs = 1;
};

struct Frise {
  // First and last day of the axis.
  long du = 0;
  long au = 0;
  long aujourdhui = 0;
  std::vector<Barre> barres;  // by band, then by start, the cancelled ones last
  std::vector<Bande> bandes;
  int rangs = 0;

  bool Chevauchement() const;
};

// `enMain`: the contract in the editor, which takes the place of the one that it is. A contract
// without a start has no bar. The bands of entities come first, then those of private employers,
// each kind by its first start.
Frise faireFrise(const std::vector<ContratAidant>& contrats,
                 const std::optional<ContratAidant>& enMain, long aujourdhui);
// The same with the band of `enMain` alone.
Frise faireFriseBande(const std::vector<ContratAidant>& contrats, const ContratAidant& enMain,
                      long aujourdhui);

}  // namespace control
