#include "rules/heures_legales.h"

#include <gtest/gtest.h>

#include <array>
#include <sstream>

#include "data/layouts/contrat.h"
#include "screen/headless/hote.h"
#include "storage/memory.h"
#include "support/table.h"

namespace {

namespace C = data::Contrat;

TEST(HeuresLegales, RamenentALaSemaine) {
  for (const auto& [duree, frequence, semaine, calcul] :
       support::table<4>("rules/heures_legales.md", "À la semaine")) {
    const auto lue = rules::hebdomadaire(std::stoll(duree), std::stoi(frequence));
    EXPECT_EQ(lue ? std::to_string(*lue) : "", semaine) << duree << " " << frequence;
  }
}

class Heures : public ::testing::Test {
 protected:
  void article(const char* fichier, const std::string& cle,
               const std::vector<std::pair<int, std::string>>& attributs) {
    data::CItem item = db.OpenFile(fichier).NewItem(cle);
    for (auto [a, texte] : attributs) {
      std::replace(texte.begin(), texte.end(), '^', data::SepValeur);
      item.Set(a, texte);
    }
    item.DBWrite();
  }
  // In the form of the table.
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

TEST_F(Heures, AdditionnentCeQuiEstEnVigueur) {
  for (const auto& [nom, contrats, indispos, limite] :
       support::table<4>("rules/heures_legales.md", "Ce qui s'additionne")) {
    preparer(contrats, indispos);
    EXPECT_EQ(verif({std::stoll(limite), 1, 21000, 20900}), "") << nom;
    EXPECT_EQ(verif({std::stoll(limite) + 1, 0, 21000, 20900}),
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
