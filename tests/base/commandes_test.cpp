// Every command of the data tool: its happy road, its refusals, its exit codes.

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

// The tool, run in this process in a scratch folder. The sessions of docs/donnees.md, which another
// test runs, show the happy roads; here stands what they do not reach.
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

TEST_F(CommandesTest, ExporterEstLInverseDImporter) {
  EXPECT_EQ(Sortie({"exporter"}), Articles);
  const std::string texte = Articles;
  const std::size_t finAidants = texte.find('\n') + 1;
  const std::string pcs = texte.substr(texte.rfind('{'));
  EXPECT_EQ(Sortie({"exporter", "--fichier", "PCS", "--fichier", "CIVILAIDANT"}),
            texte.substr(0, finAidants) + pcs);
}

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

TEST_F(CommandesTest, CodesDeRetourEtMessages) {
  const std::string absente = dossier_.Chemin("absente");
  const struct {
    std::vector<std::string> args;
    int code;
    const char* message;
  } cas[] = {
      {{}, 2, "Il manque la commande."},
      {{"effacer", base_}, 2, "Commande inconnue : effacer."},
      {{"lire", base_, "PCS"}, 2, "contrat-base lire : il manque CLE."},
      {{"lire", base_, "PCS", "11", "12"}, 2, "argument ou option inattendus : 12"},
      {{"lire", base_, "PCS", "11", "--ancien", "0"}, 2, "« 0 » n'est pas un nombre entier"},
      {{"lire", base_, "PCS", "99"}, 1, "PCS 99 : cet article n'existe pas."},
      {{"lire", base_, "PCS", "11", "--ancien", "1"}, 1, "pas de texte antérieur n° 1"},
      {{"lire", absente, "PCS", "11"}, 3, "absente"},
      {{"creer", base_}, 3, "essai.contrats"},
      {{"demo", base_, "--aidants", "1"}, 3, "essai.contrats"},
      {{"demo", absente, "--aidants", "99999999"}, 2, "--aidants : au plus"},
      {{"importer", base_, absente}, 3, "ne peut pas être lu"},
      {{"importer", base_, dossier_.Chemin("")}, 3, "est un dossier"},
      {{"exporter", base_, "--fichier", "PCT"}, 1, "Le fichier PCT n'a pas d'article"},
      {{"ecrire", base_, "pcs", "1", "--item", "[]"}, 2, "Le nom de fichier « pcs »"},
      {{"ecrire", base_, "PCS", "", "--item", "[]"}, 2, "sans clé"},
      {{"ecrire", base_, "PCS", "1", "--item", "[1]"}, 1, "--item, ligne 1, colonne 2"},
      {{"select", base_, "SSELECT PCS", "0 x"}, 2, "x"},
      {{"historique", base_, "PCS", "99"}, 1, "PCS 99 : cet article n'existe pas."},
      {{"retablir", base_, "PCS", "11", "un"}, 2, "N : « un »"},
      {{"retablir", base_, "PCS", "11", "1"}, 1, "pas de texte antérieur n° 1"},
  };
  for (const auto& c : cas) {
    EXPECT_EQ(Outil(c.args), c.code) << c.message;
    EXPECT_EQ(sortie_, "") << c.message;
    EXPECT_NE(erreurs_.find(c.message), std::string::npos) << erreurs_;
  }
  EXPECT_FALSE(std::filesystem::exists(absente));
  EXPECT_EQ(Sortie({"exporter"}), Articles);
}

TEST_F(CommandesTest, LireMontreChaqueTexteASaPlace) {
  EXPECT_EQ(Sortie({"lire", "CONTRAT", "00001001"}),
            "1\t02\n2\t001\n3.1\tv1\n3.2.1\ts1\n3.2.2\ts2\n4.1.1\tx\n4.1.2\ty\n");
  EXPECT_EQ(Sortie({"lire", "CIVILAIDANT", "00001"}), "2\tLefèvre\n3\tZoé\n4\ta\\\\b\\¦c\n");
}

