#pragma once
// The data tool as the tests run it: in this process, in a scratch folder.

#include <sstream>
#include <string>
#include <vector>

#include "base/executer.h"
#include "support/temp_dir.h"

struct Outil {
  support::TempDir dossier;
  std::string base = dossier.Chemin("essai.contrats");
  std::string sortie;   // of the last run
  std::string erreurs;  // likewise

  // Runs one command; the exit code comes back.
  int Lance(const std::vector<std::string>& args, const std::string& entree = {}) {
    std::istringstream in(entree);
    std::ostringstream out;
    std::ostringstream err;
    const int code = base::executer(args, in, out, err);
    sortie = out.str();
    erreurs = err.str();
    return code;
  }
};
