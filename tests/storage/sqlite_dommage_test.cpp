// Damaged data files: no damage is ever read as sound, nor taken for an absent record.

#include <fstream>
#include <map>
#include <random>

#include "data/layouts/recherches.h"
#include "essai.h"
#include "storage/sqlite_pages.h"

namespace {

using essai::refus;
using storage::SqliteStorage;
namespace fs = std::filesystem;

constexpr int kArticles = 400;

std::string cle(int i) {
  return std::to_string(10000 + i);
}
std::string texte(int i) {
  return cle(i) + std::string(static_cast<std::size_t>(i % 700), 't');
}

class Dommages : public essai::Fichier {
 protected:
  // Five keys in six are there; the others are for questions about absent records.
  static bool Presente(int i) { return i % 6 != 0; }

  Dommages() {
    const auto store = Creer();
    store->EnUnBloc([&] {
      for (int i = 0; i < kArticles; ++i) {
        if (!Presente(i)) continue;
        if (i % 10 == 1) store->Put("CONTRAT", cle(i), "avant");
        store->Put("CONTRAT", cle(i), texte(i));
      }
    });
  }
  std::string Octets() const {
    std::ifstream fichier(chemin_, std::ios::binary);
    return {std::istreambuf_iterator<char>(fichier), {}};
  }
  void Remplacer(const std::string& octets) {
    std::ofstream(chemin_, std::ios::binary | std::ios::trunc) << octets;
  }
  std::vector<storage::Dommage> Verifier() {
    std::vector<storage::Dommage> dommages;
    Ouvrir()->Verifier([&](const storage::Dommage& d) { dommages.push_back(d); });
    return dommages;
  }
  // Asks for everything. Every answer must be right or a refusal; the number of refusals.
  int Interroger() {
    int refuses = 0;
    std::unique_ptr<SqliteStorage> store;
    // "Not a data file" and "another version" are right as well when the header's marks are hit.
    if (refus([&] { store = Ouvrir(); }) != "rien") return 1;
    const auto essayer = [&](const std::function<void()>& acte) {
      const std::string refuse = refus(acte);
      if (refuse == "rien") return;
      ++refuses;
      EXPECT_EQ(refuse.substr(0, 9), "Endommage");
    };
    for (int i = 0; i < kArticles; ++i) {
      essayer([&] {
        std::string lu;
        const bool la = store->Get("CONTRAT", cle(i), lu);
        EXPECT_EQ(la, Presente(i)) << cle(i);
        EXPECT_EQ(lu, Presente(i) ? texte(i) : "") << cle(i);
      });
      essayer([&] {
        EXPECT_EQ(essai::anciens(*store, "CONTRAT", cle(i)),
                  Presente(i) && i % 10 == 1 ? "1:avant" : "");
      });
    }
    essayer([&] {
      int vus = 0;
      store->Scan("CONTRAT", data::KeyRange::Prefixe("101"), [&](auto, auto) { return ++vus > 0; });
      EXPECT_EQ(vus, 83);  // of 100 to 199, all but the 17 multiples of 6
    });
    essayer([&] {
      const data::Chemin liens{&data::IndexTenus[0], data::KeyRange::Prefixe("1")};
      EXPECT_EQ(store->Compter("CONTRAT", liens, 9), 0U);
    });
    return refuses;
  }
};

TEST_F(Dommages, AnyFlippedByteIsNoticed) {
  const std::string sain = Octets();
  ASSERT_EQ(Interroger(), 0);
  const unsigned graine = std::random_device{}();
  SCOPED_TRACE("seed " + std::to_string(graine));
  std::mt19937 hasard(graine);
  int remarques = 0;
  for (int tour = 0; tour < 40 && !HasFailure(); ++tour) {
    std::string octets = sain;
    // Every other time in a page's first bytes, where the structure stands.
    std::size_t lieu = hasard() % sain.size();
    if (tour % 2 == 0) lieu -= lieu % storage::kOctetsPage - hasard() % 64;
    octets[lieu] = static_cast<char>(octets[lieu] ^ static_cast<char>(1 + hasard() % 255));
    SCOPED_TRACE("byte " + std::to_string(lieu));
    Remplacer(octets);
    remarques += Interroger() > 0 ? 1 : 0;
  }
  EXPECT_EQ(remarques, 40);  // every page of this file is read by some question
}

TEST_F(Dommages, AFileCutShortIsNoticed) {
  const std::string sain = Octets();
  for (const std::size_t manque :
       {std::size_t{1}, std::size_t{8192}, std::size_t{8193}, sain.size() - 100, sain.size()}) {
    SCOPED_TRACE(manque);
    Remplacer(sain.substr(0, sain.size() - manque));
    EXPECT_GT(Interroger(), 0);
  }
}

TEST_F(Dommages, ADamagedTextNamesItsPageAndTheCheckGoesOn) {
  std::string octets = Octets();
  const std::size_t lieu = octets.find(texte(205));
  ASSERT_NE(lieu, std::string::npos);
  octets[lieu + 50] = 'u';
  Remplacer(octets);
  const std::string page = std::to_string(lieu / storage::kOctetsPage + 1);
  const auto store = Ouvrir();
  std::string message;
  std::string lu;
  EXPECT_EQ(refus([&] { store->Get("CONTRAT", cle(205), lu); }, &message),
            "Endommage CONTRAT " + cle(205));
  EXPECT_NE(message.find("Lecture de l'article « 10205 » du fichier CONTRAT impossible dans « " +
                         chemin_ + " » : la page " + page + " du fichier est endommagée."),
            std::string::npos)
      << message;
  EXPECT_TRUE(store->Get("CONTRAT", cle(1), lu));
  EXPECT_EQ(refus([&] { store->Put("CONTRAT", cle(205), "x"); }), "Endommage CONTRAT " + cle(205));

  const auto dommages = Verifier();
  ASSERT_FALSE(dommages.empty());
  EXPECT_EQ(dommages.front().message, "La page " + page + " du fichier est endommagée.");
  // What cannot be read is bounded on both sides.
  EXPECT_NE(dommages.back().message.find("Les articles entre CONTRAT « 1"), std::string::npos)
      << dommages.back().message;
}

TEST_F(Dommages, TheCheckWordsWhatSqliteFinds) {
  const std::size_t taille = Octets().size();
  // Pages that nothing leads to any more, two findings in one answer of SQLite.
  Sql("CREATE TABLE perdue(x); INSERT INTO perdue VALUES(zeroblob(8190)); "
      "PRAGMA writable_schema = ON; DELETE FROM sqlite_schema WHERE name = 'perdue';");
  const auto page = [](std::size_t n) {
    return "La page " + std::to_string(n) + " du fichier est endommagée.\n";
  };
  const std::size_t pages = taille / storage::kOctetsPage;
  std::string tout;
  for (const auto& d : Verifier()) tout += d.message + "\n";
  EXPECT_EQ(tout, page(pages + 1) + page(pages + 2));
  std::string message;
  Remplacer(Octets().substr(0, taille));
  EXPECT_EQ(refus([&] { Ouvrir(); }, &message), "Endommage");
  EXPECT_NE(message.find("la fin du fichier manque : il a " + std::to_string(taille) +
                         " octets au lieu de " + std::to_string(taille + 2 * 8192) + "."),
            std::string::npos)
      << message;
}

// What no seal can tell: sound pages that hold records which the store did not write so.
TEST_F(Dommages, ARecordChangedBehindTheStoreIsNoticed) {
  Sql("UPDATE article SET texte = texte || '.' WHERE cle = '10101';"
      "UPDATE article SET fichier = 'TABLES' WHERE cle = '10103';"
      "UPDATE ancien SET utilisateur = 'AUTRE' WHERE cle = '10001';");
  const auto store = Ouvrir();
  std::string lu = "intact";
  EXPECT_EQ(refus([&] { store->Get("CONTRAT", cle(101), lu); }), "Endommage CONTRAT 10101");
  EXPECT_EQ(lu, "intact");
  EXPECT_EQ(refus([&] { store->Erase("CONTRAT", cle(101)); }), "Endommage CONTRAT 10101");
  EXPECT_EQ(refus([&] {
              store->Scan("CONTRAT", data::KeyRange::Tout(), [](auto, auto) { return true; });
            }),
            "Endommage CONTRAT 10101");
  EXPECT_EQ(refus([&] { store->Historique("CONTRAT", cle(1)); }), "Endommage CONTRAT 10001");
  std::string tout;
  for (const auto& d : Verifier()) tout += d.fichier + " " + d.cle + ": " + d.message + "\n";
  EXPECT_EQ(tout,
            "CONTRAT 10101: L'article « 10101 » du fichier CONTRAT ne se relit pas tel qu'il a été "
            "écrit.\n"
            "TABLES 10103: L'article « 10103 » du fichier TABLES ne se relit pas tel qu'il a été "
            "écrit.\n"
            "CONTRAT 10001: L'ancien texte 1 de l'article « 10001 » du fichier CONTRAT ne se relit "
            "pas tel qu'il a été écrit.\n");
}

}  // namespace
