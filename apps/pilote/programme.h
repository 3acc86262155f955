#pragma once
// The program whole, with its streams: options, reading of the scenario, opening of the data file
// and of the carer's contracts, play. What main and the tests call.

#include <functional>
#include <istream>
#include <memory>
#include <ostream>
#include <string>
#include <vector>

#include "data/poste.h"
#include "data/storage.h"

namespace pilote {

// Exit codes; scripts rely on them.
enum Code : int {
  Tenu = 0,        // all held
  Manque = 1,      // a check or an act failed
  MalDemande = 2,  // scenario or options wrong, or the data file or the carer cannot be opened:
                   // nothing was played
};

// Opens the data file of --base; what it throws is told as a file that does not open. The
// workstation outlives the store.
using Ouverture = std::function<std::unique_ptr<data::Storage>(const std::string& chemin,
                                                               const data::Poste& poste)>;
std::unique_ptr<data::Storage> ouvrirBase(const std::string& chemin, const data::Poste& poste);
// The same in a network folder, too.
std::unique_ptr<data::Storage> ouvrirBaseEnReseau(const std::string& chemin,
                                                  const data::Poste& poste);

// `arguments` without the program's name. `ouvrir` lets a test stand between screens and file.
int executer(const std::vector<std::string>& arguments, std::istream& entree, std::ostream& sortie,
             std::ostream& erreurs, const Ouverture& ouvrir = ouvrirBase);

}  // namespace pilote
