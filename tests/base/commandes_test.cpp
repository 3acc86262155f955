// What the sessions of docs/donnees.md and of sessions.md, which another test plays, cannot show of
// the data tool: other times and users, the bytes of the file, whole imports, streams that fail.

#include <gtest/gtest.h>

#include <filesystem>
#include <fstream>
#include <sstream>

#include "base/executer.h"
#include "data/poste.h"
#include "storage/sqlite.h"
#include "support/temp_dir.h"

namespace {

// In the order of an export, in its form, with every shape of an item.
constexpr const char* Articles =
    R"({"fichier":"CIVILAIDANT","cle":"00001","item":["","Lefèvre","Zoé","a\\b¦c"]})"
    "\n"
    R"({"fichier":"CONTRAT","cle":"00001001","item":["02","001",["v1",["s1","s2"]],[["x","y"]]]})"
    "\n"
    R"({"fichier":"CONTRAT","cle":"00001002","item":[]})"
    "\n"
    R"({"fichier":"PCS","cle":"11","item":["Cadres"]})"
    "\n";

// The tool, run in this process in a scratch folder.
class CommandesTest : public testing::Test {
 protected:
  CommandesTest() {
    EXPECT_EQ(Outil({"creer", base_}), 0);
    EXPECT_EQ(Lance({"importer", "-"}, Articles), 0) << erreurs_;
  }

  // Runs one command; the exit code comes back.
  int Outil(const std::vector<std::string>& args, const std::string& entree = {}) {
    std::istringstream in(entree);
    std::ostringstream out;
    std::ostringstream err;
    const int code = base::executer(args, in, out, err);
    sortie_ = out.str();
    erreurs_ = err.str();
    return code;
  }
  // The same with the data file after the command's name.
  int Lance(std::vector<std::string> args, const std::string& entree = {}) {
    args.insert(args.begin() + 1, base_);
    return Outil(args, entree);
  }
  std::string Sortie(std::vector<std::string> args) {
    EXPECT_EQ(Lance(std::move(args)), 0) << erreurs_;
    return sortie_;
  }

