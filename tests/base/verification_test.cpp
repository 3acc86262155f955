// The check of a data file finds each planted fault, and nothing in sound data.

#include "base/verification.h"

#include <gtest/gtest.h>

#include <algorithm>

#include "data/citem.h"
#include "data/layouts/contrat.h"
#include "data/layouts/voisins.h"
#include "data/store_error.h"
#include "storage/memory.h"

namespace {

using data::CItem;

// Two carers, three contracts; 00001001 hands its leave over to 00001002.
class VerificationTest : public testing::Test {
 protected:
  VerificationTest() {
    Ecrit("CIVILAIDANT", "00001",
          {{data::CivilAidant::DernierNumero, "003"}, {data::CivilAidant::NumerosLibres, "003"}});
    Ecrit("CIVILAIDANT", "00002", {{data::CivilAidant::DernierNumero, "001"}});
    Ecrit("CONTRAT", "00001001", {{data::Contrat::CongesReportesSur, "00001002"}});
    Ecrit("CONTRAT", "00001002", {{data::Contrat::CongesReprisDe, "00001001"}});
    // Cancelled while it was being created: its record stays, its number is free again.
    Ecrit("CONTRAT", "00001003", {{data::Contrat::Annule, "O"}});
    Ecrit("CONTRAT", "00002001", {{data::Contrat::Type, "I"}});
  }

  struct Attribut {
    int numero;
    std::string texte;
  };
  void Ecrit(const std::string& fichier, const std::string& cle,
             const std::vector<Attribut>& attributs) {
    CItem item;
    for (const auto& attribut : attributs) item.Set(attribut.numero, attribut.texte);
    store_.Put(fichier, cle, item.Text());
  }
  // One line a finding.
  static std::string Constats(data::Storage& store) {
    std::string lignes;
    const auto rapport = [&](const base::Constat& c) {
      lignes += c.fichier + ' ' + c.cle + " | " + c.anomalie + '\n';
    };
    const base::Bilan bilan = base::verifier(store, rapport, [](long, long) {});
    EXPECT_EQ(bilan.constats, std::count(lignes.begin(), lignes.end(), '\n'));
    return lignes;
  }

