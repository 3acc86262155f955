// A data file that changes place while it is in use takes no write that nobody would find again.

#include "fenetre/stockage_veille.h"

#include <gtest/gtest.h>

#include <QFile>
#include <QTemporaryDir>
#include <cstdio>

#include "data/store_error.h"
#include "storage/sqlite.h"

namespace {

class Veille : public ::testing::Test {
 protected:
  const std::string& Creer() const {
    storage::SqliteStorage::Creer(chemin_, poste_)->Put("PCS", "1", "avant");
    return chemin_;
  }

  // What the refusal of `ecriture` says, "" when it passes.
  static std::string refus(const std::function<void()>& ecriture) {
    try {
      ecriture();
      return "";
    } catch (const data::StoreError& erreur) {
      EXPECT_EQ(erreur.Numero(), data::NumeroErreur::EntreeSortie);
      return erreur.what();
    }
  }
  std::string lu(const char* cle) {
    std::string texte = "-";
    storage::SqliteStorage::Ouvrir(chemin_, poste_)->Get("PCS", cle, texte);
    return texte;
  }

  const QTemporaryDir dossier_{};
  const std::string chemin_ = dossier_.filePath("a.contrats").toStdString();
  const std::string ailleurs_ = dossier_.filePath("b.contrats").toStdString();
  const data::PosteFixe poste_{21511};
  hote::StockageVeille veille_{hote::FichierSuivi(Creer()),
                               storage::SqliteStorage::Ouvrir(chemin_, poste_)};
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
    return std::rename(chemin_.c_str(), ailleurs_.c_str()) +
           !QFile("/dev/null").copy(QString::fromStdString(chemin_));
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

}  // namespace
