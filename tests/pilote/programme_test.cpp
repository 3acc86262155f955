// The program whole, on the contract list and the data of demo/scenarios.

#include "pilote/programme.h"

#include <gmock/gmock.h>

#include <algorithm>
#include <filesystem>
#include <sstream>

#include "base_demo.h"
#include "support/table.h"
#include "support/temp_dir.h"

namespace pilote {
namespace {

using testing::HasSubstr;
using testing::StartsWith;

const std::string Racine = CONTRATS_SOURCE_DIR;

class Programme : public testing::Test {
 protected:
  Programme() { creerBaseDemo(base); }

  // The exit code; the two outputs stand in `sortie` and `erreurs`.
  int Lancer(std::vector<std::string> options, const std::string& scenario = {}) {
    sortie.str({});
    erreurs.str({});
    std::istringstream entree(scenario);
    return executer(options, entree, sortie, erreurs);
  }
  // The same on the carer of the demonstration, on 22/11/2026.
  int Jouer(const std::string& scenario, std::vector<std::string> autres = {}) {
    autres.insert(autres.end(), {"--base", base, "--aidant", "00001", "--date", "22/11/2026"});
    return Lancer(autres, scenario);
  }

  support::TempDir dossier;
  std::string base = dossier.Chemin("essai.contrats");
  std::ostringstream sortie;
  std::ostringstream erreurs;
};

// Each scenario of the demonstration on a file of its own, with the options that it gives itself:
// it holds as it stands, and fails on its last check of a record when that expects another text.
TEST_F(Programme, ScenariosDeDemonstration) {
  int joues = 0;
  for (const auto& entree : std::filesystem::directory_iterator(Scenarios)) {
    if (entree.path().extension() != ".scenario") continue;
    const std::string chemin = entree.path().string();
    SCOPED_TRACE(chemin);
    const std::string texte = lireTout(chemin);
    EXPECT_TRUE(texte.starts_with("# ")) << "what it shows stands first";
    std::vector<std::string> options = optionsDe(chemin);
    ASSERT_FALSE(options.empty());
    const std::string copie = dossier.Chemin("copie" + std::to_string(++joues));
    std::filesystem::copy_file(base, copie);
    options.insert(options.end(), {"--base", copie});
    auto avecFichier = options;
    avecFichier.push_back(chemin);
    EXPECT_EQ(Lancer(avecFichier), Tenu) << erreurs.str();
    EXPECT_EQ(constatsNouveaux(base, copie), "");

    const std::size_t controle = texte.rfind("\narticle ");
    if (controle == std::string::npos) continue;
    const std::size_t fin = texte.find('\n', controle + 1);
    const std::string faux = texte.substr(0, texte.rfind(' ', fin)) + " FAUX" + texte.substr(fin);
    std::filesystem::copy_file(base, copie, std::filesystem::copy_options::overwrite_existing);
    EXPECT_EQ(Lancer(options, faux), Manque);
    const auto ligne =
        std::count(texte.begin(), texte.begin() + std::ptrdiff_t(controle), '\n') + 2;
    EXPECT_THAT(erreurs.str(), StartsWith("entrée standard:" + std::to_string(ligne) + ": "));
    EXPECT_THAT(erreurs.str(), HasSubstr("attendu : FAUX\n"));
  }
  EXPECT_GE(joues, 11);
}

// Each block of the documentation stands on its own, on the data as they are.
TEST_F(Programme, ExemplesDeLaDocumentation) {
  std::istringstream document(lireTout(Racine + "/docs/scenarios.md"));
  std::string ligne;
  std::string bloc;
  bool dedans = false;
  int blocs = 0;
  const std::string modele = dossier.Chemin("modele");
  std::filesystem::copy_file(base, modele);
  while (std::getline(document, ligne)) {
    if (dedans && ligne == "```") {
      std::filesystem::copy_file(modele, base, std::filesystem::copy_options::overwrite_existing);
      EXPECT_EQ(Jouer(bloc), Tenu) << bloc << erreurs.str();
      dedans = false;
      ++blocs;
    } else if (dedans) {
      bloc += ligne + "\n";
    } else if (ligne == "```scenario") {
      dedans = true;
      bloc.clear();
    }
  }
  EXPECT_FALSE(dedans);
  EXPECT_GE(blocs, 7);
}

// Without a date given, the program takes the day's.
TEST_F(Programme, AidantSansContratNiDate) {
  EXPECT_EQ(Lancer({"--base", base, "--aidant", "00002"},
                   "verifier Etq_NomPrenomAidant libelle \"PETIT Hervé\"\ncliquer Cmd_Recherche\n"
                   "verifier Lst_Type nombre 0\nverifier Cmd_OK actif oui"),
            Tenu)
      << erreurs.str();
}

// A faulty scenario is refused whole, with every fault, before the data file is opened.
TEST_F(Programme, ScenarioFautif) {
  EXPECT_EQ(Lancer({"--base", dossier.Chemin("absent"), "--aidant", "00001"},
                   "cliquer Cmd_Recherche\ncliquer\nvoir\n  cocher X"),
            MalDemande);
  EXPECT_EQ(erreurs.str(),
            "entrée standard:2:1: Cette commande s'écrit : cliquer NOM.\n"
            "entrée standard:4:3: La commande « cocher » n'existe pas.\n"
            "Le scénario n'a pas été joué.\n");
  EXPECT_EQ(sortie.str(), "");
}

TEST_F(Programme, OptionsFausses) {
  for (const auto& [texte, raison] :
       support::table<2>("pilote/options.md", "Les options fausses")) {
    SCOPED_TRACE(raison);
    std::istringstream mots(texte);
    std::vector<std::string> options{std::istream_iterator<std::string>(mots), {}};
    std::replace(options.begin(), options.end(), std::string("BASE"), base);
    std::replace(options.begin(), options.end(), std::string("DOSSIER"), Racine);
    EXPECT_EQ(Lancer(options), MalDemande);
    EXPECT_THAT(erreurs.str(), HasSubstr(raison));
  }
  EXPECT_EQ(Lancer({"--help"}), Tenu);
  EXPECT_THAT(sortie.str(), StartsWith("contrat-pilote : "));
}

}  // namespace
}  // namespace pilote
