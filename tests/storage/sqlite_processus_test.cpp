// Several processes on one data file, and processes that die.

#include <sqlite3.h>

#include <array>
#include <csignal>

#include "essai.h"
#include "support/enfant.h"

namespace {

using essai::etat;
using essai::refus;

using support::Attendre;
using support::Lancer;

class Processus : public essai::Fichier {
 protected:
  Processus() { Creer()->Put("CONTRAT", "0", "a"); }
  static bool Tue(int fin) { return WIFSIGNALED(fin) && WTERMSIG(fin) == SIGKILL; }
};

TEST_F(Processus, WritersWaitForEachOther) {
  constexpr int kEnfants = 3;
  constexpr int kTours = 40;
  std::array<pid_t, kEnfants> enfants{};
  for (std::size_t e = 0; e < kEnfants; ++e) {
    enfants[e] = Lancer([&, e] {
      const auto store = Ouvrir(5000);
      for (int i = 0; i < kTours; ++i) {
        store->Put("CONTRAT", std::to_string(e + 1) + "-" + std::to_string(i), "t");
        store->Put("CONTRAT", "0", std::to_string(e) + "." + std::to_string(i));
      }
    });
  }
  for (const pid_t enfant : enfants) EXPECT_EQ(Attendre(enfant), 0);
  const auto store = Ouvrir(5000);
  EXPECT_EQ(store->Fichiers().at(0).articles, 1 + kEnfants * kTours);
  // No overwritten text is lost, whoever overwrote it.
  EXPECT_EQ(store->Historique("CONTRAT", "0").size(), kEnfants * kTours);
}

TEST_F(Processus, LockHeldTooLongIsOccupe) {
  const auto premier = Ouvrir(5000);
  const auto second = Ouvrir();
  premier->EnUnBloc([&] {
    premier->Put("CONTRAT", "0", "b");
    std::string message;
    EXPECT_EQ(refus([&] { second->Put("CONTRAT", "0", "c"); }, &message), "Occupe CONTRAT 0");
    EXPECT_EQ(message, "Écriture de l'article « 0 » du fichier CONTRAT impossible dans « " +
                           chemin_ +
                           " » : un autre programme garde le fichier occupé. Réessayez dans un "
                           "instant.");
    EXPECT_EQ(etat(*second), "CONTRAT[0=a]");
  });
  second->Put("CONTRAT", "0", "c");
  EXPECT_EQ(essai::anciens(*premier, "CONTRAT", "0"), "1:a 2:b");
}

// After a crash the last writes stand in the log alone. In the second round an ordinary SQLite tool
// looks at the file first, and copies them into it, without seals.
TEST_F(Processus, KilledWriterLosesNothingAcknowledged) {
  for (const bool outil : {false, true}) {
    int tube[2];
    ASSERT_EQ(pipe(tube), 0);
    const pid_t enfant = Lancer([&] {
      const auto store = Ouvrir(5000);
      for (int i = 1; i <= 30; ++i) {
        store->Put("CONTRAT", "0", std::to_string(i));
        if (write(tube[1], "x", 1) != 1) return;
      }
      store->EnUnBloc([&] {
        for (int i = 0; i < 3000; ++i)
          store->Put("TABLES", std::to_string(i), std::string(900, 't'));
        raise(SIGKILL);
      });
    });
    close(tube[1]);
    char octet = 0;
    int accuses = 0;
    while (read(tube[0], &octet, 1) == 1) ++accuses;
    close(tube[0]);
    EXPECT_TRUE(Tue(Attendre(enfant)));
    ASSERT_EQ(accuses, 30);
    if (outil) {
      sqlite3* db = nullptr;
      ASSERT_EQ(sqlite3_open(chemin_.c_str(), &db), SQLITE_OK);
      EXPECT_EQ(sqlite3_exec(db, "SELECT count(*) FROM article", nullptr, nullptr, nullptr),
                SQLITE_OK);
      sqlite3_close(db);
      ASSERT_FALSE(std::filesystem::exists(chemin_ + "-wal"));
    }
    const auto store = Ouvrir(50);
    EXPECT_EQ(etat(*store), "CONTRAT[0=30]");
    EXPECT_EQ(store->Historique("CONTRAT", "0").size(), outil ? 61U : 30U);
    store->Put("CONTRAT", "0", "suite");
    store->Verifier([](const storage::Dommage& d) { ADD_FAILURE() << d.message; });
  }
}

}  // namespace
