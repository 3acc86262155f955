#include "rules/planning.h"

#include <gtest/gtest.h>

#include "data/jour.h"
#include "data/poste.h"
#include "rules/chevauchement.h"
#include "storage/memory.h"
#include "support/faulty_storage.h"
#include "support/table.h"

namespace {

using rules::ContratPlanifie, rules::Intervention;

// Carer 00001's planning around a contract of entity 001 from day 21100 on: home help (001DOM) is
// the contract's, child care (001GAR) is the entity's only.
class Planning : public ::testing::Test {
 protected:
  using Attributs = std::vector<std::pair<int, std::string>>;

  Planning() {
    article("ACTIVITES", "001DOM", {{1, "Domicile"}, {12, "P"}});
    article("ACTIVITES", "001GAR", {{1, "Garde"}, {12, "P"}});
    article("ACTIVITES", "001MAN", {{1, "Mandat"}, {12, "M"}});
    article("ACTIVITES", "002DOM", {{1, "Domicile"}, {12, "P"}});
    article("CIVILAIDE", "00007", {{2, " MARTIN "}, {3, "Rose"}});
    contrat.codeAidant = "00001";
    contrat.convention = "01";
    contrat.association = "001";
    contrat.employeur = "001001";
    contrat.debut = 21100;
    contrat.prochainDebutApres = rules::SansFin;
    contrat.typeActivite = "P";
    contrat.activitesOffertes = data::ListeCodes(std::vector<data::ListeCodes::Ligne>{
        {"001DOM", "Domicile", {"P"}}, {"001GAR", "Garde", {"P"}}});
    contrat.activites = {"Domicile"};
  }
  void article(const std::string& fichier, const std::string& cle, const Attributs& attributs) {
    data::CItem item = db.OpenFile(fichier).NewItem(cle);
    for (const auto& [a, texte] : attributs) item.Set(a, texte);
    item.DBWrite();
  }
  void parametres(const char* mode, const char* notation = "") {
    article("TPSPARAM", "1", {{19, mode}, {20, notation}});
  }
  // At 08h30 (or 08,30) on the weekday of that digit; the key.
  std::string intervention(const char* debut, const char* fin, const char* activite = "001DOM",
                           const char* jour = "0", const char* aide = "00007") {
    const std::string cle = std::string("00001") + aide + debut + activite + jour + "0830";
    article("TPSDETAILSINTERV", cle, {{1, fin}, {2, "1050"}});
    return cle;
  }
  // The first days in a report, parted by blanks.
  static std::string jours(const std::string& rapport) {
    std::string trouves;
    const std::string marque = " à partir du ";
    for (auto i = rapport.find(marque); i != std::string::npos; i = rapport.find(marque, i + 1)) {
      const auto date = rapport.substr(i + marque.size(), 10);
      trouves +=
          (trouves.empty() ? "" : " ") + std::to_string(data::lireDateAffichee(date).value_or(0));
    }
    return trouves;
  }
  void vider(const char* fichier) {
    std::vector<std::string> cles;
    memoire.Scan(fichier, data::KeyRange::Tout(), [&](auto cle, auto) {
      cles.emplace_back(cle);
      return true;
    });
    for (const auto& cle : cles) memoire.Erase(fichier, cle);
  }
  std::string reste() {
    std::string cles;
    for (const char* fichier : {"TPSDETAILSINTERV", "TPSEXCEPTIONS", "TPSSANSCONTRAT"}) {
      memoire.Scan(fichier, data::KeyRange::Tout(), [&](auto cle, auto texte) {
        cles += std::string(cle) + "=" + std::string(texte.substr(0, texte.find('\x1e'))) + " ";
        return true;
      });
    }
    return cles;
  }

