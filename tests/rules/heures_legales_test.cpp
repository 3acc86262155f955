#include "rules/heures_legales.h"

#include <gtest/gtest.h>

#include <array>
#include <sstream>

#include "data/layouts/contrat.h"
#include "screen/headless/hote.h"
#include "storage/memory.h"

namespace {

namespace C = data::Contrat;

// Worked by hand: a fortnight is halved, a month is 12/52 of a week, a year 1/52; halves go up.
TEST(HeuresLegales, RamenentALaSemaine) {
  const struct {
    long long duree;
    int frequence;
    long long attendu;
  } cas[] = {
      {3500, 1, 3500},   {7000, 2, 3500}, {7001, 2, 3501},  // 3500,5
      {15167, 3, 3500},                                     // 3500,08
      {15165, 3, 3500},                                     // 3499,62
      {15164, 3, 3499},                                     // 3499,38
      {160700, 4, 3090},                                    // 3090,38
      {26, 4, 1},        {25, 4, 0},      {0, 3, 0},        // 0,5 and 0,48 of a hundredth
      {-7001, 2, -3500},                                    // -3500,5 + 0,5
  };
  for (const auto& [duree, frequence, attendu] : cas) {
    EXPECT_EQ(rules::hebdomadaire(duree, frequence), attendu) << duree << " " << frequence;
  }
  EXPECT_EQ(rules::hebdomadaire(3500, 0), std::nullopt);
  EXPECT_EQ(rules::hebdomadaire(3500, 5), std::nullopt);
}

class Heures : public ::testing::Test {
 protected:
  void article(const char* fichier, const std::string& cle,
               const std::vector<std::pair<int, std::string>>& attributs) {
    data::CItem item = db.OpenFile(fichier).NewItem(cle);
    for (auto [a, texte] : attributs) {
      std::replace(texte.begin(), texte.end(), '|', data::SepValeur);
      item.Set(a, texte);
    }
    item.DBWrite();
  }
  // Contracts of the carer, "number start end hours frequency mark", the values of an amendment
  // parted by "|", and unavailabilities, "first weekday start last end mark"; "-" for nothing.
  void preparer(const std::string& contrats, const std::string& indispos) {
    for (const char* fichier : {"CONTRAT", "TPSAIDANTINDISPO"}) {
      std::vector<std::string> cles;
      memoire.Scan(fichier, data::KeyRange::Tout(), [&](auto cle, auto) {
        cles.emplace_back(cle);
        return true;
      });
      for (const auto& cle : cles) memoire.Erase(fichier, cle);
    }
    article("CONSTANTESPAIE", "1", {{10, "4800"}});
    // Another carer's hours are nobody's business.
    article("CONTRAT", "00002001", {{7, "20000"}, {24, "4800"}, {25, "1"}});
    const auto lire = [](const std::string& texte, const auto& ecrire) {
      std::istringstream mots(texte);
      for (std::array<std::string, 6> m; mots >> m[0] >> m[1] >> m[2] >> m[3] >> m[4] >> m[5];) {
        for (std::string& mot : m) mot = mot == "-" ? "" : mot;
        ecrire(m);
      }
    };
    lire(contrats, [&](const auto& m) {
      article("CONTRAT", "00001" + m[0],
              {{C::DateDebut, m[1]},
               {C::DateFin, m[2]},
               {C::DureeTravail, m[3]},
               {C::Frequence, m[4]},
               {C::Annule, m[5]}});
    });
    lire(indispos, [&](const auto& m) {
      article("TPSAIDANTINDISPO", "00001" + m[0] + m[1] + m[2], {{1, m[3]}, {2, m[4]}, {5, m[5]}});
    });
  }
  std::string verif(const rules::TempsTravail& temps) {
    const auto avis = rules::Verif_NbHeures(db, "00001", "003", temps);
    return !avis ? "" : (avis->question ? "? " : "! ") + avis->texte;
  }

  screen::headless::Hote hote{21511};
  storage::MemoryStorage memoire{hote.poste};
  data::Db db{std::shared_ptr<data::Storage>(&memoire, [](auto*) {})};
};

// Contract 003 is on the screen, effective on day 21000, started on day 20900; the maximum is
// 4800. Each case is played at the limit, which passes, and one hundredth above it.
TEST_F(Heures, AdditionnentCeQuiEstEnVigueur) {
  const struct {
    const char *nom, *contrats, *indispos;
    long long limite;  // weekly time on the screen that reaches the limit
  } cas[] = {
      {"alone", "", "", 4800},
      {"its own record is not counted", "003 20900 - 3500 1 -", "", 4800},
      {"open-ended", "001 20000 - 1000 1 -", "", 3800},
      {"ended the day before", "001 20000 20999 1000 1 -", "", 4800},
      {"ends that day", "001 20000 21000 1000 1 -", "", 3800},
      {"starts that day", "001 21000 - 1000 1 -", "", 3800},
      {"starts the day after", "001 21001 - 1000 1 -", "", 4800},
      {"cancelled", "001 20000 - 1000 1 O", "", 4800},
      {"its last amendment", "001 20000 - 1000|2001 1|2 -", "", 3799},
      {"monthly and yearly", "001 20000 - 4333 3 -  002 20000 - 52000 4 -", "", 2800},
      // 1000, then twice what stood before.
      {"unknown frequencies",
       "001 20000 - 1000 1 -  002 20000 - 300 - -  003 20900 - 50 1 -  004 20000 - 300 9 -", "",
       1800},
      {"an unknown frequency first", "001 20000 - 300 - -", "", 4800},
      {"without a working time", "001 20000 - - - -", "", 4800},
      // Four-digit times: 1030 - 0845 is 185.
      {"unavailable on the start", "", "20000 0 0845 - 1030 O", 4615},
      {"to that very day", "", "20900 0 0800 20900 1200 O", 4400},
      {"over, not begun, not counted", "",
       "20000 0 0800 20899 1200 O  20901 1 0800 - 1200 O  20000 2 0800 - 1200 -", 4800},
  };
  for (const auto& [nom, contrats, indispos, limite] : cas) {
    preparer(contrats, indispos);
    EXPECT_EQ(verif({limite, 1, 21000, 20900}), "") << nom;
    EXPECT_EQ(verif({limite + 1, 0, 21000, 20900}),
              "? Le nombre d'heures cumulées tous contrats confondus est supérieur au nombre "
              "d'heures légal autorisé, voulez-vous continuer ?")
        << nom;
  }
}

TEST_F(Heures, SansConstantesRienNEstPermis) {
  EXPECT_EQ(verif({0, 1, 21000, 20900}),
            "! La création d'un contrat de travail est impossible tant que les constantes de paie "
            "ne sont pas renseignées.");
}

}  // namespace
