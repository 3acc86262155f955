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
  static void Ecrit(data::Storage& store, const char* fichier, const char* cle, int attribut,
                    const char* texte) {
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
  const struct {
    const char* fichier;
    const char* cle;
    int attribut;
    const char* texte;
    const char* constat;  // the beginning of the only finding
  } cas[] = {
      {"CONTRAT", "0000100", 1, "", "la clé n'a pas la forme"},
      {"CONTRAT", "00003001", 1, "", "l'aidant « 00003 » n'existe pas"},
      {"CONTRAT", "00002001", Contrat::CongesReportesSur, "00002009",
       "attribut 116 : le contrat lié « 00002009 » n'existe pas"},
      {"CONTRAT", "00002001", Contrat::CongesReprisDe, "00002001",
       "attribut 117 : le contrat lié « 00002001 » est ce contrat lui-même"},
      {"CONTRAT", "00002001", Contrat::CongesReprisDe, "00001001",
       "attribut 117 : le contrat lié « 00001001 » ne renvoie pas ici : son attribut 116 vaut "
       "« 00001002 »"},
      {"CIVILAIDANT", "00002", CivilAidant::DernierNumero, "000",
       "attribut 41 : le compteur est « 000 », et le plus haut contrat 001"},
      {"CIVILAIDANT", "00002", CivilAidant::DernierNumero, "",
       "attribut 41 : le compteur est vide"},
      {"CIVILAIDANT", "00002", CivilAidant::DernierNumero, "1",
       "attribut 41 : le compteur « 1 » n'est pas un nombre à 3 chiffres"},
      {"CIVILAIDANT", "00001", CivilAidant::NumerosLibres, "002",
       "attribut 42 : le numéro libre « 002 » est celui d'un contrat existant"},
      {"CIVILAIDANT", "00001", CivilAidant::NumerosLibres, "004",
       "attribut 42 : le numéro libre « 004 » n'a jamais été donné"},
      {"CIVILAIDANT", "00001", CivilAidant::NumerosLibres, "3",
       "attribut 42 : le numéro libre « 3 » n'est pas un nombre"},
      {"CIVILAIDANT", "00001", CivilAidant::NumerosLibres, "003\x1d\x30\x30\x33",
       "attribut 42 : le numéro libre « 003 » est donné deux fois"}};
  for (const auto& c : cas) {
    storage::MemoryStorage store(poste_);
    Remplir(store);
    Ecrit(store, c.fichier, c.cle, c.attribut, c.texte);
    const std::string constats = Constats(store);
    EXPECT_EQ(std::count(constats.begin(), constats.end(), '\n'), 1) << constats;
    const std::string debut = std::string(c.fichier) + ' ' + c.cle + " | " + c.constat;
    EXPECT_EQ(constats.substr(0, debut.size()), debut);
  }
  for (const char* fichier : {"ASSOCIATION", "CONVENTIONCOL"}) {
    storage::MemoryStorage store(poste_);
    store.Put(fichier, fichier[0] == 'A' ? "a01" : "é1", "");
    EXPECT_NE(Constats(store).find("ne peut pas entrer dans le nom d'un fichier index"),
              std::string::npos);
  }
  storage::MemoryStorage store(poste_);
  store.Put("PCS", "11", std::string("a") + data::SepAttribut);
  EXPECT_EQ(Constats(store), "PCS 11 | le texte n'est pas sous sa forme canonique\n");
}

// One carer's contracts: first and last day, entity, agreement, then the private employer, or O for
// a cancelled one.
TEST_F(VerificationTest, NommeLesContratsQuiSeChevauchent) {
  constexpr const char* kPar = "le contrat chevauche le contrat « ";
  const struct {
    const char* cas;
    std::vector<std::string> contrats;
    std::string paires;
  } cas[] = {{"one after the other", {"1 9 001 01", "10 - 001 01"}, ""},
             {"the last day", {"1 9 001 01", "9 20 001 03"}, "2>1 "},
             {"open-ended", {"30 40 001 01", "1 - 001 01"}, "1>2 "},
             {"other entity", {"1 - 001 01", "1 - 002 01"}, ""},
             {"private employer beside", {"1 - 001 01", "1 - 001 02 00007"}, ""},
             {"two employers", {"1 - 001 02 00006", "1 - 001 02 00007"}, ""},
             {"one employer", {"1 - 001 02 00007", "5 - 001 02 00007"}, "2>1 "},
             {"inside a long one", {"1 90 001 01", "5 9 001 01", "20 30 001 01"}, "2>1 3>1 "},
             {"cancelled", {"1 - 001 01", "5 - 001 01 O"}, ""}};
  for (const auto& c : cas) {
    SCOPED_TRACE(c.cas);
    storage::MemoryStorage store(poste_);
    for (std::size_t i = 0; i < c.contrats.size(); ++i) {
      std::istringstream mots(c.contrats[i]);
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
      store.Put("CONTRAT", "0000100" + std::to_string(i + 1), contrat.Text());
    }
    // Another carer's contracts have nothing to do with these.
    store.Put("CONTRAT", "00002001", CItem("\x1e\x30\x30\x31").Text());
    std::string paires;
    std::istringstream constats(Constats(store));
    for (std::string ligne; std::getline(constats, ligne);) {
      const auto place = ligne.find(kPar);
      if (place == std::string::npos) continue;
      paires += ligne.substr(15, 1) + ">" + ligne.substr(place + std::strlen(kPar) + 7, 1) + " ";
    }
    EXPECT_EQ(paires, c.paires);
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
