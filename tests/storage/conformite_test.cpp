// What every store must do, run against each of them.

#include <map>
#include <memory>
#include <random>
#include <stdexcept>

#include "data/poste.h"
#include "essai.h"
#include "storage/memory.h"
#include "storage/postgres.h"
#include "storage/sqlite.h"
#include "support/serveur.h"
#include "support/temp_dir.h"

namespace {

using data::KeyRange;
using essai::ajouter;
using essai::anciens;
using essai::etat;
using essai::refus;

class Conformite : public testing::TestWithParam<std::string> {
 protected:
  Conformite() {
    if (GetParam() == "memoire") {
      store_ = std::make_unique<storage::MemoryStorage>(poste_);
    } else if (GetParam() == "sqlite") {
      store_ = storage::SqliteStorage::Creer(dossier_.Chemin("essai"), poste_);
    } else {
      store_ = storage::PostgresStorage::Creer(support::Serveur::Commun().NouvelleBase(), poste_);
    }
  }
  data::Storage& Store() { return *store_; }
  std::string Lire(std::string_view fichier, std::string_view cle) {
    std::string texte = "intact";
    return store_->Get(fichier, cle, texte) ? texte : "absent, " + texte;
  }
  std::string Cles(std::string_view fichier, const KeyRange& cles, std::size_t combien = 99) {
    std::string texte;
    store_->Scan(fichier, cles, [&](std::string_view cle, std::string_view) {
      ajouter(texte, cle);
      return --combien > 0;
    });
    return texte;
  }

  data::PosteFixe poste_{21511, "MARTIN"};  // 22/11/2026
  support::TempDir dossier_;
  std::unique_ptr<data::Storage> store_;
};

INSTANTIATE_TEST_SUITE_P(Magasins, Conformite, testing::Values("memoire", "sqlite", "postgres"),
                         [](const auto& essai) { return essai.param; });

TEST_P(Conformite, ScanRangesInByteOrder) {
  for (const char* cle : {"é", "z", "1", "01", "001", "00", "0", "~"}) Store().Put("B", cle, "t");
  Store().Put("A", "0", "t");
  Store().Put("B0", "5", "t");
  KeyRange milieu = KeyRange::Une("001");
  milieu.fin = "1";
  KeyRange vide = milieu;
  vide.fin = "001";
  const struct {
    KeyRange cles;
    const char* attendu;
  } cas[] = {
      {KeyRange::Tout(), "0 00 001 01 1 z ~ é"},
      {KeyRange::Prefixe("00"), "00 001"},
      {KeyRange::Prefixe("\xFF"), ""},
      {KeyRange::Une("00"), "00"},
      {milieu, "001 01"},
      {vide, ""},
      {milieu.Avec(KeyRange::Prefixe("01")), "01"},
      {KeyRange::Prefixe("z").Avec(milieu), ""},
  };
  for (const auto& c : cas) EXPECT_EQ(Cles("B", c.cles), c.attendu) << c.cles.debut;
  EXPECT_EQ(Cles("B", KeyRange::Tout(), 3), "0 00 001");
  EXPECT_EQ(Cles("C", KeyRange::Tout()), "");
}

// When and by whom; the texts themselves are followed by the random work below.
TEST_P(Conformite, HistoryTellsWhenAndByWhom) {
  Store().Put("CONTRAT", "1", "a");
  Store().Put("CONTRAT", "1", "b");
  poste_.SetAujourdhui(21512);
  poste_.SetUtilisateur("PETIT");
  Store().Erase("CONTRAT", "1");
  const auto lus = Store().Historique("CONTRAT", "1");
  EXPECT_EQ(lus[0].horodatage + lus[0].utilisateur, "2026-11-22 00:00:00MARTIN");
  EXPECT_EQ(lus[1].horodatage + lus[1].utilisateur, "2026-11-23 00:00:00PETIT");
  EXPECT_EQ(anciens(Store(), "CONTRAT", "10"), "");
}

TEST_P(Conformite, BlockStandsWholeOrNotAtAll) {
  Store().Put("CONTRAT", "1", "a");
  Store().Put("TABLES", "x", "seul");
  const auto bloc = [&](bool panne) {
    Store().EnUnBloc([&] {
      // A refused text that the block passes over takes nothing else with it.
      EXPECT_EQ(refus([&] { Store().Put("CONTRAT", "", "z"); }), "TexteRefuse CONTRAT");
      for (const char* texte : {"b", "c"}) Store().Put("CONTRAT", "1", texte);
      Store().Erase("TABLES", "x");
      EXPECT_THROW(Store().EnUnBloc([] {}), std::logic_error);
      EXPECT_EQ(etat(Store()), "CONTRAT[1=c]");
      if (panne) throw std::runtime_error("panne");
    });
  };
  EXPECT_THROW(bloc(true), std::runtime_error);
  EXPECT_EQ(etat(Store()), "CONTRAT[1=a] TABLES[x=seul]");
  EXPECT_EQ(anciens(Store(), "CONTRAT", "1") + anciens(Store(), "TABLES", "x"), "");
  bloc(false);
  EXPECT_EQ(etat(Store()), "CONTRAT[1=c]");
  EXPECT_EQ(anciens(Store(), "CONTRAT", "1") + anciens(Store(), "TABLES", "x"), "1:a 2:b1:seul-");
}

TEST_P(Conformite, WhatCannotBeHeldIsRefused) {
  using std::string;
  using namespace std::string_literals;
  const auto essayer = [&](const string& fichier, const string& cle, const string& texte,
                           bool admis) {
    SCOPED_TRACE(testing::PrintToString(fichier + "|" + cle + "|" + texte));
    string attendu = "TexteRefuse";
    if (!fichier.empty()) attendu += " " + fichier;
    if (!cle.empty()) attendu += " " + cle;
    EXPECT_EQ(refus([&] { Store().Put(fichier, cle, texte); }), admis ? "rien" : attendu);
    EXPECT_EQ(Lire(fichier, cle), admis ? texte : "absent, intact");
    Store().Erase(fichier, cle);
  };
  for (const char* nom : {"", "contrat", "CON TRAT", "CONTRAT\xC3\x89", "CONTRAT/"}) {
    essayer(nom, "1", "t", false);
  }
  for (const string& cle :
       {""s, "a\nb"s, "a\x1e"s, "a\x7F"s, "a\xC2\x85"s, "a\0b"s, "a\xFF"s, "a\xC3"s}) {
    essayer("CONTRAT", cle, "t", false);
  }
  essayer("F2", " é€ ", "", true);
  // At every place of the eight bytes that are looked at together; which characters are well
  // formed is the matter of the texts' own test.
  Store().EnUnBloc([&] {
    for (const string& c : {"\0"s, "\x80"s, "\xE2\x82"s, "\xFF"s, "\x01\x1c\x7F"s, "\xC2\x80"s,
                            "\xF4\x8F\xBF\xBF"s}) {
      const bool admis = c.size() > 1 && c != "\xE2\x82";
      for (std::size_t avant = 0; avant < 9; ++avant) {
        essayer("CONTRAT", "1", string(avant, 'a') + c, admis);
        essayer("CONTRAT", "1", string(avant, 'a') + c + "abcdefgh", admis);
      }
    }
  });
}

TEST_P(Conformite, ScansNestAndLetGo) {
  for (const char* cle : {"1", "2", "3"}) Store().Put("CONTRAT", cle, "t");
  std::string vus;
  Store().Scan("CONTRAT", KeyRange::Tout(), [&](std::string_view a, std::string_view) {
    Store().Scan("CONTRAT", KeyRange::Tout(), [&](std::string_view b, std::string_view) {
      vus += std::string(a) + std::string(b) + Lire("CONTRAT", a) + " ";
      return b != "2";
    });
    return true;
  });
  EXPECT_EQ(vus, "11t 12t 21t 22t 31t 32t ");
  // A visitor that writes is stopped before it harms the scan; one that throws leaves nothing open.
  EXPECT_THROW(Store().Scan("CONTRAT", KeyRange::Tout(),
                            [&](std::string_view, std::string_view) {
                              Store().Put("CONTRAT", "4", "t");
                              return true;
                            }),
               std::logic_error);
  Store().Put("CONTRAT", "3", "u");
  EXPECT_EQ(etat(Store()), "CONTRAT[1=t 2=t 3=u]");
}

// The plainest possible store, to compare with; its words are those of the verbs in essai.h.
struct Modele {
  std::map<std::string, std::map<std::string, std::string>> fichiers;
  std::map<std::string, std::pair<long, std::string>> anciens;  // by file and key

