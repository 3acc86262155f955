// Every command of the data tool: its happy road, its refusals, its exit codes.

#include <gtest/gtest.h>

#include <algorithm>
#include <filesystem>
#include <fstream>

#include "base/outil.h"
#include "base/progres.h"
#include "data/poste.h"
#include "storage/sqlite.h"

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

class CommandesTest : public testing::Test {
 protected:
  CommandesTest() {
    EXPECT_EQ(outil_.Lance({"creer", outil_.base}), 0);
    EXPECT_EQ(outil_.Lance({"importer", outil_.base, "-"}, Articles), 0) << outil_.erreurs;
    EXPECT_EQ(outil_.sortie, "4 articles importés.\n");
  }

  // Puts the data file after the command's name.
  int Lance(std::vector<std::string> args, const std::string& entree = {}) {
    args.insert(args.begin() + 1, outil_.base);
    return outil_.Lance(args, entree);
  }
  std::string Sortie(std::vector<std::string> args) {
    EXPECT_EQ(Lance(std::move(args)), 0) << outil_.erreurs;
    return outil_.sortie;
  }

  Outil outil_;
};

TEST_F(CommandesTest, ExporterEstLInverseDImporter) {
  EXPECT_EQ(Sortie({"exporter"}), Articles);
  const std::string texte = Articles;
  const std::size_t finAidants = texte.find('\n') + 1;
  const std::size_t debutPcs = texte.rfind('{');
  EXPECT_EQ(Sortie({"exporter", "--fichier", "PCS", "--fichier", "CIVILAIDANT"}),
            texte.substr(0, finAidants) + texte.substr(debutPcs));

  // The same records the other way round, from a file with Windows line ends.
  std::string lignes;
  for (std::size_t fin = texte.size() - 1; fin != std::string::npos;) {
    const std::size_t debut = fin == 0 ? std::string::npos : texte.rfind('\n', fin - 1);
    lignes += texte.substr(debut + 1, fin - debut - 1) + "\r\n";
    fin = debut;
  }
  const std::string fichier = outil_.dossier.Chemin("articles.jsonl");
  std::ofstream(fichier, std::ios::binary) << lignes;
  const std::string autre = outil_.dossier.Chemin("autre.contrats");
  EXPECT_EQ(outil_.Lance({"creer", autre}), 0);
  EXPECT_EQ(outil_.Lance({"importer", autre, fichier}), 0) << outil_.erreurs;
  EXPECT_EQ(outil_.Lance({"exporter", autre}), 0);
  EXPECT_EQ(outil_.sortie, Articles);
}

TEST_F(CommandesTest, ImporterEstToutOuRien) {
  const std::string bonne = R"({"fichier":"PCS","cle":"11","item":["Autre"]})";
  const std::string fichier = outil_.dossier.Chemin("faux.jsonl");
  std::ofstream(fichier) << bonne << "\n\n"
                         << R"({"fichier":"PCS","cle":"12","item":["é",3]})"
                         << "\n"
                         << bonne << "\n"
                         << R"({"fichier":"PAYS","cle":"11","item":["Autre fichier"]})";
  EXPECT_EQ(Lance({"importer", fichier}), 1);
  EXPECT_EQ(outil_.sortie, "");
  EXPECT_EQ(outil_.erreurs,
            fichier +
                ", ligne 3, colonne 41 : nombre au lieu d'un texte : mettez-le entre guillemets\n" +
                fichier +
                ", ligne 4, colonne 1 : PCS 11 est déjà donné à la ligne 1\n"
                "Importation refusée : 2 lignes à corriger. Rien n'a été écrit.\n");
  EXPECT_EQ(Sortie({"exporter"}), Articles);
  EXPECT_EQ(Sortie({"historique", "PCS", "11"}), "");

  std::string vingtEtUne;
  for (int i = 0; i < 21; ++i) vingtEtUne += "[]\n";
  EXPECT_EQ(Lance({"importer", "-"}, vingtEtUne), 1);
  EXPECT_EQ(std::count(outil_.erreurs.begin(), outil_.erreurs.end(), '\n'), 21);
  EXPECT_NE(outil_.erreurs.find("21 lignes à corriger, les 20 premières ci-dessus"),
            std::string::npos);
}

