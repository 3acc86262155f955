// The indexes of a data file: kept with the records, made for files that have none, never trusted
// when another program may have passed over them. What they find is the matter of the questions'
// own test.

#include <gtest/gtest.h>

#include <stdexcept>

#include "data/citem.h"
#include "data/layouts/recherches.h"
#include "essai.h"

namespace {

using data::CItem;
using data::KeyRange;

// Entries are those of links of contracts; their index is the first of the table.
const data::Chemin kLiens{&data::IndexTenus[0], KeyRange::Une("00001009")};

class IndexSqlite : public essai::Fichier {
 protected:
  // Three contracts, of which two hand their leave over to 00001009, and a carer.
  IndexSqlite() {
    const auto store = Creer();
    Lier(*store, "00001001", "00001009");
    Lier(*store, "00001002", "00001008");
    Lier(*store, "00001003", "00001009");
    store->Put("CIVILAIDANT", "00001", CItem("MME\x1eMartin\x1eRose").Text());
  }
  static void Lier(data::Storage& store, const char* cle, const char* vers) {
    CItem contrat;
    contrat.Set(data::Contrat::CongesReportesSur, vers);
    store.Put("CONTRAT", cle, contrat.Text());
  }
  // As a program before the indexes left it.
  void Vieillir() const { Sql("DROP TABLE entree; DROP TABLE indice; PRAGMA user_version = 1"); }

  // "00001001 00001003", or "sans" where the store has no index.
  static std::string Lies(data::Storage& store) {
    std::string cles;
    const bool index =
        store.ScanChemins("CONTRAT", {kLiens}, [&](std::string_view cle, std::string_view) {
          essai::ajouter(cles, cle);
          return true;
        });
    EXPECT_EQ(store.Compter("CONTRAT", kLiens, 9).has_value(), index);
    return index ? cles : "sans";
  }
  std::string Ecarts() const {
    std::string tout;
    const auto store = Lire();
    const bool index = store->VerifierIndex([&](const storage::Dommage& d) {
      tout += d.fichier + ' ' + d.cle + ": " + d.message + '\n';
    });
    return index ? tout : "sans";
  }
};

TEST_F(IndexSqlite, AFileFromBeforeIsIndexedWhenItIsOpenedToWrite) {
  Vieillir();
  EXPECT_EQ(Ecarts(), "sans");
  const auto lecteur = Lire();
  EXPECT_EQ(Lies(*lecteur), "sans");
  const auto store = Ouvrir();
  EXPECT_EQ(Lies(*store), "00001001 00001003");
  // Who had it open sees them too.
  EXPECT_EQ(Lies(*lecteur), "00001001 00001003");
  EXPECT_EQ(Ecarts(), "");
}

// A record that does not read keeps the indexes from being made, and nothing else.
TEST_F(IndexSqlite, ADamagedFileFromBeforeIsUsedWithout) {
  Vieillir();
  Sql("UPDATE article SET texte = texte || '.' WHERE cle = '00001002'");
  const auto store = Ouvrir();
  EXPECT_EQ(Lies(*store), "sans");
  Lier(*store, "00001003", "00001008");
  Sql("DELETE FROM article WHERE cle = '00001002'");
  EXPECT_EQ(Lies(*Ouvrir()), "00001001");
}

// Programs with other indexes: neither trusts what the other keeps, and a write that left entries
// behind is never forgotten.
TEST_F(IndexSqlite, EntriesOfAnotherProgramAreNotTrusted) {
  const auto store = Ouvrir();
  Sql("UPDATE indice SET signature = 5");
  EXPECT_EQ(Lies(*store), "sans");
  store->Put("PAYS", "001", "Belgique");
  EXPECT_EQ(Sql("SELECT signature FROM indice"), 0);  // the other must not trust them any more
  Lier(*store, "00001001", "00001008");
  EXPECT_EQ(Lies(*store), "sans");
  EXPECT_EQ(Lies(*Ouvrir()), "00001003");
  EXPECT_EQ(Lies(*store), "00001003");
  EXPECT_EQ(Ecarts(), "");
}

TEST_F(IndexSqlite, TheCheckFindsWhatDiffersAndRebuildingMendsIt) {
  const struct {
    const char* sql;
    const char* constat;
  } cas[] = {
      {"DELETE FROM entree WHERE cle = '00001003'",
       "CONTRAT 00001003: l'index 116 ne mène pas à cet article par "
       "« 00001009 »"},
      {"INSERT INTO entree VALUES(0, '00001009', '00001002')",
       "CONTRAT 00001002: l'index 116 mène à cet article par une valeur qu'il "
       "n'a pas, « 00001009 »"},
      {"INSERT INTO entree VALUES(0, '00001009', '99999001')",
       "CONTRAT 99999001: l'index 116 mène à cet article par"},
      {"INSERT INTO entree VALUES(99, 'x', 'y')", " : Les index tiennent des valeurs"},
      // As many entries as values, and not the same.
      {"UPDATE entree SET valeur = 'MARTINE ROSE' WHERE cle = '00001'",
       "CIVILAIDANT 00001: l'index NomPrenomAidant ne mène pas à cet "
       "article par « MARTIN ROSE »"},
  };
  for (const auto& c : cas) {
    EXPECT_EQ(Ecarts(), "") << c.sql;
    Sql(c.sql);
    const std::string ecarts = Ecarts();
    EXPECT_EQ(ecarts.substr(0, std::string(c.constat).size()), c.constat);
    Ouvrir()->RefaireIndex();
  }
  EXPECT_EQ(Ecarts(), "");
}

// What another program writes while records are being fetched is not mixed with what was found.
TEST_F(IndexSqlite, OneScanSeesOneState) {
  const auto store = Ouvrir();
  const auto autre = Ouvrir();
  std::string vus;
  store->ScanChemins("CONTRAT", {kLiens}, [&](std::string_view cle, std::string_view texte) {
    autre->Erase("CONTRAT", "00001003");
    Lier(*autre, "00001002", "00001009");
    EXPECT_THROW(store->Put("CONTRAT", "1", ""), std::logic_error);
    essai::ajouter(vus, cle);
    EXPECT_EQ(CItem(texte)(data::Contrat::CongesReportesSur), "00001009");
    return true;
  });
  EXPECT_EQ(vus, "00001001 00001003");
  EXPECT_EQ(Lies(*store), "00001001 00001002");
  store->Put("PAYS", "001", "");  // nothing was left open
}

}  // namespace