  support::TempDir dossier_;
  std::string base_ = dossier_.Chemin("essai.contrats");
  std::string sortie_;   // of the last run
  std::string erreurs_;  // likewise
};

TEST_F(CommandesTest, ImporterEstToutOuRien) {
  std::string lignes = R"({"fichier":"PCS","cle":"11","item":["Autre"]})";
  for (int i = 0; i < 21; ++i) lignes += "\n[]";
  EXPECT_EQ(Lance({"importer", "-"}, lignes), 1);
  EXPECT_NE(erreurs_.find("entrée standard, ligne 21, colonne 1 : "), std::string::npos);
  EXPECT_EQ(erreurs_.find("ligne 22, "), std::string::npos);
  EXPECT_NE(erreurs_.find("21 lignes à corriger, les 20 premières ci-dessus"), std::string::npos);
  EXPECT_EQ(Sortie({"exporter"}), Articles);
  EXPECT_EQ(Sortie({"historique", "PCS", "11"}), "");
}

TEST_F(CommandesTest, UnTexteSupprimeSeRetablit) {
  EXPECT_EQ(Lance({"ecrire", "PCS", "11"}, "[\n\"Employés\"]\n"), 0) << erreurs_;
  EXPECT_EQ(Sortie({"lire", "PCS", "11", "--ancien", "1", "--json"}), "[\"Cadres\"]\n");
  const data::PosteFixe poste(21511, "ZOE");
  storage::SqliteStorage::Ouvrir(base_, poste)->Erase("PCS", "11");
  EXPECT_EQ(Lance({"lire", "PCS", "11"}), 1);
  Sortie({"historique", "PCS", "11"});
  EXPECT_EQ(sortie_.substr(sortie_.find("\n2\t") + 1), "2\t2026-11-22 00:00:00\tZOE\tsupprimé\n");
  Sortie({"historique", "PCS", "11", "--json"});
  EXPECT_NE(sortie_.find("{\"numero\":2,\"date\":\"2026-11-22 00:00:00\",\"utilisateur\":\"ZOE\","
                         "\"supprime\":true,\"item\":[\"Employés\"]}\n"),
            std::string::npos);
  Sortie({"retablir", "PCS", "11", "1"});
  EXPECT_EQ(Sortie({"exporter"}), Articles);
  // What stood there when a text is brought back goes to the history in its turn.
  Sortie({"retablir", "PCS", "11", "2"});
  EXPECT_EQ(Sortie({"lire", "PCS", "11", "--ancien", "3"}), "1\tCadres\n");
}

TEST_F(CommandesTest, SupprimerPuisOublier) {
  Sortie({"supprimer", "PCS", "11"});
  EXPECT_EQ(Lance({"supprimer", "PCS", "11"}), 1);
  EXPECT_EQ(Lance({"lire", "PCS", "11"}), 1);
  const auto contient = [&](const char* texte) {
    std::ifstream fichier(base_, std::ios::binary);
    const std::string octets{std::istreambuf_iterator<char>(fichier), {}};
    return octets.find(texte) != std::string::npos;
  };
  EXPECT_TRUE(contient("Cadres"));
  EXPECT_EQ(Sortie({"oublier", "--avant", "01/01/2020"}), "");
  EXPECT_EQ(Sortie({"oublier", "--avant", "01/01/2199", "--essai"}), "PCS\t11\t\t1 ancien texte\n");
  EXPECT_EQ(erreurs_, "0 articles et 1 ancien texte seraient effacés. Rien n'a été effacé.\n");
  EXPECT_TRUE(contient("Cadres"));
  Sortie({"oublier", "--avant", "01/01/2199"});
  EXPECT_FALSE(contient("Cadres"));
  EXPECT_EQ(Lance({"historique", "PCS", "11"}), 1);
}

// The carer's texts leave the file, and the room comes back; which records go, and which are those
// of others, is in sessions.md.
TEST_F(CommandesTest, OublierUnAidantRendLaPlace) {
  const std::string gros = "[\"" + std::string(200000, 'z') + "\"]";
  for (const char* cle : {"00001003", "00001004", "00001005", "00002001"}) {
    EXPECT_EQ(Lance({"ecrire", "CONTRAT", cle}, gros), 0);
  }
  Sortie({"supprimer", "CONTRAT", "00001003"});
  const auto avant = std::filesystem::file_size(base_);
  EXPECT_NE(Sortie({"oublier", "--aidant", "00001"}), "");
  EXPECT_EQ(Sortie({"oublier", "--aidant", "00001"}), "");
  EXPECT_LT(std::filesystem::file_size(base_) + 3 * gros.size(), avant + 8192);
  storage::SqliteStorage::Ouvrir(base_, data::PosteFixe(0))
      ->Verifier([](const storage::Dommage& d) { ADD_FAILURE() << d.message; });
}

TEST_F(CommandesTest, LAideEstEnFrancais) {
  EXPECT_EQ(Outil({"--help"}), 0);
  EXPECT_NE(sortie_.find("\n  retablir      Rend"), std::string::npos);
  for (const char* commande : {"creer", "importer", "exporter", "lire", "ecrire", "select",
                               "fichiers", "verifier", "historique", "retablir", "demo"}) {
    ASSERT_EQ(Outil({commande, "--help"}), 0);
    const std::string debut = "Usage : contrat-base " + std::string(commande) + " BASE";
    EXPECT_NE(sortie_.find(debut), std::string::npos) << sortie_;
  }
}

TEST_F(CommandesTest, UneSortiePleineEstUnePanne) {
  struct Plein : std::streambuf {
    std::streamsize xsputn(const char*, std::streamsize) override { return 0; }
  } plein;
  std::istringstream entree;
  std::ostream sortie(&plein);
  std::ostringstream erreurs;
  EXPECT_EQ(base::executer({"exporter", base_}, entree, sortie, erreurs), 3);
  EXPECT_EQ(erreurs.str(), "La sortie ne peut pas être écrite : disque plein ou tube fermé.\n");
}

}  // namespace
