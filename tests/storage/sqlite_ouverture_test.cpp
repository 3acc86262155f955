// Opening and creating data files: what is accepted, and how the rest is refused.

#include <sys/stat.h>

#include <fstream>

#include "data/poste.h"
#include "essai.h"
#include "processus.h"
#include "storage/sqlite.h"
#include "support/temp_dir.h"

namespace {

using essai::etat;
using essai::refus;
using storage::SqliteStorage;
namespace fs = std::filesystem;

class Ouverture : public testing::Test {
 protected:
  std::string Creer(const std::string& nom) {
    std::string chemin = dossier_.Chemin(nom);
    SqliteStorage::Creer(chemin, poste_)->Put("CONTRAT", "1", "a");
    return chemin;
  }
  // Writes `octets` over a file's bytes from `lieu` on.
  static void Ecraser(const std::string& chemin, long lieu, const std::string& octets) {
    std::fstream fichier(chemin, std::ios::in | std::ios::out | std::ios::binary);
    fichier.seekp(lieu);
    fichier << octets;
  }
  static void Ecrire(const std::string& chemin, const std::string& octets) {
    std::ofstream(chemin, std::ios::binary) << octets;
  }

  data::PosteFixe poste_{21511};
  support::TempDir dossier_;
};

TEST_F(Ouverture, RefusesWhatIsNoDataFileOfThisVersion) {
  constexpr long kTout = -1;  // the whole file; other places are written over in a sound one
  constexpr long kPret = -2;  // as it stands
  // Places of SQLite's header: application 68, version 60, page size 16, all big-endian.
  const struct {
    const char* nom;
    long lieu;
    std::string octets;
    const char* attendu;
    const char* dit;
  } cas[] = {{"absent", kPret, "", "EntreeSortie", "pas de fichier à cet endroit"},
             {"dossier", kPret, "", "PasUneBase", "un dossier"},
             {"tube", kPret, "", "PasUneBase", "pas un fichier"},
             {"vide", kTout, "", "PasUneBase", "est vide"},
             {"texte", kTout, std::string(9000, 'x'), "PasUneBase", "pas un fichier"},
             {"autre", 68, "ABCD", "PasUneBase", "autre programme"},
             {"neuf", 60, {"\0\0\0\x03", 4}, "VersionInconnue", "Installez la dernière version"},
             {"vieux", 60, {"\0\0\0\0", 4}, "VersionInconnue", "Exportez"},
             {"pages", 16, "\x10", "Endommage", "endommagé"}};
  fs::create_directory(dossier_.Chemin("dossier"));
  mkfifo(dossier_.Chemin("tube").c_str(), 0600);
  for (const auto& c : cas) {
    SCOPED_TRACE(c.nom);
    const std::string chemin = dossier_.Chemin(c.nom);
    if (c.lieu == kTout) Ecrire(chemin, c.octets);
    if (c.lieu >= 0) Ecraser(Creer(c.nom), c.lieu, c.octets);
    for (const auto ouvrir : {SqliteStorage::Ouvrir, SqliteStorage::OuvrirEnLecture}) {
      std::string message;
      EXPECT_EQ(refus([&] { ouvrir(chemin, poste_, {}); }, &message), c.attendu);
      EXPECT_NE(message.find("Ouverture de « " + chemin + " » impossible"), std::string::npos)
          << message;
      EXPECT_NE(message.find(c.dit), std::string::npos) << message;
    }
  }
}

TEST_F(Ouverture, CreatesOnlyWhereNothingStands) {
  const std::string present = Creer("present");
  const std::string vide = dossier_.Chemin("vide");
  Ecrire(vide, "");
  for (const std::string& chemin :
       {present, vide, dossier_.Dossier().string(), dossier_.Chemin("nulle/part")}) {
    EXPECT_EQ(refus([&] { SqliteStorage::Creer(chemin, poste_); }), "EntreeSortie") << chemin;
  }
  EXPECT_EQ(fs::file_size(vide), 0U);
  EXPECT_EQ(etat(*SqliteStorage::Ouvrir(present, poste_)), "CONTRAT[1=a]");
}

TEST_F(Ouverture, NamesThatSqliteWouldReadOtherwiseAreFileNames) {
  const fs::path avant = fs::current_path();
  fs::current_path(dossier_.Dossier());
  for (const char* nom : {":memory:", "file:x?mode=memory", "l'été 100%.contrats"}) {
    SqliteStorage::Creer(nom, poste_)->Put("CONTRAT", "1", nom);
    EXPECT_TRUE(fs::is_regular_file(nom)) << nom;
    EXPECT_EQ(etat(*SqliteStorage::Ouvrir(nom, poste_)), "CONTRAT[1=" + std::string(nom) + "]");
  }
  fs::current_path(avant);
}

TEST_F(Ouverture, ReadOnlyOpeningReadsAndNeverWrites) {
  const std::string chemin = Creer("essai");
  const auto ecrivain = SqliteStorage::Ouvrir(chemin, poste_);
  const auto lecteur = SqliteStorage::OuvrirEnLecture(chemin, poste_);
  ecrivain->Put("CONTRAT", "2", "b");
  EXPECT_EQ(etat(*lecteur), "CONTRAT[1=a 2=b]");
  EXPECT_EQ(refus([&] { lecteur->Put("CONTRAT", "3", "c"); }), "LectureSeule CONTRAT 3");
  EXPECT_EQ(refus([&] { lecteur->Erase("CONTRAT", "1"); }), "LectureSeule CONTRAT 1");
  EXPECT_EQ(refus([&] { lecteur->EnUnBloc([] {}); }), "LectureSeule");
  EXPECT_EQ(etat(*lecteur), "CONTRAT[1=a 2=b]");
}

TEST_F(Ouverture, PlacesWithoutRights) {
  const std::string chemin = Creer("essai.contrats");
  const auto ouvrir = [&] { return refus([&] { SqliteStorage::Ouvrir(chemin, poste_); }); };
  const auto consulter = [&] {
    std::string lu;
    const std::string erreur =
        refus([&] { lu = etat(*SqliteStorage::OuvrirEnLecture(chemin, poste_)); });
    return lu.empty() ? erreur : lu;
  };
  const auto creer = [&] {
    return refus([&] { SqliteStorage::Creer(dossier_.Chemin("neuf"), poste_); });
  };
  fs::permissions(dossier_.Dossier(), fs::perms{0555});
  fs::permissions(chemin, fs::perms{0666});
  EXPECT_EQ(essai::sansDroits(ouvrir), "LectureSeule");
  EXPECT_EQ(essai::sansDroits(consulter), "CONTRAT[1=a]");
  EXPECT_EQ(essai::sansDroits(creer), "LectureSeule");
  fs::permissions(dossier_.Dossier(), fs::perms{0777});
  fs::permissions(chemin, fs::perms{0444});
  EXPECT_EQ(essai::sansDroits(ouvrir), "LectureSeule");
  fs::permissions(chemin, fs::perms{0200});
  EXPECT_EQ(essai::sansDroits(ouvrir), "EntreeSortie");
  EXPECT_EQ(essai::sansDroits(consulter), "EntreeSortie");
}

TEST_F(Ouverture, FullDiskRefusesAndKeepsWhatStood) {
  const std::string chemin = Creer("essai");
  const std::string gros(20000, 'x');
  const auto store = SqliteStorage::Ouvrir(chemin, poste_, {50, 12});
  std::string message;
  int ecrits = 0;
  // Twelve pages of 8 KB hold at most four texts of 20,000 bytes, and at least one.
  while (ecrits < 5 &&
         refus([&] { store->Put("TABLES", std::to_string(ecrits), gros); }, &message) == "rien") {
    ++ecrits;
  }
  EXPECT_TRUE(ecrits >= 1 && ecrits <= 4) << ecrits;
  EXPECT_NE(message.find("le disque est plein"), std::string::npos) << message;
  EXPECT_EQ(refus([&] {
              store->EnUnBloc([&] {
                store->Put("CONTRAT", "1", "b");
                // Passing over the failure does not save the rest of the block.
                refus([&] { store->Put("TABLES", "fin", gros); });
              });
            }),
            "DisquePlein TABLES fin");
  EXPECT_EQ(store->Fichiers().back().articles, ecrits);
  store->Put("CONTRAT", "1", "c");
  std::string texte;
  EXPECT_TRUE(SqliteStorage::Ouvrir(chemin, poste_)->Get("CONTRAT", "1", texte));
  EXPECT_EQ(texte, "c");
}

// A file moved under a program that has it open takes all that was written along.
TEST_F(Ouverture, MovedWhileOpenItLosesNothing) {
  const std::string ici = Creer("ici");
  const std::string ailleurs = dossier_.Chemin("ailleurs");
  {
    const auto ouvert = SqliteStorage::Ouvrir(ici, poste_);
    ouvert->Put("CONTRAT", "2", "b");
    fs::rename(ici, ailleurs);
    EXPECT_EQ(refus([&] { ouvert->Put("CONTRAT", "3", "c"); }), "EntreeSortie CONTRAT 3");
  }
  EXPECT_EQ(etat(*SqliteStorage::Ouvrir(ailleurs, poste_)), "CONTRAT[1=a 2=b]");
}

}  // namespace
