// How many trips over the line the saves of the demonstration take, with the base on a server.

#include <filesystem>
#include <sstream>

#include "base_demo.h"
#include "pilote/programme.h"
#include "support/compte_storage.h"
#include "support/serveur.h"

namespace pilote {
namespace {

// Hands on to the count, which outlives the program.
class Vue : public support::RelaisStorage {
  using RelaisStorage::RelaisStorage;
};

support::CompteStorage jouer(const std::string& scenario, const std::string& base) {
  static const data::PosteFixe poste(21511);
  const auto serveur = storage::PostgresStorage::Ouvrir(base, poste);
  support::CompteStorage compte(*serveur);
  std::vector<std::string> options = optionsDe(scenario);
  options.insert(options.end(), {"--base", base, scenario});
  std::istringstream entree;
  std::ostringstream sortie;
  EXPECT_EQ(executer(options, entree, sortie, sortie,
                     [&](auto&, auto&) { return std::make_unique<Vue>(compte); }),
            Tenu)
      << sortie.str();
  return compte;
}

// At most 1.5 trips for each write; a single write takes two, since what it rests on must be known
// before it goes out.
TEST(VoyagesPostgres, ScenariosDeDemonstration) {
  support::Serveur& serveur = support::Serveur::Commun();
  const std::string modele = serveur.NouvelleBase();
  creerBaseDemo(modele);
  int actes = 0;
  for (const auto& entree : std::filesystem::directory_iterator(Scenarios)) {
    if (entree.path().extension() != ".scenario") continue;
    const std::string chemin = entree.path().string();
    const support::CompteStorage compte = jouer(chemin, serveur.Copie(modele));
    // Looked at, typed in and left: nothing was ever written.
    EXPECT_TRUE(!chemin.ends_with("/suivi-abandon.scenario") || compte.ecritures == 0);
    for (const auto& acte : compte.actes) {
      ++actes;
      EXPECT_LE(2 * acte.voyages, std::max(4, 3 * acte.ecritures))
          << chemin << ": " << acte.ecritures << " writes in " << acte.voyages << " trips";
    }
  }
  EXPECT_GE(actes, 40);
}

}  // namespace
}  // namespace pilote
