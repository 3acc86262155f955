#pragma once
// The program whole, with its streams: options, reading of the scenario, opening of the data file
// and of the carer's contracts, play. What main and the tests call.

#include <istream>
#include <ostream>
#include <string>
#include <vector>

namespace pilote {

// Exit codes; scripts rely on them.
enum Code : int {
  Tenu = 0,        // all held
  Manque = 1,      // a check or an act failed
  MalDemande = 2,  // scenario or options wrong, or the data file or the carer cannot be opened:
                   // nothing was played
};

// `arguments` without the program's name.
int executer(const std::vector<std::string>& arguments, std::istream& entree, std::ostream& sortie,
             std::ostream& erreurs);

}  // namespace pilote