TEST_F(CommandesTest, CodesDeRetourEtMessages) {
  const std::string absente = outil_.dossier.Chemin("absente");
  const struct {
    std::vector<std::string> args;
    int code;
    const char* message;
  } cas[] = {
      {{}, 2, "Il manque la commande."},
      {{"effacer", outil_.base}, 2, "Commande inconnue : effacer."},
      {{"lire", outil_.base, "PCS"}, 2, "contrat-base lire : il manque CLE."},
      {{"lire", outil_.base, "PCS", "11", "12"}, 2, "argument ou option inattendus : 12"},
      {{"lire", outil_.base, "PCS", "11", "--tout"}, 2, "argument ou option inattendus : --tout"},
      {{"lire", outil_.base, "PCS", "11", "--ancien"}, 2, "--ancien"},
      {{"lire", outil_.base, "PCS", "11", "--ancien", "0"}, 2, "« 0 » n'est pas un nombre entier"},
      {{"lire", outil_.base, "PCS", "99"}, 1, "PCS 99 : cet article n'existe pas."},
      {{"lire", outil_.base, "PCS", "11", "--ancien", "1"}, 1, "pas de texte antérieur n° 1"},
      {{"lire", absente, "PCS", "11"}, 3, "absente"},
      {{"creer", outil_.base}, 3, "essai.contrats"},
      {{"demo", outil_.base, "--aidants", "1"}, 3, "essai.contrats"},
      {{"demo", absente, "--aidants", "dix"}, 2, "--aidants : « dix »"},
      {{"demo", absente, "--aidants", "99999999"}, 2, "--aidants : au plus"},
      {{"importer", outil_.base, absente}, 3, "ne peut pas être lu"},
      {{"importer", outil_.base, outil_.dossier.Chemin("")}, 3, "est un dossier"},
      {{"exporter", outil_.base, "--fichier", "PCT"}, 1, "Le fichier PCT n'a pas d'article"},
      {{"ecrire", outil_.base, "pcs", "1", "--item", "[]"}, 2, "Le nom de fichier « pcs »"},
      {{"ecrire", outil_.base, "PCS", "", "--item", "[]"}, 2, "sans clé"},
      {{"ecrire", outil_.base, "PCS", "1", "--item", "[1]"}, 1, "--item, ligne 1, colonne 2"},
      {{"select", outil_.base, "SSELECT PCS AVEC", "0"}, 2, "SSELECT PCS AVEC"},
      {{"select", outil_.base, "SSELECT PCS", "0 x"}, 2, "x"},
      {{"historique", outil_.base, "PCS", "99"}, 1, "PCS 99 : cet article n'existe pas."},
      {{"retablir", outil_.base, "PCS", "11", "1"}, 1, "pas de texte antérieur n° 1"},
      {{"retablir", outil_.base, "PCS", "11", "un"}, 2, "N : « un »"},
  };
  for (const auto& c : cas) {
    EXPECT_EQ(outil_.Lance(c.args), c.code) << c.message;
    EXPECT_EQ(outil_.sortie, "") << c.message;
    EXPECT_NE(outil_.erreurs.find(c.message), std::string::npos) << outil_.erreurs;
  }
  EXPECT_FALSE(std::filesystem::exists(absente));
  EXPECT_EQ(Sortie({"exporter"}), Articles);
}

TEST_F(CommandesTest, LireMontreChaqueTexteASaPlace) {
  EXPECT_EQ(Sortie({"lire", "CONTRAT", "00001001"}),
            "1\t02\n2\t001\n3.1\tv1\n3.2.1\ts1\n3.2.2\ts2\n4.1.1\tx\n4.1.2\ty\n");
  EXPECT_EQ(Sortie({"lire", "CIVILAIDANT", "00001"}), "2\tLefèvre\n3\tZoé\n4\ta\\\\b\\¦c\n");
  EXPECT_EQ(Sortie({"lire", "CONTRAT", "00001002"}), "");
  EXPECT_EQ(Sortie({"lire", "CONTRAT", "00001001", "--json"}),
            "[\"02\",\"001\",[\"v1\",[\"s1\",\"s2\"]],[[\"x\",\"y\"]]]\n");
}

