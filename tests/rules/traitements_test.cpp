#include "rules/traitements.h"

#include <gtest/gtest.h>

#include "data/poste.h"
#include "storage/memory.h"

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
  static ContratTraite contrat(const char* convention, bool administratif, const char* type) {
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
  const struct {
    ContratTraite contrat;
    const char* comptent;  // in the order above
  } cas[] = {
      {contrat("01", false, "P"), "1--1-"}, {contrat("01", false, "M"), "1---1"},
      {contrat("01", false, ""), "1---1"},  {contrat("02", false, "M"), "11--1"},
      {contrat("01", true, "P"), "1-11-"},  {contrat("01", true, "X"), "1-1-1"},
  };
  for (const auto& [c, comptent] : cas) {
    for (std::size_t i = 0; i < 5; ++i) {
      const auto& [fichier, zeros] = fichiers[i];
      const bool compte = comptent[i] == '1';
      const std::string cle = c.cle + zeros;
      EXPECT_NE(supprimable(c, fichier, cle + "202601"), compte) << fichier << comptent;
      EXPECT_TRUE(supprimable(c, fichier, std::string("00001003") + zeros + "202601")) << fichier;
      // After the month of the end, and not in it.
      EXPECT_NE(modifiable(c, fichier, cle + "202607"), compte) << fichier << comptent;
      EXPECT_TRUE(modifiable(c, fichier, cle + "202606")) << fichier << comptent;
      EXPECT_TRUE(modifiable(c, fichier, std::string("00001003") + zeros + "202607")) << fichier;
    }
  }
}

TEST_F(Traitements, LePlanningRetient) {
  article("ACTIVITES", "001DOM", {{12, "P"}});
  article("ACTIVITES", "001MAN", {{12, "M"}});
  const ContratTraite entite = contrat("01", false, "P"), mandat = contrat("02", false, "M");
  const rules::JoursPlanifies jour{21100, {}, {}}, fin{21100, 21150, 21200};
  // An intervention of carer 00001, by person helped, first day, activity and last day.
  const struct {
    const char* nom;
    const ContratTraite& contrat;
    const char *aide, *debut, *activite, *fin;
    rules::JoursPlanifies jours;
    bool libre;
  } cas[] = {
      {"without end", entite, "00008", "21000", "001DOM", "", jour, false},
      {"over before", entite, "00008", "21000", "001DOM", "21099", jour, true},
      {"on its first day", entite, "00008", "21000", "001DOM", "21100", jour, false},
      {"another entity's", entite, "00008", "21000", "002DOM", "", jour, true},
      {"a private employer's", entite, "00007", "21000", "001MAN", "", jour, true},
      {"that employer's", mandat, "00007", "21000", "001MAN", "", jour, false},
      {"another employer's", mandat, "00008", "21000", "001MAN", "", jour, true},
      {"up to the end", entite, "00008", "21150", "001DOM", "21200", fin, false},
      {"after the last day", entite, "00008", "21151", "001DOM", "21200", fin, true},
      {"over before the end", entite, "00008", "21150", "001DOM", "21199", fin, true},
  };
  for (const auto& c : cas) {
    const std::string cle = std::string("00001") + c.aide + c.debut + c.activite + "00830";
    article("TPSDETAILSINTERV", cle, {{1, c.fin}, {2, "1000"}});
    EXPECT_EQ(!rules::Verif_PlanningSuppression(db, c.contrat, c.jours), c.libre) << c.nom;
    db.OpenFile("TPSDETAILSINTERV").DeleteItem(cle);
  }
  EXPECT_FALSE(rules::Verif_PlanningSuppression(db, entite, jour));
  article("TPSMOI", "1", {{4, "00001002"}});
  const auto refus = rules::Verif_PlanningSuppression(db, entite, jour);
  ASSERT_TRUE(refus);
  EXPECT_TRUE(refus->texte.starts_with("Impossible de supprimer ce contrat car de la Main"));
}

}  // namespace
