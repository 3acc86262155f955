#include "rules/traitements.h"

#include <gtest/gtest.h>

#include "data/poste.h"
#include "storage/memory.h"
#include "support/table.h"

namespace {

using rules::ContratTraite;

class Traitements : public ::testing::Test {
 protected:
  using Attributs = std::vector<std::pair<int, std::string>>;
  void article(const std::string& fichier, const std::string& cle, const Attributs& attributs) {
    data::CItem item = db.OpenFile(fichier).NewItem(cle);
    for (const auto& [a, texte] : attributs) item.Set(a, texte);
    item.DBWrite();
  }
  static ContratTraite contrat(const std::string& convention, bool administratif,
                               const std::string& type) {
    return {"00001002", convention, "001", "00007", administratif, type};
  }
  // The record in that file alone; the key of a neighbour where none counts.
  bool supprimable(const ContratTraite& c, const std::string& fichier, const std::string& cle) {
    article(fichier, cle, {{1, "x"}});
    const bool libre = !rules::Verif_SuppressionPossible(db, c);
    db.OpenFile(fichier).DeleteItem(cle);
    return libre;
  }
  bool modifiable(const ContratTraite& c, const std::string& fichier, const std::string& cle) {
    article(fichier, cle, {{1, "x"}});
    const bool libre = !rules::Verif_ModificationPossible(db, c, "202606");
    db.OpenFile(fichier).DeleteItem(cle);
    return libre;
  }

  data::PosteFixe poste{21511};
  data::Db db{std::make_shared<storage::MemoryStorage>(poste)};
};

// The files that count, by agreement, status and type of activity.
TEST_F(Traitements, LesFichiersDesBulletins) {
  const std::pair<const char*, const char*> fichiers[] = {{"DETAILCALCUL", ""},
                                                          {"DETAILMANDAT", ""},
                                                          {"DETAILADMIN", ""},
                                                          {"DETAILPREST", ""},
                                                          {"DETAILINTER", "000"}};
  for (const auto& rangee :
       support::table<8>("rules/traitements.md", "Les fichiers des bulletins")) {
    const ContratTraite c = contrat(rangee[0], rangee[1] == "oui", rangee[2]);
    SCOPED_TRACE(rangee[0] + rangee[1] + rangee[2]);
    for (std::size_t i = 0; i < 5; ++i) {
      const auto& [fichier, zeros] = fichiers[i];
      const bool compte = rangee[3 + i] == "oui";
      const std::string cle = c.cle + zeros;
      EXPECT_NE(supprimable(c, fichier, cle + "202601"), compte) << fichier;
      EXPECT_TRUE(supprimable(c, fichier, std::string("00001003") + zeros + "202601")) << fichier;
      // After the month of the end, and not in it.
      EXPECT_NE(modifiable(c, fichier, cle + "202607"), compte) << fichier;
      EXPECT_TRUE(modifiable(c, fichier, cle + "202606")) << fichier;
      EXPECT_TRUE(modifiable(c, fichier, std::string("00001003") + zeros + "202607")) << fichier;
    }
  }
}

TEST_F(Traitements, LePlanningRetient) {
  article("ACTIVITES", "001DOM", {{12, "P"}});
  article("ACTIVITES", "001MAN", {{12, "M"}});
  const ContratTraite entite = contrat("01", false, "P"), mandat = contrat("02", false, "M");
  const rules::JoursPlanifies jour{21100, {}, {}}, fin{21100, 21150, 21200};
  for (const auto& [nom, convention, aide, debut, activite, dernier, acte, libre] :
       support::table<8>("rules/traitements.md", "Le planning")) {
    const std::string cle = "00001" + aide + debut + activite + "00830";
    article("TPSDETAILSINTERV", cle, {{1, dernier}, {2, "1000"}});
    EXPECT_EQ(!rules::Verif_PlanningSuppression(db, convention == "02" ? mandat : entite,
                                                acte == "supprimé" ? jour : fin),
              libre == "oui")
        << nom;
    db.OpenFile("TPSDETAILSINTERV").DeleteItem(cle);
  }
  EXPECT_FALSE(rules::Verif_PlanningSuppression(db, entite, jour));
  article("TPSMOI", "1", {{4, "00001002"}});
  const auto refus = rules::Verif_PlanningSuppression(db, entite, jour);
  ASSERT_TRUE(refus);
  EXPECT_TRUE(refus->texte.starts_with("Impossible de supprimer ce contrat car de la Main"));
}

}  // namespace