TEST_F(CommandesTest, SelectDonneUneRangeeParLigne) {
  storage::SqliteStorage::Ouvrir(outil_.base, data::PosteFixe(0))
      ->Put("PCS", "12", "a\tb\nc\r\x01\x7F\xC2\x85");
  const struct {
    std::vector<std::string> args;
    const char* rangees;
  } cas[] = {
      {{"SSELECT CONTRAT PAR-DECR 0"}, "00001002\n00001001\n"},
      {{"SSELECT CONTRAT", "0 3 4 9"}, "00001001\tv1¦s1¦s2\tx¦y\t\n00001002\t\t\t\n"},
      {{"SSELECT CONTRAT", "9"}, "\n\n"},
      {{"SSELECT CIVILAIDANT AVEC 2 = \"Lef]\"", "4"}, "a\\\\b\\¦c\n"},
      {{"SSELECT PCS AVEC 0 = \"12\"", "1"}, "a\\tb\\nc\\r\\u0001\\u007F\\u0085\n"},
      {{"SSELECT PCS AVEC 0 = \"13\"", "1"}, ""},
      {{"SSELECT CONTRAT", "0 4 9", "--json"},
       "[\"00001001\",[\"x\",\"y\"],\"\"]\n[\"00001002\",\"\",\"\"]\n"},
  };
  for (const auto& c : cas) {
    std::vector<std::string> args = c.args;
    args.insert(args.begin(), "select");
    EXPECT_EQ(Sortie(args), c.rangees) << c.args[0];
  }
  EXPECT_EQ(outil_.erreurs, "");
  // A name that no record bears is told from a question without an answer.
  EXPECT_EQ(Sortie({"select", "SSELECT PCT"}), "");
  EXPECT_NE(outil_.erreurs.find("Le fichier PCT n'a pas d'article"), std::string::npos);
  // What `select` shows with a backslash goes through an export and back.
  const std::string exportes = Sortie({"exporter", "--fichier", "PCS"});
  EXPECT_EQ(outil_.erreurs, "");
  EXPECT_EQ(Lance({"importer", "-"}, exportes), 0) << outil_.erreurs;
  EXPECT_EQ(Sortie({"historique", "PCS", "12"}), "");  // the same text: nothing was replaced
}

TEST_F(CommandesTest, UnTexteAnterieurSeReliEtSeRetablit) {
  EXPECT_EQ(Lance({"ecrire", "PCS", "11"}, "[\n\"Employés\"]\n"), 0) << outil_.erreurs;
  EXPECT_EQ(Sortie({"ecrire", "PCS", "11", "--item", "[\"Ouvriers\"]"}), "PCS 11 est écrit.\n");
  EXPECT_EQ(Sortie({"lire", "PCS", "11"}), "1\tOuvriers\n");
  EXPECT_EQ(Sortie({"lire", "PCS", "11", "--ancien", "1"}), "1\tCadres\n");
  EXPECT_EQ(Sortie({"lire", "PCS", "11", "--ancien", "2", "--json"}), "[\"Employés\"]\n");

  const data::PosteFixe poste(21511, "ZOE");
  storage::SqliteStorage::Ouvrir(outil_.base, poste)->Erase("PCS", "11");
  EXPECT_EQ(Lance({"lire", "PCS", "11"}), 1);
  Sortie({"historique", "PCS", "11"});
  EXPECT_EQ(outil_.sortie.substr(outil_.sortie.find("3\t")),
            "3\t2026-11-22 00:00:00\tZOE\tsupprimé\n");
  Sortie({"historique", "PCS", "11", "--json"});
  EXPECT_NE(outil_.sortie.find("{\"numero\":3,\"date\":\"2026-11-22 00:00:00\",\"utilisateur\":"
                               "\"ZOE\",\"supprime\":true,\"item\":[\"Ouvriers\"]}\n"),
            std::string::npos);

  Sortie({"retablir", "PCS", "11", "1"});
  EXPECT_EQ(Sortie({"exporter"}), Articles);
  // What stood there when a text is brought back goes to the history in its turn.
  Sortie({"retablir", "PCS", "11", "2"});
  EXPECT_EQ(Sortie({"lire", "PCS", "11", "--ancien", "4"}), "1\tCadres\n");
}