  data::PosteFixe poste{21511};
  storage::MemoryStorage memoire{poste};
  std::shared_ptr<support::FaultyStorage> stockage =
      std::make_shared<support::FaultyStorage>(memoire);
  data::Db db{stockage};
  ContratPlanifie contrat;
};

TEST_F(Planning, UneLigneParIntervention) {
  for (const auto& [cle, fin, heureFin, centiemes, ligne] :
       support::table<5>("rules/planning.md", "Une ligne par intervention")) {
    EXPECT_EQ(rules::ligneIntervention(db, {cle, fin, heureFin}, {true, centiemes == "oui"}),
              "\r\n" + support::code(ligne));
  }
}

TEST_F(Planning, CeQueLeContratNEncadrePas) {
  parametres("1");
  intervention("21000", "21050");
  intervention("21090", "21150");
  intervention("21100", "");
  intervention("21190", "21300");
  intervention("21250", "");
  intervention("21000", "", "002DOM");
  intervention("21000", "", "001MAN");
  for (const auto& [nom, termine, avecFin, finAvant, debutApres, dehors] :
       support::table<6>("rules/planning.md", "Ce que le contrat n'encadre pas")) {
    contrat.termine = termine == "oui";
    contrat.dernierJour = 21200;
    contrat.derniereFinAvant = std::stol(finAvant);
    contrat.prochainDebutApres = debutApres.empty() ? rules::SansFin : std::stol(debutApres);
    const std::string rapport = rules::Verif_CoherencePlanning(db, contrat, avecFin == "oui");
    EXPECT_EQ(jours(rapport), dehors) << nom;
    if (!dehors.empty()) {
      EXPECT_TRUE(rapport.starts_with(
          "Des interventions du planning sont en dehors des dates de validité du contrat : \r\n"));
    }
  }
  parametres("2");
  EXPECT_EQ(rules::Verif_CoherencePlanning(db, contrat, true), "");
}

TEST_F(Planning, LesActivitesQuiNeSontPasDuContrat) {
  parametres("1");
  contrat.derniereFinAvant = 21099;
  contrat.termine = true;
  contrat.dernierJour = 21200;
  contrat.prochainDebutApres = 21201;
  intervention("21100", "21200", "001GAR");
  intervention("21110", "21200", "001DOM");
  intervention("21050", "21099", "001GAR", "1");
  intervention("21201", "21300", "001GAR", "2");
  EXPECT_EQ(rules::Verif_CoherencePlanning(db, contrat, true),
            "Des interventions du planning sont sur des activités non définies pour ce contrat : "
            "\r\nLundi    de 08,30 à 10,50 chez MARTIN Rose à partir du 07/10/2025 jusqu'au "
            "15/01/2026\r\n          ACTIVITE : Garde");
  // The hundred-and-first activity is not looked at.
  contrat.activites.assign(100, "Autre");
  contrat.activites.push_back("Garde");
  EXPECT_EQ(jours(rules::Verif_CoherencePlanning(db, contrat, true)), "21100 21110");
  contrat.activites[99] = "Garde";
  EXPECT_EQ(jours(rules::Verif_CoherencePlanning(db, contrat, true)), "21110");
}

TEST_F(Planning, UnContratRaccourciSupprimeCoupeOuLaisse) {
  contrat.dernierJour = 21200;
  intervention("21100", "21200");
  intervention("21201", "", "001DOM", "3");
  intervention("21200", "", "001GAR", "1");
  intervention("21000", "", "001MAN", "1");
  const struct {
    bool determine;
    const char* mode;
    const char* annonce;  // of the one that begins after the last day
  } cas[] = {{true, "1", "Sera sans contrat."},
             {true, "2", "Sera supprimée."},
             {false, "1", "Sera supprimée."}};
  for (const auto& [determine, mode, annonce] : cas) {
    parametres(mode);
    contrat.determine = determine;
    const auto trouvees = rules::incidences(db, contrat);
    EXPECT_EQ(rules::rapportIncidences(db, contrat, trouvees, "A"),
              "A\r\n\r\nLa modification du contrat aura les incidences suivantes sur le planning : "
              "\r\n\r\nMardi    de 08,30 à 10,50 chez MARTIN Rose à partir du 15/01/2026"
              "                    \r\n                    Nouvelle date de fin au 15/01/2026."
              "\r\nJeudi    de 08,30 à 10,50 chez MARTIN Rose à partir du 16/01/2026"
              "                    \r\n                    " +
                  std::string(annonce));
  }
  contrat.convention = "02";
  contrat.employeur = "00007";
  EXPECT_EQ(jours(rules::rapportIncidences(db, contrat, rules::incidences(db, contrat), "")),
            "21000");
}

// Deleted, cut and left; exceptions after the last day go, a fault leaves what was done before it,
// and applying again what is left ends in the same records.
TEST_F(Planning, LesIncidencesAppliqueesUneParUne) {
  const std::string coupee = "000010000721100001DOM00830", apres = "000010000721201001DOM10830",
                    sansContrat = "000010000721202001DOM20830";
  const auto preparer = [&](const char* mode) {
    stockage->EchouerEcriture(0);
    for (const char* fichier : {"TPSDETAILSINTERV", "TPSEXCEPTIONS"}) vider(fichier);
    parametres(mode);
    intervention("21100", "", "001DOM", "0");
    intervention("21201", "", "001DOM", "1");
    article("TPSEXCEPTIONS", "00001211500830", {{1, coupee}});
    article("TPSEXCEPTIONS", "00001212100830", {{1, coupee}});
    article("TPSEXCEPTIONS", "00002212100830", {{1, apres}});
    article("TPSEXCEPTIONS", "00001212110830", {{1, "autre"}});
  };
  contrat.dernierJour = 21200;
  const std::string fin = coupee + "=21200 00001211500830=" + coupee + " 00001212110830=autre ";
  preparer("2");
  {
    rules::MiseAJourPlanning maj(db, contrat, 21300, "un nom bien plus long que vingt");
    maj.Appliquer(rules::incidences(db, contrat));
    EXPECT_EQ(reste(), fin);
    EXPECT_EQ(maj.Remplacements().size(), 2u);
    EXPECT_EQ(maj.Faites(), 2);
  }
  for (int n = 1; n <= 4; ++n) {
    preparer("2");
    stockage->EchouerEcriture(n);
    rules::MiseAJourPlanning maj(db, contrat, 21300, "u");
    EXPECT_THROW(maj.Appliquer(rules::incidences(db, contrat)), data::StoreError) << n;
    EXPECT_EQ(maj.Faites(), n <= 2 ? 0 : 1) << n;
    stockage->EchouerEcriture(0);
    rules::MiseAJourPlanning encore(db, contrat, 21300, "u");
    encore.Appliquer(rules::incidences(db, contrat));
    EXPECT_EQ(reste(), fin) << n;
  }
  // A fixed term where work stays without contract: what begins later is left alone.
  contrat.determine = true;
  preparer("1");
  rules::MiseAJourPlanning maj(db, contrat, 21300, "u");
  maj.Appliquer(rules::incidences(db, contrat));
  EXPECT_NE(reste().find(apres + "= "), std::string::npos);
  maj.LaisserSansContrat();
  EXPECT_TRUE(reste().ends_with("00001001001= "));
}

}  // namespace
