// Copies made while others work, and put back in place; files of network folders.

#include "storage/copie.h"

#include <sys/stat.h>
#include <sys/sysmacros.h>

#include <csignal>
#include <fstream>
#include <sstream>

#include "essai.h"
#include "processus.h"
#include "storage/reseau.h"

namespace {

using essai::etat;
using essai::refus;
using storage::SqliteStorage;
namespace fs = std::filesystem;

class Copies : public essai::Fichier {
 protected:
  Copies() { Creer()->Put("CONTRAT", "1", "a"); }
  std::string Etat(const std::string& chemin) const {
    const auto store = SqliteStorage::Ouvrir(chemin, poste_);
    store->Verifier([](const storage::Dommage& d) { ADD_FAILURE() << d.message; });
    return etat(*store);
  }
  // A write that only the log holds.
  void EcrireEtTomber() const {
    essai::ailleurs([&]() -> std::string {
      const auto store = Ouvrir();
      store->Put("CONTRAT", "2", "b");
      raise(SIGKILL);
      return {};
    });
  }
  std::string Refus(const std::function<void()>& acte) { return refus(acte, &message_); }
  std::size_t Fichiers() const {
    return static_cast<std::size_t>(
        std::distance(fs::directory_iterator(dossier_.Dossier()), fs::directory_iterator()));
  }

  std::string copie_ = dossier_.Chemin("copie");
  std::string message_;
};

TEST_F(Copies, HoldWhatWasWrittenWhileTheFileIsInUse) {
  fs::permissions(chemin_, fs::perms{0640});
  const auto store = Ouvrir();
  store->Put("CONTRAT", "1", "b");
  store->EnUnBloc([&] {
    store->Put("CONTRAT", "2", "not yet");
    storage::copierFichier(chemin_, copie_);
  });
  EXPECT_EQ(fs::status(copie_).permissions(), fs::perms{0640});
  const auto copie = SqliteStorage::OuvrirEnLecture(copie_, poste_);
  EXPECT_EQ(etat(*copie), "CONTRAT[1=b]");
  EXPECT_EQ(essai::anciens(*copie, "CONTRAT", "1"), "1:a");
  EXPECT_EQ(Etat(copie_), "CONTRAT[1=b]");
  EXPECT_EQ(Refus([&] { storage::copierFichier(chemin_, copie_); }), "EntreeSortie");
  EXPECT_NE(message_.find("déjà un fichier"), std::string::npos) << message_;
}

TEST_F(Copies, OfADamagedFileAreNotMade) {
  Ouvrir()->Put("TABLES", "1", std::string(30000, 't'));
  std::fstream(chemin_, std::ios::in | std::ios::out | std::ios::binary).seekp(8192L * 4 + 100)
      << '!';
  EXPECT_EQ(Refus([&] { storage::copierFichier(chemin_, copie_); }), "Endommage");
  EXPECT_EQ(Fichiers(), 1U);
}

TEST_F(Copies, PutBackKeepTheFormerFileWithItsLog) {
  storage::copierFichier(chemin_, copie_);
  EcrireEtTomber();
  const std::string ancien = storage::restaurerFichier(chemin_, copie_);
  EXPECT_EQ(ancien, chemin_ + ".avant-restauration1");
  EXPECT_EQ(Etat(chemin_), "CONTRAT[1=a]");
  EXPECT_EQ(Etat(ancien), "CONTRAT[1=a 2=b]");
  // A copy's own mark keeps the log of its original away as well.
  fs::remove(chemin_);
  EXPECT_EQ(storage::restaurerFichier(chemin_, ancien), "");
  EXPECT_EQ(Etat(chemin_), "CONTRAT[1=a 2=b]");
}

TEST_F(Copies, WrittenByHandOverACrashedFileStayWhole) {
  storage::copierFichier(chemin_, copie_);
  EcrireEtTomber();
  fs::copy_file(copie_, chemin_, fs::copy_options::overwrite_existing);
  EXPECT_EQ(Etat(chemin_), "CONTRAT[1=a]");
}

TEST_F(Copies, AreNotPutBackUnderAnOpenProgram) {
  storage::copierFichier(chemin_, copie_);
  for (const auto ouvrir : {SqliteStorage::Ouvrir, SqliteStorage::OuvrirEnLecture}) {
    const auto store = ouvrir(chemin_, poste_, {});
    EXPECT_EQ(Refus([&] { storage::restaurerFichier(chemin_, copie_, {50, 0}); }), "Occupe");
    EXPECT_EQ(etat(*store), "CONTRAT[1=a]");
  }
  EXPECT_EQ(Fichiers(), 2U);
  // Whatever state the file is in that is replaced.
  std::ofstream(chemin_) << "damaged";
  storage::restaurerFichier(chemin_, copie_);
  EXPECT_EQ(Etat(chemin_), "CONTRAT[1=a]");
}

TEST_F(Copies, AFileOfANetworkFolderIsRefused) {
  struct stat fiche {};
  ASSERT_EQ(stat(chemin_.c_str(), &fiche), 0);
  const std::string ici =
      std::to_string(major(fiche.st_dev)) + ":" + std::to_string(minor(fiche.st_dev));
  const auto systeme = [&](const std::string& lignes, const std::string& chemin) {
    std::istringstream montages(lignes);
    return storage::systemeReseau(chemin, montages);
  };
  const std::string local = "25 1 " + ici + " / / rw,relatime shared:1 - ext4 /dev/sda1 rw\n";
  const std::string autre = "26 25 0:9999 / /mnt rw - nfs4 nas:/donnees rw\n";
  const std::string nas = "26 25 " + ici + " / /mnt rw shared:2 master:1 - cifs //nas/c rw\n";
  EXPECT_EQ(systeme(local + autre, chemin_), "");
  EXPECT_EQ(systeme(autre + nas, chemin_), "cifs");
  EXPECT_EQ(systeme(autre + nas, dossier_.Chemin("neuf")), "cifs");
  std::istringstream montages(nas);
  EXPECT_EQ(Refus([&] { storage::refuserReseau(chemin_, montages); }), "EntreeSortie");
  EXPECT_NE(message_.find("un dossier du réseau (cifs)"), std::string::npos) << message_;
}

}  // namespace