TEST_F(CommandesTest, FichiersEtVerifier) {
  Lance({"ecrire", "XYZ", "1", "--item", "[]"});
  EXPECT_EQ(Sortie({"fichiers"}),
            "CIVILAIDANT\t1\taidants\nCONTRAT\t2\tcontrats de travail\n"
            "PCS\t1\tnomenclature P.C.S.\nXYZ\t1\tfichier inconnu de la suite\n");
  EXPECT_EQ(Lance({"verifier"}), 1);
  EXPECT_EQ(outil_.sortie,
            "CIVILAIDANT\t00001\tattribut 41 : le compteur est vide, et le plus haut contrat "
            "002\n");
  EXPECT_EQ(outil_.erreurs, "5 articles lus, 1 anomalie.\n");

  std::string aidant(40, ',');
  for (std::size_t i = aidant.size(); i-- > 0;) aidant.insert(i, "\"\"");
  Lance({"ecrire", "CIVILAIDANT", "00001"}, "[" + aidant + "\"002\"]");
  EXPECT_EQ(Sortie({"verifier"}), "");
  EXPECT_EQ(outil_.erreurs, "5 articles lus, aucune anomalie.\n");
}

TEST_F(CommandesTest, DemoCreeUneBaseSansAnomalie) {
  const std::string chemin = outil_.dossier.Chemin("demo.contrats");
  EXPECT_EQ(outil_.Lance({"demo", chemin, "--aidants", "3", "--graine", "7"}), 0);
  EXPECT_EQ(outil_.Lance({"verifier", chemin}), 0) << outil_.sortie;
  EXPECT_EQ(outil_.Lance({"select", chemin, "SSELECT CIVILAIDANT"}), 0);
  EXPECT_EQ(outil_.sortie, "00001\n00002\n00003\n");
}

TEST_F(CommandesTest, LAideEstEnFrancais) {
  EXPECT_EQ(outil_.Lance({"--help"}), 0);
  EXPECT_NE(outil_.sortie.find("\n  retablir      Rend"), std::string::npos);
  for (const char* commande : {"creer", "importer", "exporter", "lire", "ecrire", "select",
                               "fichiers", "verifier", "historique", "retablir", "demo"}) {
    ASSERT_EQ(outil_.Lance({commande, "--help"}), 0);
    const std::string debut = "Usage : contrat-base " + std::string(commande) + " BASE";
    EXPECT_NE(outil_.sortie.find(debut), std::string::npos) << outil_.sortie;
    for (const char* anglais : {"Usage:", "OPTIONS", "REQUIRED", "TEXT", "Print", "Positionals"}) {
      EXPECT_EQ(outil_.sortie.find(anglais), std::string::npos) << outil_.sortie;
    }
  }
}

TEST_F(CommandesTest, UneSortiePleineEstUnePanne) {
  struct Plein : std::streambuf {
    std::streamsize xsputn(const char*, std::streamsize) override { return 0; }
  } plein;
  std::istringstream entree;
  std::ostream sortie(&plein);
  std::ostringstream erreurs;
  EXPECT_EQ(base::executer({"exporter", outil_.base}, entree, sortie, erreurs), 3);
  EXPECT_EQ(erreurs.str(), "La sortie ne peut pas être écrite : disque plein ou tube fermé.\n");
}

TEST(Progres, MontreCinqFoisParSecondeEtEffaceSaLigne) {
  std::chrono::milliseconds heure{0};
  std::ostringstream terminal;
  {
    const auto chrono = [&] { return heure; };
    base::Progres progres(terminal, true, "Essai", chrono);
    base::Progres muet(terminal, false, "Muet", chrono);
    for (const int instant : {199, 200, 399, 400, 599}) {
      heure = std::chrono::milliseconds(instant);
      progres.Avance(1'234'000 + instant, instant == 400 ? 2'468'800 : 0);
      muet.Avance(instant);
    }
  }
  EXPECT_EQ(terminal.str(),
            "\r\x1b[KEssai : 1 234 200"
            "\r\x1b[KEssai : 1 234 400 sur 2 468 800 (50 %)"
            "\r\x1b[K");
}

}  // namespace