  void Remplacer(const std::string& fichier, const std::string& cle, const std::string* texte) {
    auto& articles = fichiers[fichier];
    const auto avant = articles.find(cle);
    if (avant != articles.end() && (texte == nullptr || *texte != avant->second)) {
      auto& [numero, histoire] = anciens[fichier + "/" + cle];
      ajouter(histoire, essai::ancien(++numero, avant->second, texte == nullptr));
    }
    if (texte == nullptr) {
      articles.erase(cle);
    } else {
      articles[cle] = *texte;
    }
  }
  std::string Etat() const {
    std::string tout;
    for (const auto& [nom, articles] : fichiers) {
      std::string lignes;
      for (const auto& [cle, texte] : articles) ajouter(lignes, std::string(cle) += "=" + texte);
      if (!articles.empty()) ajouter(tout, std::string(nom) += "[" + lignes + "]");
    }
    return tout;
  }
};

TEST_P(Conformite, RandomWorkAgreesWithAPlainMap) {
  const unsigned graine = std::random_device{}();
  SCOPED_TRACE("seed " + std::to_string(graine));
  std::mt19937 hasard(graine);
  const auto tirer = [&](unsigned n) { return hasard() % n; };
  Modele modele;
  const auto unActe = [&](Modele& m) {
    const std::string fichier = tirer(2) == 0 ? "A" : "AB";
    const std::string cle = std::to_string(tirer(12));
    const std::string texte(tirer(4) == 0 ? 3000 : tirer(3), static_cast<char>('a' + tirer(3)));
    if (tirer(3) == 0) {
      EXPECT_EQ(Store().Erase(fichier, cle), m.fichiers[fichier].count(cle) == 1);
      m.Remplacer(fichier, cle, nullptr);
    } else {
      Store().Put(fichier, cle, texte);
      m.Remplacer(fichier, cle, &texte);
    }
    EXPECT_EQ(anciens(Store(), fichier, cle), m.anciens[fichier + "/" + cle].second);
  };
  for (int tour = 0; tour < 60 && !HasFailure(); ++tour) {
    Modele suivant = modele;
    const bool garder = tirer(3) != 0;
    try {
      Store().EnUnBloc([&] {
        for (auto i = tirer(10); i > 0; --i) unActe(suivant);
        if (!garder) throw std::runtime_error("undo");
      });
    } catch (const std::runtime_error&) {
    }
    if (garder) modele = suivant;
    unActe(modele);
    ASSERT_EQ(etat(Store()), modele.Etat());
  }
}

}  // namespace
