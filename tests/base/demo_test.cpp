// The demonstration data as a whole: files, bytes, payroll and planning inside the contracts.

#include <set>

#include "base/demo_base.h"
#include "data/jour.h"
#include "data/layouts/voisins.h"
#include "demo/calendrier.h"
#include "support/faulty_storage.h"

namespace {

using namespace essai_demo;

TEST(Demo, ChaqueFichierEstGarniDeClesBienFormees) {
  std::set<const data::FichierConnu*> garnis;
  for (const auto& [nom, articles] : base().fichiers) {
    garnis.insert(data::fichierConnu(nom));
    for (const auto& [cle, item] : articles) {
      EXPECT_TRUE(data::cleBienFormee(nom, cle)) << nom << " " << cle;
    }
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
  EXPECT_EQ(graine2.empreinte("TABLES"), base().empreinte("TABLES"));
}

TEST(Demo, CodesDesTables) {
  const Item& fins = base().lire(fichier::TABLES, "FINCONTRAT");
  std::string codes;
  for (const std::string& code : fins.valeurs(data::Tables::Codes)) codes += code + " ";
  EXPECT_EQ(codes, "11 12 14 15 20 25 26 31 32 33 34 35 36 37 38 39 43 58 59 65 66 87 88 91 92 ");
  EXPECT_EQ(fins(data::Tables::Libelles, 17), "Rupture conventionnelle");
  const Item& natures = base().lire(fichier::TABLES, data::Tables::NatureContrat);
  EXPECT_THAT(natures.valeurs(data::Tables::Libelles), testing::Contains("Stagiaire"));
  EXPECT_EQ(base().lire(fichier::CENTREMEDICAL, "003")(data::CentreMedical::Libelle),
            "Santé au travail d'Avranches");
}

TEST(Demo, BulletinsDansLaVieDuContrat) {
  // By file, the status of its contracts, 02 for private employers.
  constexpr std::pair<const char*, std::string_view> Admis[] = {{"DETAILADMIN", "A"},
                                                                {"DETAILCALCUL", ""},
                                                                {"DETAILINTER", "02"},
                                                                {"DETAILMANDAT", "02"},
                                                                {"DETAILPREST", "P"}};
  for (const auto& [nom, admis] : Admis) {
    for (const auto& [cle, detail] : base()[nom]) {
      SCOPED_TRACE(std::string(nom) + " " + cle);
      const Item& contrat = base().lire(fichier::CONTRAT, cle.substr(0, 8));
      const std::string periode = cle.substr(cle.size() - 6);
      EXPECT_FALSE(contrat.annule());
      EXPECT_LE(periode, contrat(C::DernierCalcul));
      EXPECT_GE(periode, data::periodeDe(contrat.debut()));
      EXPECT_TRUE(contrat.fin() == SansFin || periode <= contrat(C::DernierBulletin));
      EXPECT_TRUE(admis.empty() || admis == (contrat.particulier() ? "02" : contrat(C::Statut)));
    }
  }
  chaqueContrat([&](const std::string& cle, const Item& contrat) {
    if (contrat(C::DernierCalcul).empty()) return;
    EXPECT_TRUE(base().contient(fichier::DETAILCALCUL, cle + contrat(C::DernierCalcul)));
    EXPECT_LE(contrat(C::PeriodeTraitee), "202610");
  });
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
  for (const auto& [cle, exception] : base()[fichier::TPSEXCEPTIONS]) {
    SCOPED_TRACE("TPSEXCEPTIONS " + cle);
    const std::string quoi = exception(data::TpsExceptions::Intervention);
    const Item& intervention = base().lire(fichier::TPSDETAILSINTERV, quoi);
    const long date = std::stol(cle.substr(5, 5));
    EXPECT_EQ(std::to_string(data::jourDeSemaine(date)), quoi.substr(21, 1));
    EXPECT_TRUE(std::stol(quoi.substr(10, 5)) <= date && date <= intervention.fin(T::DateFin));
  }
  for (const auto& [cle, moi] : base()[fichier::TPSMOI]) {
    EXPECT_TRUE(base().contient(fichier::CONTRAT, moi(data::TpsMoi::Contrat))) << cle;
  }
}

TEST(Demo, TempsEffectifSolde) {
  namespace T = data::AidantTte;
  for (const auto& [cle, item] : base()[fichier::AIDANTTTE]) {
    SCOPED_TRACE("AIDANTTTE " + cle);
    long solde = 0;
    for (int n = 1; n <= item.DCount(T::Mois); ++n) {
      const auto de = [&, n](int attribut) { return item.nombre(attribut, n); };
      const long jours = 100 * (de(T::JoursMois) - de(T::JoursSamDim) - de(T::JoursFeries)) -
                         de(T::JoursConges) - de(T::JoursMaladie) - de(T::JoursAutres);
      solde += de(T::TempsEffectif) - de(T::HeuresParJour) * jours / 100 - de(T::Regularisation);
      EXPECT_EQ(item(T::Mois, n).substr(0, 4), cle.substr(8));
      EXPECT_EQ(item.nombre(T::Solde, n), solde);
    }
  }
}

TEST(Demo, JoursDuMois) {
  // Days, Saturdays and Sundays, public holidays from Monday to Friday.
  const std::pair<const char*, std::vector<int>> LesCas[] = {
      {"202605", {31, 10, 4}},  // 1 and 8 May, Ascension on the 14th, Whit Monday on the 25th
      {"202604", {30, 8, 1}},   // Easter Monday on the 6th
      {"202802", {29, 8, 0}},   // leap year
      {"202711", {30, 8, 2}},   // 1 and 11 November, a Monday and a Thursday
      {"202508", {31, 10, 1}},  // 15 August, a Friday
      {"202611", {30, 9, 1}},   // 1 November is a Sunday, the 11th a Wednesday
  };
  for (const auto& [periode, attendu] : LesCas) {
    const auto [total, samediDimanche, feries] = demo::joursDuMois(periode);
    EXPECT_EQ((std::vector<int>{total, samediDimanche, feries}), attendu) << periode;
  }
  // 31/10/2026 is day 21489: a month later November has 30 days; a month before, September too.
  EXPECT_EQ(demo::moisPlusTard(21489, 1), 21519);
  EXPECT_EQ(demo::moisPlusTard(21489, -1), 21458);
}

// Checks the order of the keys on the way to the store, which counts its calls.
struct Temoin : support::FaultyStorage {
  using FaultyStorage::FaultyStorage;
  void Put(std::string_view fichier, std::string_view cle, std::string_view texte) override {
    std::string& derniere = dernieres[std::string(fichier)];
    EXPECT_TRUE(fichier == "HISTORINDEM" || cle > derniere) << fichier << " " << cle;
    derniere = cle;
    FaultyStorage::Put(fichier, cle, texte);
  }
  std::map<std::string, std::string> dernieres;
};

TEST(Demo, EcritDansLOrdreEtParPutSeul) {
  const data::PosteFixe poste(Aujourdhui);
  storage::MemoryStorage memoire(poste);
  Temoin temoin(memoire);
  long faits = 0, total = -1;
  demo::genererDemo(temoin, {.aidants = 300}, [&](long f, long t) {
    EXPECT_LT(faits, f);
    faits = f, total = t;
  });
  EXPECT_EQ(faits, total);
  EXPECT_EQ(temoin.Appels(), temoin.Ecritures()) << "only Put is to be called";
  for (const int aidants : {0, -1, demo::AidantsMax + 1}) {
    EXPECT_THROW(demo::genererDemo(temoin, {.aidants = aidants}), std::invalid_argument);
  }
}

TEST(Demo, CodesDePersonnes) {
  constexpr std::pair<int, const char*> Codes[] = {{1, "00001"},      {99999, "99999"},
                                                   {100000, "A0000"}, {109999, "A9999"},
                                                   {110000, "B0000"}, {359999, "Z9999"}};
  for (const auto& [numero, code] : Codes) EXPECT_EQ(demo::codePersonne(numero), code);
}

}  // namespace
