#pragma once
// The data tool from its command line on: main() and the tests call it.

#include <istream>
#include <ostream>
#include <string>
#include <vector>

namespace base {

// Runs one command; `args` are what follows the program's name. Comes back with the exit code: 0
// done, 1 data refused or anomalies found, 2 wrong use, 3 a file that cannot be opened, read or
// written. Every message is on `erreurs`; with `terminal` long works show their progress there.
int executer(const std::vector<std::string>& args, std::istream& entree, std::ostream& sortie,
             std::ostream& erreurs, bool terminal = false);

}  // namespace base
