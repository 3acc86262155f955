// A data file that changes place while it is in use takes no write that nobody would find again.

#include <cstdio>
#include <filesystem>
#include <fstream>

#include "essai.h"

namespace {

namespace fs = std::filesystem;
using storage::SqliteStorage;

class Veille : public essai::Fichier {
 protected:
  // Opened anew, so that what stood before is in the file and not in its log.
  std::unique_ptr<SqliteStorage> Commencer() const {
    Creer()->Put("PCS", "1", "avant");
    return Ouvrir(5000);
  }

  // What the refusal of `ecriture` says, "" when it passes.
  static std::string refus(const std::function<void()>& ecriture) {
    std::string dit;
    const std::string refuse = essai::refus(ecriture, &dit);
    EXPECT_TRUE(refuse == "rien" || refuse.starts_with("EntreeSortie")) << refuse;
    return dit;
  }
  std::string lu(const char* cle) {
    std::string texte = "-";
    Ouvrir()->Get("PCS", cle, texte);
    return texte;
  }

  const std::string ailleurs_ = dossier_.Chemin("ailleurs");
  const std::unique_ptr<SqliteStorage> store_ = Commencer();
  SqliteStorage& veille_ = *store_;
};

TEST_F(Veille, RefusesEveryWriteUntilTheFileIsBack) {
  struct Cas {
    std::function<int()> perte;
    std::function<int()> retour;
    const char* dit;
  };
  const auto bouger = [](const std::string& de, const std::string& vers) {
    return [de, vers] { return std::rename(de.c_str(), vers.c_str()); };
  };
  const auto remplacer = [&] {
    const int code = std::rename(chemin_.c_str(), ailleurs_.c_str());
    return std::ofstream(chemin_) ? code : 1;
  };
  for (const Cas& cas : {Cas{bouger(chemin_, ailleurs_), bouger(ailleurs_, chemin_), "déplacé"},
                         Cas{remplacer, bouger(ailleurs_, chemin_), "remplacé par un autre"},
                         Cas{bouger(chemin_ + "-wal", ailleurs_),
                             bouger(ailleurs_, chemin_ + "-wal"), "Le journal"}}) {
    ASSERT_EQ(cas.perte(), 0) << cas.dit;
    for (const std::string& texte : {refus([&] { veille_.Put("PCS", "1", "après"); }),
                                     refus([&] { veille_.Erase("PCS", "1"); }), refus([&] {
                                       veille_.EnUnBloc([&] { veille_.Put("PCS", "2", "après"); });
                                     })}) {
      EXPECT_NE(texte.find(cas.dit), std::string::npos) << texte;
    }
    std::string texte;
    EXPECT_TRUE(veille_.Get("PCS", "1", texte));
    ASSERT_EQ(cas.retour(), 0) << cas.dit;
    EXPECT_EQ(lu("1"), "avant") << cas.dit;
    EXPECT_EQ(refus([&] { veille_.Put("PCS", "3", cas.dit); }), "");
    EXPECT_EQ(lu("3"), cas.dit);
  }
}

// The file goes between two writes that belong together: neither stands.
TEST_F(Veille, UndoesABlockUnderWhichTheFileGoes) {
  EXPECT_NE(refus([&] {
              veille_.EnUnBloc([&] {
                veille_.Put("PCS", "2", "après");
                std::rename(chemin_.c_str(), ailleurs_.c_str());
              });
            }),
            "");
  std::rename(ailleurs_.c_str(), chemin_.c_str());
  EXPECT_EQ(lu("2"), "-");
}

// Logs that others begin, over this very file, are no sign of another one.
TEST_F(Veille, FollowsTheWritesOfOthers) {
  for (const char* cle : {"a", "b", "c"}) {
    const auto autre = Ouvrir(5000);
    autre->Put("PCS", cle, "x");
    EXPECT_TRUE(autre->Compacter());
    autre->Put("PCS", cle, std::string(9000000, 'x'));  // the log goes into the file meanwhile
    autre->Put("PCS", cle, "y");
    EXPECT_EQ(refus([&] { veille_.Put("PCS", "1", cle); }), "");
  }
  EXPECT_EQ(lu("c"), "y");
}

}  // namespace
