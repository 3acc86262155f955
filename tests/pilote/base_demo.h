#pragma once
// The data file of the demonstration scenarios, and what the data tool says of a file.

#include <gtest/gtest.h>

#include <fstream>
#include <iterator>
#include <sstream>
#include <string>
#include <vector>

#include "base/executer.h"

namespace pilote {

inline const std::string Scenarios = std::string(CONTRATS_SOURCE_DIR) + "/demo/scenarios/";

// Runs the data tool; what it prints comes back, `code` being what it must answer.
inline std::string outilBase(const std::vector<std::string>& arguments, int code = 0) {
  std::istringstream entree;
  std::ostringstream sortie;
  std::ostringstream erreurs;
  EXPECT_EQ(base::executer(arguments, entree, sortie, erreurs), code) << erreurs.str();
  return sortie.str();
}

inline void creerBaseDemo(const std::string& chemin) {
  outilBase({"creer", chemin});
  outilBase({"importer", chemin, Scenarios + "donnees.jsonl"});
}

// The findings in `chemin` that its origin does not have, whose contracts came without indexes.
inline std::string constatsNouveaux(const std::string& origine, const std::string& chemin) {
  const std::string anciens = outilBase({"verifier", origine}, 1);
  std::istringstream constats(outilBase({"verifier", chemin}, 1));
  std::string nouveaux;
  for (std::string ligne; std::getline(constats, ligne);) {
    if (anciens.find(ligne + "\n") == std::string::npos) nouveaux += ligne + "\n";
  }
  return nouveaux;
}

inline std::string lireTout(const std::string& chemin) {
  std::ifstream fichier(chemin, std::ios::binary);
  EXPECT_TRUE(fichier) << chemin;
  return {std::istreambuf_iterator<char>(fichier), {}};
}

// The options that a scenario gives for itself: the words of its line "# options : ...".
inline std::vector<std::string> optionsDe(const std::string& scenario) {
  static constexpr std::string_view Debut = "# options : ";
  std::istringstream lignes(lireTout(scenario));
  std::string ligne;
  while (std::getline(lignes, ligne)) {
    if (!ligne.starts_with(Debut)) continue;
    std::istringstream mots(ligne.substr(Debut.size()));
    return {std::istream_iterator<std::string>(mots), {}};
  }
  return {};
}

}  // namespace pilote
