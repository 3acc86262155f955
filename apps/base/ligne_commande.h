#pragma once
// The command table of the data tool, and the reading of a command line by it.

#include <array>
#include <ostream>
#include <string>
#include <string_view>
#include <vector>

#include "base/contexte.h"

namespace base {

struct Position {
  std::string_view nom;
  std::string_view aide;
  bool facultative = false;
};

struct OptionCommande {
  std::string_view nom;     // "--json"
  std::string_view valeur;  // what follows it, as the help names it; empty for a plain switch
  std::string_view aide;
  bool repetable = false;
};

struct Commande {
  std::string_view nom;
  std::string_view resume;
  std::array<Position, 4> positions;      // unnamed ones are unused
  std::array<OptionCommande, 3> options;  // likewise
  int (*action)(Contexte&, const Arguments&);
};

struct LigneLue {
  const Commande* commande = nullptr;  // null when the help was asked for and shown
  Arguments arguments;
};

// Echec(MauvaisUsage) for anything that the table does not allow. Help goes to `sortie`.
LigneLue lireLigneCommande(const std::vector<std::string>& args, std::ostream& sortie);

}  // namespace base
