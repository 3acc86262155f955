#pragma once
// What a new contract may take over from the one that the carer had before with the same employer:
// the departure dates of the pay grid and of seniority, moved by the days of suspension and by the
// days between the two contracts.

#include <string>

#include "data/citem.h"

namespace rules {

// A departure date of the previous contract. Days are internal ones, "" for none.
struct DepartReprise {
  std::string jour;
  // Days of suspension as they are shown; a text that is no number stays as it is on file.
  std::string suspension;
  // The departure after the whole days of suspension; "" without any.
  std::string reference;
  // What is proposed for the new contract.
  std::string propose;
};

struct Reprise {
  DepartReprise grille;
  DepartReprise anciennete;
  // Both contracts have a grid: without, nothing is shown nor asked about it.
  bool avecGrille = false;
};

// `grilleChoisie`: the new contract has a grid. Seniority is proposed only when the new contract
// starts at most 4 days after the end of the previous one, both days counted.
Reprise proposerReprise(const data::CItem& precedent, const data::CItem& nouveau,
                        bool grilleChoisie);

// The insecurity bonus of a fixed term falls when an open-ended contract starts at most 3 days
// after its end.
bool primeTombe(const data::CItem& precedent, const data::CItem& nouveau);

}  // namespace rules