  data::PosteFixe poste_{21511};
  storage::MemoryStorage store_{poste_};
};

TEST_F(VerificationTest, NeTrouveRienDansDesDonneesSaines) {
  EXPECT_EQ(Constats(store_), "");
}

TEST_F(VerificationTest, TrouveChaqueDefautPlante) {
  namespace Contrat = data::Contrat;
  namespace CivilAidant = data::CivilAidant;
  const struct {
    const char* fichier;
    const char* cle;
    int attribut;
    std::string texte;
    const char* constats;  // the beginning of the only finding
  } cas[] = {
      {"CONTRAT", "0000100", 1, "", "CONTRAT 0000100 | la clé n'a pas la forme"},
      {"DETAILCALCUL", "00001001202613", 1, "P", "DETAILCALCUL 00001001202613 | la clé n'a pas"},
      {"CONTRAT", "00003001", 1, "", "CONTRAT 00003001 | l'aidant « 00003 » n'existe pas"},
      {"CONTRAT", "00002001", Contrat::CongesReportesSur, "00002009",
       "CONTRAT 00002001 | attribut 116 : le contrat lié « 00002009 » n'existe pas"},
      {"CONTRAT", "00002001", Contrat::CongesReprisDe, "00002001",
       "CONTRAT 00002001 | attribut 117 : le contrat lié « 00002001 » est ce contrat lui-même"},
      {"CONTRAT", "00002001", Contrat::CongesReprisDe, "00001001",
       "CONTRAT 00002001 | attribut 117 : le contrat lié « 00001001 » ne renvoie pas ici : son "
       "attribut 116 vaut « 00001002 »"},
      {"CIVILAIDANT", "00002", CivilAidant::DernierNumero, "000",
       "CIVILAIDANT 00002 | attribut 41 : le compteur est « 000 », et le plus haut contrat 001"},
      {"CIVILAIDANT", "00002", CivilAidant::DernierNumero, "",
       "CIVILAIDANT 00002 | attribut 41 : le compteur est vide"},
      {"CIVILAIDANT", "00002", CivilAidant::DernierNumero, "1",
       "CIVILAIDANT 00002 | attribut 41 : le compteur « 1 » n'est pas un nombre à 3 chiffres"},
      {"CIVILAIDANT", "00001", CivilAidant::NumerosLibres, "002",
       "CIVILAIDANT 00001 | attribut 42 : le numéro libre « 002 » est celui d'un contrat existant"},
      {"CIVILAIDANT", "00001", CivilAidant::NumerosLibres, "004",
       "CIVILAIDANT 00001 | attribut 42 : le numéro libre « 004 » n'a jamais été donné"},
      {"CIVILAIDANT", "00001", CivilAidant::NumerosLibres, "3",
       "CIVILAIDANT 00001 | attribut 42 : le numéro libre « 3 » n'est pas un nombre"},
      {"CIVILAIDANT", "00001", CivilAidant::NumerosLibres,
       "003\x1d"
       "003",
       "CIVILAIDANT 00001 | attribut 42 : le numéro libre « 003 » est donné deux fois"},
  };
  for (const auto& c : cas) {
    std::string avant;
    const bool present = store_.Get(c.fichier, c.cle, avant);
    CItem item(avant);
    item.Set(c.attribut, c.texte);
    store_.Put(c.fichier, c.cle, item.Text());
    const std::string constats = Constats(store_);
    EXPECT_EQ(constats.substr(0, std::string(c.constats).size()), c.constats);
    EXPECT_EQ(std::count(constats.begin(), constats.end(), '\n'), 1) << constats;
    if (present) {
      store_.Put(c.fichier, c.cle, avant);
    } else {
      store_.Erase(c.fichier, c.cle);
    }
  }
}

TEST_F(VerificationTest, SignaleUnTexteQuiNEstPasCanonique) {
  store_.Put("PCS", "11", std::string("a") + data::SepAttribut);
  EXPECT_EQ(Constats(store_), "PCS 11 | le texte n'est pas sous sa forme canonique\n");
}

// A store whose record 00001002 of CONTRAT reads no more once it is armed.
class StoreEndommage : public storage::MemoryStorage {
 public:
  using MemoryStorage::MemoryStorage;
  data::NumeroErreur numero = data::NumeroErreur::Endommage;
  bool arme = false;

  bool Get(std::string_view fichier, std::string_view cle, std::string& texte) override {
    Controle(fichier, cle);
    return MemoryStorage::Get(fichier, cle, texte);
  }
  void Scan(std::string_view fichier, const data::KeyRange& cles,
            const Visiteur& visiteur) override {
    MemoryStorage::Scan(fichier, cles, [&](std::string_view cle, std::string_view texte) {
      Controle(fichier, cle);
      return visiteur(cle, texte);
    });
  }

 private:
  void Controle(std::string_view fichier, std::string_view cle) const {
    if (arme && fichier == "CONTRAT" && cle == "00001002") {
      throw data::StoreError(numero, "illisible", "CONTRAT", "00001002");
    }
  }
};

TEST_F(VerificationTest, ContinueDerriereUnArticleEndommage) {
  StoreEndommage store(poste_);
  for (const auto& fichier : store_.Fichiers()) {
    store_.Scan(fichier.nom, {}, [&](std::string_view cle, std::string_view texte) {
      store.Put(fichier.nom, cle, texte);
      return true;
    });
  }
  store.Put("CONTRAT", "0000200", "");
  store.arme = true;
  EXPECT_EQ(Constats(store),
            "CONTRAT 00001002 | illisible\n"
            "CONTRAT 0000200 | la clé n'a pas la forme des clés de ce fichier\n");
  // What is no damage ends the check.
  store.numero = data::NumeroErreur::EntreeSortie;
  EXPECT_THROW(Constats(store), data::StoreError);
}

}  // namespace