TEST_F(CommandesTest, SelectDonneUneRangeeParLigne) {
  storage::SqliteStorage::Ouvrir(base_, data::PosteFixe(0))
      ->Put("PCS", "12", "a\tb\nc\r\x01\x7F\xC2\x85");
  const struct {
    const char *question, *champs, *rangees;
  } cas[] = {{"SSELECT CONTRAT", "0 3 4 9", "00001001\tv1¦s1¦s2\tx¦y\t\n00001002\t\t\t\n"},
             {"SSELECT CIVILAIDANT AVEC 2 = \"Lef]\"", "4", "a\\\\b\\¦c\n"},
             {"SSELECT PCS AVEC 0 = \"12\"", "1", "a\\tb\\nc\\r\\u0001\\u007F\\u0085\n"}};
  for (const auto& c : cas) {
    EXPECT_EQ(Sortie({"select", c.question, c.champs}), c.rangees) << c.question;
  }
  EXPECT_EQ(Sortie({"select", "SSELECT CONTRAT", "0 4 9", "--json"}),
            "[\"00001001\",[\"x\",\"y\"],\"\"]\n[\"00001002\",\"\",\"\"]\n");
  EXPECT_EQ(erreurs_, "");
  // A name that no record bears is told from a question without an answer.
  EXPECT_EQ(Sortie({"select", "SSELECT PCT"}), "");
  EXPECT_NE(erreurs_.find("Le fichier PCT n'a pas d'article"), std::string::npos);
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

TEST_F(CommandesTest, FichierInconnuEtAnomalieSeule) {
  Lance({"ecrire", "XYZ", "1", "--item", "[]"});
  EXPECT_NE(Sortie({"fichiers"}).find("XYZ\t1\tfichier inconnu de la suite\n"), std::string::npos);
  EXPECT_EQ(Lance({"verifier"}), 1);
  // The counter, and the index of the contract of an entity and of its private employer.
  EXPECT_EQ(erreurs_, "5 articles lus, 3 anomalies.\n");
  for (const char* cle : {"00001001", "00001002"}) {
    Lance({"ecrire", "CONTRAT", cle, "--item", "[]"});
  }
  EXPECT_EQ(Lance({"verifier"}), 1);
  EXPECT_EQ(erreurs_, "5 articles lus, 1 anomalie.\n");
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

// The carer's records under every shape of key, those of others untouched, and the room comes back.
TEST_F(CommandesTest, OublierUnAidant) {
  const std::string gros(200000, 'z');
  for (const char* article :
       {"ABSENCESAIDANT 000010120000", "HISTORINDEM 1000001", "CONTRAT00102 00001001",
        "CONTRATINV 0000100007", "HISTORINDEM 0000199", "CIVILAIDE 00001", "CONTRAT 00002001"}) {
    const std::string mots = article;
    const auto blanc = mots.find(' ');
    const std::string item = "[\"" + gros + "\"]";
    EXPECT_EQ(Lance({"ecrire", mots.substr(0, blanc), mots.substr(blanc + 1)}, item), 0);
  }
  Sortie({"supprimer", "ABSENCESAIDANT", "000010120000"});
  const auto avant = std::filesystem::file_size(base_);
  const std::string essai = Sortie({"oublier", "--aidant", "00001", "--essai"});
  EXPECT_EQ(essai,
            "ABSENCESAIDANT\t000010120000\t\t1 ancien texte\n"
            "CIVILAIDANT\t00001\tarticle\t0 anciens textes\n"
            "CONTRAT\t00001001\tarticle\t0 anciens textes\n"
            "CONTRAT\t00001002\tarticle\t0 anciens textes\n"
            "CONTRAT00102\t00001001\tarticle\t0 anciens textes\n"
            "CONTRATINV\t0000100007\tarticle\t0 anciens textes\n"
            "HISTORINDEM\t1000001\tarticle\t0 anciens textes\n");
  EXPECT_EQ(Sortie({"oublier", "--aidant", "00001"}), essai);
  EXPECT_EQ(Sortie({"oublier", "--aidant", "00001"}), "");
  EXPECT_LT(std::filesystem::file_size(base_) + 4 * gros.size(), avant + 8192);
  Sortie({"fichiers"});
  EXPECT_NE(sortie_.find("CIVILAIDE\t1\t"), std::string::npos);
  EXPECT_NE(sortie_.find("HISTORINDEM\t1\t"), std::string::npos);
  EXPECT_NE(sortie_.find("CONTRAT\t1\t"), std::string::npos);
  EXPECT_EQ(sortie_.find("CIVILAIDANT"), std::string::npos);
  const auto& poste = data::PosteFixe(0);
  storage::SqliteStorage::Ouvrir(base_, poste)->Verifier([](const storage::Dommage& d) {
    ADD_FAILURE() << d.message;
  });
  EXPECT_EQ(Lance({"oublier"}), 2);
  EXPECT_EQ(Lance({"oublier", "--avant", "32/01/2020"}), 2);
  EXPECT_EQ(Lance({"oublier", "--aidant", "1"}), 2);
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
