// The check of a data file finds each planted fault, and nothing in sound data.

#include "base/verification.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <cstring>
#include <optional>
#include <sstream>

#include "data/citem.h"
#include "data/layouts/contrat.h"
#include "data/layouts/voisins.h"
#include "data/store_error.h"
#include "demo/generateur.h"
#include "storage/memory.h"
#include "support/table.h"

namespace {

using data::CItem;
namespace Contrat = data::Contrat;
namespace CivilAidant = data::CivilAidant;

class VerificationTest : public testing::Test {
 protected:
  // Two carers, three contracts; 00001001 hands its leave over to 00001002. 00001003 was cancelled
  // while it was being created: its record stays, its number is free again.
  static void Remplir(data::Storage& store) {
    Ecrit(store, "CIVILAIDANT", "00001", CivilAidant::DernierNumero, "003");
    Ecrit(store, "CIVILAIDANT", "00001", CivilAidant::NumerosLibres, "003");
    Ecrit(store, "CIVILAIDANT", "00002", CivilAidant::DernierNumero, "001");
    Ecrit(store, "CONTRAT", "00001001", Contrat::CongesReportesSur, "00001002");
    Ecrit(store, "CONTRAT", "00001002", Contrat::CongesReprisDe, "00001001");
    Ecrit(store, "CONTRAT", "00001003", Contrat::Annule, "O");
    Ecrit(store, "CONTRAT", "00002001", Contrat::Type, "I");
  }
  // Over what the record holds already.
  static void Ecrit(data::Storage& store, const std::string& fichier, const std::string& cle,
                    int attribut, const std::string& texte) {
    std::string avant;
    store.Get(fichier, cle, avant);
    CItem item(avant);
    item.Set(attribut, texte);
    store.Put(fichier, cle, item.Text());
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
};

TEST_F(VerificationTest, TrouveChaqueDefautPlante) {
  for (const auto& [fichier, cle, attribut, constat] :
       support::table<4>("base/verification.md", "Chaque défaut planté")) {
    storage::MemoryStorage store(poste_);
    Remplir(store);
    for (const auto& [a, texte] : support::attributs(attribut)) {
      Ecrit(store, fichier, cle, a, texte);
    }
    const std::string constats = Constats(store);
    EXPECT_EQ(std::count(constats.begin(), constats.end(), '\n'), 1) << constats;
    EXPECT_TRUE(constats.starts_with(fichier + " " + cle + " | " + constat)) << constats;
  }
  storage::MemoryStorage store(poste_);
  store.Put("PCS", "11", std::string("a") + data::SepAttribut);
  EXPECT_EQ(Constats(store), "PCS 11 | le texte n'est pas sous sa forme canonique\n");
}

TEST_F(VerificationTest, NommeLesContratsQuiSeChevauchent) {
  constexpr const char* kPar = "le contrat chevauche le contrat « ";
  for (const auto& [nom, texte, attendues] :
       support::table<3>("base/verification.md", "Ceux qui se chevauchent")) {
    SCOPED_TRACE(nom);
    storage::MemoryStorage store(poste_);
    std::istringstream contrats(texte);
    std::string un;
    for (int i = 1; std::getline(contrats, un, ','); ++i) {
      std::istringstream mots(un);
      CItem contrat;
      std::string mot;
      for (const int a : {Contrat::DateDebut, Contrat::DateFin, Contrat::Association,
                          Contrat::Convention, Contrat::Employeur}) {
        mots >> mot;
        if (mots && mot == "O") {
          contrat.Set(Contrat::Annule, mot);
        } else if (mots && mot != "-") {
          contrat.Set(a, mot);
        }
      }
      store.Put("CONTRAT", "0000100" + std::to_string(i), contrat.Text());
    }
    // Another carer's contracts have nothing to do with these.
    store.Put("CONTRAT", "00002001", CItem("\x1e\x30\x30\x31").Text());
    std::string paires;
    std::istringstream constats(Constats(store));
    for (std::string ligne; std::getline(constats, ligne);) {
      const auto place = ligne.find(kPar);
      if (place == std::string::npos) continue;
      paires += (paires.empty() ? "" : " ") + ligne.substr(15, 1) + ">" +
                ligne.substr(place + std::strlen(kPar) + 7, 1);
    }
    EXPECT_EQ(paires, attendues);
  }
}

TEST_F(VerificationTest, NommeLesEntreesDIndexQuiManquent) {
  storage::MemoryStorage store(poste_);
  demo::genererDemo(store, {.aidants = 60, .graine = 3, .aujourdhui = poste_.Aujourdhui()});
  std::string contrat;
  std::string inverse;
  store.Scan("CONTRATINV", data::KeyRange::Tout(), [&](std::string_view cle, std::string_view t) {
    inverse = cle;
    contrat = inverse.substr(0, 5) + CItem(t)(data::ContratInv::Numeros, 1);
    return CItem(t).DCount(data::ContratInv::Numeros) != 1;
  });
  std::string texte;
  ASSERT_TRUE(store.Get("CONTRAT", contrat, texte));
  const std::string index = "CONTRAT" + CItem(texte)(Contrat::Association) + "02";
  EXPECT_TRUE(store.Erase(index, contrat));
  EXPECT_TRUE(store.Erase("CONTRATINV", inverse));
  EXPECT_EQ(Constats(store), "CONTRAT " + contrat + " | le contrat n'est pas dans son index " +
                                 index + "\nCONTRAT " + contrat +
                                 " | le contrat n'est pas dans CONTRATINV « " + inverse + " »\n");
  store.Put(index, contrat, "");
  store.Put("CONTRATINV", inverse, CItem(contrat.substr(5)).Text());
  store.Put(index, "99999001", "");
  store.Put("AVENANT00101", "9999900101", "");
  EXPECT_EQ(Constats(store), "AVENANT00101 9999900101 | le contrat « 99999001 » n'existe pas\n" +
                                 index + " 99999001 | le contrat « 99999001 » n'existe pas\n");
}

// Keys, canonical texts, counters, free numbers and links of every record of the demonstration.
TEST_F(VerificationTest, RienDansLaDemonstration) {
  storage::MemoryStorage store(poste_);
  demo::genererDemo(store, {.aidants = 200, .graine = 1, .aujourdhui = poste_.Aujourdhui()});
  EXPECT_EQ(Constats(store), "");
}

// A store whose record 00001002 of CONTRAT reads no more once it is armed.
class StoreEndommage : public storage::MemoryStorage {
 public:
  using MemoryStorage::MemoryStorage;
  std::optional<data::NumeroErreur> panne;

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
    if (!panne || fichier != "CONTRAT" || cle != "00001002") return;
    throw data::StoreError(*panne, "illisible", "CONTRAT", "00001002");
  }
};

TEST_F(VerificationTest, ContinueDerriereUnArticleEndommage) {
  StoreEndommage store(poste_);
  Remplir(store);
  store.Put("CONTRAT", "0000200", "");
  store.panne = data::NumeroErreur::Endommage;
  EXPECT_EQ(Constats(store),
            "CONTRAT 00001002 | illisible\n"
            "CONTRAT 0000200 | la clé n'a pas la forme des clés de ce fichier\n");
  // What is no damage ends the check.
  store.panne = data::NumeroErreur::EntreeSortie;
  EXPECT_THROW(Constats(store), data::StoreError);
}

}  // namespace
