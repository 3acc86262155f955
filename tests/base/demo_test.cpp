// The demonstration data as a whole: files, bytes, planning inside the contracts.

#include <set>

#include "base/demo_base.h"
#include "data/jour.h"
#include "data/layouts/voisins.h"

namespace {

using namespace essai_demo;

TEST(Demo, ChaqueFichierEstGarni) {
  std::set<const data::FichierConnu*> garnis;
  for (const auto& [nom, articles] : base().fichiers) {
    garnis.insert(data::fichierConnu(nom));
  }
  EXPECT_FALSE(garnis.contains(nullptr)) << "a file that the suite does not know";
  for (const data::FichierConnu& connu : data::FichiersConnus) {
    EXPECT_TRUE(garnis.contains(&connu)) << connu.nom;
  }
}

TEST(Demo, MemeGraineMemesArticles) {
  const Base autre(200), petite(25), graine2(200, 2);
  EXPECT_EQ(autre.fichiers.size(), base().fichiers.size());
  for (const auto& [nom, articles] : base().fichiers) {
    EXPECT_EQ(autre.empreinte(nom), base().empreinte(nom)) << nom;
  }
  // A carer's records do not depend on how many carers there are.
  for (const char* nom : {"CIVILAIDANT", "CONTRAT", "DETAILCALCUL", "TPSDETAILSINTERV"}) {
    EXPECT_EQ(petite.empreinte(nom), base().empreinte(nom, "00026")) << nom;
    EXPECT_NE(graine2.empreinte(nom), base().empreinte(nom)) << nom;
  }
}

TEST(Demo, PlanningDansLesContrats) {
  namespace T = data::TpsDetailsInterv;
  for (const auto& [cle, intervention] : base()[fichier::TPSDETAILSINTERV]) {
    SCOPED_TRACE("TPSDETAILSINTERV " + cle);
    const std::string aide = cle.substr(5, 5), activite = cle.substr(15, 6);
    const long debut = std::stol(cle.substr(10, 5)), fin = intervention.fin(T::DateFin);
    EXPECT_TRUE(debut <= fin && cle[21] <= '6') << debut;
    EXPECT_LT(cle.substr(22), intervention(T::HeureFin));
    EXPECT_EQ(base().lire(fichier::CIVILAIDE, aide)(data::CivilAide::DateFin), "");
    const Item& ouvertes = base().lire(fichier::ACTIVITESAIDE, aide);
    EXPECT_THAT(ouvertes.valeurs(data::ActivitesAide::Codes), testing::Contains(activite));
    EXPECT_TRUE(unContrat(aidantDe(cle), [&](const Item& contrat) {
      const std::vector<std::string> activites = contrat.valeurs(C::Activites);
      return std::count(activites.begin(), activites.end(), activite) == 1 &&
             (!contrat.particulier() || contrat(C::Employeur) == aide) &&
             contrat.debut() <= debut && contrat.fin(C::DernierJourTravaille) >= fin;
    }));
  }
}

TEST(Demo, NombreDAidantsBorne) {
  const data::PosteFixe poste(Aujourdhui);
  storage::MemoryStorage memoire(poste);
  for (const int aidants : {0, -1, demo::AidantsMax + 1}) {
    EXPECT_THROW(demo::genererDemo(memoire, {.aidants = aidants}), std::invalid_argument);
  }
}

TEST(Demo, CodesDePersonnes) {
  constexpr std::pair<int, const char*> Codes[] = {{1, "00001"},      {99999, "99999"},
                                                   {100000, "A0000"}, {109999, "A9999"},
                                                   {110000, "B0000"}, {359999, "Z9999"}};
  for (const auto& [numero, code] : Codes) EXPECT_EQ(demo::codePersonne(numero), code);
}

}  // namespace
