// What stands beside a data file: left by nobody, shared by those who share the file, and never
// laid over a file that it does not belong to.

#include <sys/resource.h>
#include <sys/stat.h>
#include <unistd.h>

#include <array>
#include <csignal>
#include <set>

#include "essai.h"
#include "processus.h"

namespace {

using essai::etat;
using essai::refus;
using storage::SqliteStorage;
namespace fs = std::filesystem;

class Voisins : public essai::Fichier {
 protected:
  Voisins() {
    fs::permissions(dossier_.Dossier(), fs::perms{0777});
    Creer()->Put("CONTRAT", "1", "a");
    fs::permissions(chemin_, fs::perms{0644});
  }
  // The names in the folder, "essai" for one whole file.
  std::string Dossier() const {
    std::set<std::string> noms;
    for (const auto& entree : fs::directory_iterator(dossier_.Dossier())) {
      noms.insert(entree.path().filename());
    }
    std::string texte;
    for (const std::string& nom : noms) essai::ajouter(texte, nom);
    return texte;
  }
  // Writes that only the log holds, as a killed program leaves them.
  void LaisserJournal(int articles = 1) const {
    essai::ailleurs([&]() -> std::string {
      const auto store = Ouvrir();
      for (int i = 0; i < articles; ++i) store->Put("CONTRAT", std::to_string(i + 2), "b");
      raise(SIGKILL);
      return {};
    });
    ASSERT_GT(fs::file_size(chemin_ + "-wal"), 0U);
  }
};

TEST_F(Voisins, TheLastToLeaveLeavesOneWholeFile) {
  Lire();
  EXPECT_EQ(Dossier(), "essai");
  {
    auto ecrivain = Ouvrir();
    const auto lecteur = Lire();
    ecrivain->Put("CONTRAT", "0", "z");
    ecrivain.reset();
    EXPECT_EQ(etat(*lecteur), "CONTRAT[0=z 1=a]");
  }
  EXPECT_EQ(Dossier(), "essai");
  LaisserJournal();
  Lire();
  EXPECT_EQ(Dossier(), "essai");
  EXPECT_EQ(etat(*Lire()), "CONTRAT[0=z 1=a 2=b]");
}

// A colleague who may read the file and write the folder locks nobody out.
TEST_F(Voisins, AReaderWithoutRightsLeavesNothing) {
  const auto lire = [&] { return etat(*Lire()); };
  EXPECT_EQ(essai::sansDroits(lire), "CONTRAT[1=a]");
  EXPECT_EQ(Dossier(), "essai");
  {
    const auto ecrivain = Ouvrir();
    ecrivain->Put("CONTRAT", "2", "b");
    EXPECT_EQ(essai::sansDroits(lire), "CONTRAT[1=a 2=b]");
  }
  EXPECT_EQ(Dossier(), "essai");
  LaisserJournal(3);
  fs::remove(chemin_ + "-shm");
  EXPECT_EQ(essai::sansDroits(lire), "CONTRAT[1=a 2=b 3=b 4=b]");
  EXPECT_EQ(Dossier(), "essai essai-wal");
}

// It takes no locks, so it must see by itself that others write.
TEST_F(Voisins, AReaderWithoutRightsFollowsTheWriters) {
  std::array<int, 2> aller{};
  std::array<int, 2> retour{};
  ASSERT_EQ(pipe(aller.data()) + pipe(retour.data()), 0);
  const pid_t autre = fork();
  char octet = 'x';
  if (autre == 0) {
    // Each byte that comes is a write; after the second the writer is gone.
    auto ecrivain = Ouvrir();
    if (write(retour[1], &octet, 1) != 1) _exit(1);
    for (int tour = 0; read(aller[0], &octet, 1) == 1; ++tour) {
      ecrivain->Put("CONTRAT", std::to_string(tour + 2), "b");
      if (tour == 1) ecrivain.reset();
      if (write(retour[1], &octet, 1) != 1 || tour == 1) break;
    }
    _exit(0);
  }
  ASSERT_EQ(read(retour[0], &octet, 1), 1);
  const auto suivant = [&] {
    return write(aller[1], &octet, 1) == 1 && read(retour[0], &octet, 1) == 1;
  };
  EXPECT_EQ(essai::sansDroits([&] {
              const auto lecteur = Lire();
              std::string texte = etat(*lecteur);
              if (suivant()) texte += " " + etat(*lecteur);
              // The log goes into the file, and goes, in the middle of a scan.
              texte += " " + refus([&] {
                         lecteur->Scan("CONTRAT", data::KeyRange::Tout(),
                                       [&](auto, auto) { return suivant(); });
                       });
              return texte + " " + etat(*lecteur);
            }),
            "CONTRAT[1=a] CONTRAT[1=a 2=b] Occupe CONTRAT CONTRAT[1=a 2=b 3=b]");
  EXPECT_EQ(waitpid(autre, nullptr, 0), autre);
  EXPECT_EQ(Dossier(), "essai");
}

TEST_F(Voisins, ThoseWhoShareTheFileShareItsLog) {
  if (geteuid() != 0) GTEST_SKIP() << "needs two users";
  constexpr gid_t kCommun = 4242;
  ASSERT_EQ(chown(chemin_.c_str(), 0, kCommun), 0);
  fs::permissions(chemin_, fs::perms{0664});
  EXPECT_EQ(essai::sansDroits(
                [&] {
                  const auto store = Ouvrir();
                  store->Put("CONTRAT", "2", "b");
                  std::string texte;
                  for (const char* suffixe : {"-wal", "-shm"}) {
                    struct stat fiche {};
                    stat((chemin_ + suffixe).c_str(), &fiche);
                    texte += std::to_string(fiche.st_gid) + ":" +
                             std::to_string(fiche.st_mode & 0777U) + " ";
                  }
                  return texte;
                },
                kCommun),
            "4242:436 4242:436 ");  // 0664
}

// A limit on the size of files stands for a disk without room for the log's index.
TEST_F(Voisins, AFullDiskIsStillRead) {
  const auto lire = [&] {
    const rlimit limite{1000, 1000};
    setrlimit(RLIMIT_FSIZE, &limite);
    return etat(*Lire());
  };
  EXPECT_EQ(essai::ailleurs(lire), "CONTRAT[1=a]");
  EXPECT_EQ(Dossier(), "essai");
  LaisserJournal();
  fs::remove(chemin_ + "-shm");
  EXPECT_EQ(essai::ailleurs(lire), "CONTRAT[1=a 2=b]");
}

// The same limit, met by a write: an error like another, and what stood stands.
TEST_F(Voisins, AWriteBeyondALimitIsSaidAsWhatItIs) {
  EXPECT_EQ(essai::ailleurs([&]() -> std::string {
              const auto store = Ouvrir();
              const rlimit limite{300000, 300000};
              setrlimit(RLIMIT_FSIZE, &limite);
              std::string message;
              std::string texte =
                  refus([&] { store->Put("CONTRAT", "2", std::string(400000, 'x')); }, &message);
              if (message.find("la taille que ce poste permet") == message.npos) return message;
              store->Put("CONTRAT", "3", "c");
              return texte + " " + etat(*store);
            }),
            "DisquePlein CONTRAT 2 CONTRAT[1=a 3=c]");
}

// A backup put over the file after a crash: the log beside it is the former file's.
TEST_F(Voisins, ALogIsNeverLaidOverAnotherFile) {
  const std::string sauvegarde = dossier_.Chemin("sauvegarde");
  fs::copy_file(chemin_, sauvegarde);
  for (const int articles : {1, 300}) {
    for (const bool deplacee : {false, true}) {
      SCOPED_TRACE(std::to_string(articles) + (deplacee ? " moved" : " copied"));
      LaisserJournal(articles);
      fs::copy_file(sauvegarde, chemin_ + ".neuf");
      if (deplacee) {
        fs::rename(chemin_ + ".neuf", chemin_);
      } else {
        fs::copy_file(sauvegarde, chemin_, fs::copy_options::overwrite_existing);
        fs::remove(chemin_ + ".neuf");
      }
      EXPECT_EQ(essai::sansDroits([&] {
                  const auto store = Lire();
                  return etat(*store) + (store->Avis().empty() ? "" : " told");
                }),
                "CONTRAT[1=a] told");
      const auto store = deplacee ? Ouvrir() : Lire();
      EXPECT_EQ(etat(*store), "CONTRAT[1=a]");
      EXPECT_NE(store->Avis().find("essai-wal.autre-fichier1"), std::string::npos) << store->Avis();
      store->Verifier([](const storage::Dommage& d) { ADD_FAILURE() << d.message; });
      EXPECT_TRUE(fs::remove(chemin_ + "-wal.autre-fichier1"));
    }
  }
  EXPECT_EQ(Lire()->Avis(), "");
}

// The file and its log, copied together, are one.
TEST_F(Voisins, ACopiedPairKeepsItsWrites) {
  LaisserJournal();
  const std::string copie = dossier_.Chemin("copie");
  fs::copy_file(chemin_, copie);
  fs::copy_file(chemin_ + "-wal", copie + "-wal");
  const auto store = SqliteStorage::Ouvrir(copie, poste_);
  EXPECT_EQ(etat(*store), "CONTRAT[1=a 2=b]");
  EXPECT_EQ(store->Avis(), "");
}

// Copied over under a program that has it open: neither takes anything from the other.
TEST_F(Voisins, AFileOverwrittenWhileOpenTakesNoMoreWrites) {
  const std::string sauvegarde = dossier_.Chemin("sauvegarde");
  fs::copy_file(chemin_, sauvegarde);
  for (const bool ecrit : {true, false}) {
    SCOPED_TRACE(ecrit);
    {
      const auto store = Ouvrir();
      if (ecrit) store->Put("CONTRAT", "2", "b");
      fs::copy_file(sauvegarde, chemin_, fs::copy_options::overwrite_existing);
      std::string message;
      if (ecrit) {
        EXPECT_EQ(refus([&] { store->Put("CONTRAT", "3", "c"); }, &message),
                  "EntreeSortie CONTRAT 3");
        EXPECT_NE(message.find("remplacé par un autre"), std::string::npos) << message;
        EXPECT_EQ(essai::ailleurs([&] { return refus([&] { Ouvrir(); }); }), "Occupe");
      }
    }
    EXPECT_EQ(etat(*Ouvrir()), "CONTRAT[1=a]");
  }
}

}  // namespace
