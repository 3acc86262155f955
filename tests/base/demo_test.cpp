// The demonstration data as a whole: every file, the same bytes from the same seed, and payroll and
// planning inside the contracts.

#include <gmock/gmock.h>

#include "base/demo_base.h"
#include "data/jour.h"
#include "data/layouts/voisins.h"
#include "demo/calendrier.h"

namespace {

using namespace essai_demo;

TEST(Demo, ChaqueFichierEstGarniDeClesBienFormees) {
  for (const data::FichierConnu& connu : data::FichiersConnus) {
    const bool garni =
        connu.prefixe
            ? std::any_of(base().fichiers().begin(), base().fichiers().end(),
                          [&](const auto& f) { return data::fichierConnu(f.first) == &connu; })
            : !base()[connu.nom].empty();
    EXPECT_TRUE(garni) << connu.nom;
  }
  for (const auto& [nom, articles] : base().fichiers()) {
    EXPECT_NE(data::fichierConnu(nom), nullptr) << nom;
    for (const auto& [cle, item] : articles) {
      EXPECT_TRUE(data::cleBienFormee(nom, cle)) << nom << " " << cle;
    }
  }
}

TEST(Demo, MemeGraineMemesArticles) {
  const Base autre(60);
  const Base petite(25);
  const Base graine2(60, 2);
  EXPECT_EQ(autre.fichiers().size(), base().fichiers().size());
  for (const auto& [nom, articles] : base().fichiers()) {
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
  const CItem& fins = base()[data::fichier::TABLES].at("FINCONTRAT");
  EXPECT_THAT(valeurs(fins, data::Tables::Codes),
              testing::ElementsAre("11", "12", "14", "15", "20", "25", "26", "31", "32", "33", "34",
                                   "35", "36", "37", "38", "39", "43", "58", "59", "65", "66", "87",
                                   "88", "91", "92"));
  EXPECT_EQ(fins(data::Tables::Libelles, 17), "Rupture conventionnelle");
  std::vector<std::string> pcs;
  for (const auto& [cle, item] : base()[data::fichier::PCS]) pcs.push_back(cle);
  EXPECT_THAT(pcs, testing::ElementsAre("43", "431f", "46", "461f", "52", "526a", "54", "542a",
                                        "56", "563b", "563c"));
  const CItem& natures = base()[data::fichier::TABLES].at("NATURECONTRAT");
  const std::vector<std::string> codes = valeurs(natures, data::Tables::Codes);
  const auto stage = std::find(codes.begin(), codes.end(), C::NatureStage) - codes.begin();
  EXPECT_EQ(natures(data::Tables::Libelles, static_cast<int>(stage) + 1), "Stagiaire");
}

TEST(Demo, BulletinsDansLaVieDuContrat) {
  using data::fichier::DETAILCALCUL;
  std::map<std::string, int> comptes;
  for (const char* nom :
       {"DETAILADMIN", "DETAILCALCUL", "DETAILINTER", "DETAILMANDAT", "DETAILPREST"}) {
    for (const auto& [cle, detail] : base()[nom]) {
      SCOPED_TRACE(std::string(nom) + " " + cle);
      const CItem& contrat = base()[data::fichier::CONTRAT].at(cle.substr(0, 8));
      const std::string periode = cle.substr(cle.size() - 6);
      EXPECT_FALSE(annule(contrat));
      EXPECT_LE(periode, contrat(C::DernierCalcul));
      EXPECT_GE(periode, data::periodeDe(nombre(contrat, C::DateDebut)));
      if (finDe(contrat) != SansFin) {
        EXPECT_LE(periode, contrat(C::DernierBulletin));
      }
      const std::string genre = particulier(contrat) ? "MI" : contrat(C::Statut);
      const std::map<std::string, std::string> admis = {{"DETAILADMIN", "A"},
                                                        {"DETAILINTER", "MI"},
                                                        {"DETAILMANDAT", "MI"},
                                                        {"DETAILPREST", "P"}};
      if (admis.contains(nom)) {
        EXPECT_EQ(genre, admis.at(nom));
      }
    }
  }
  chaqueContrat([&](const std::string& cle, const CItem& contrat) {
    if (contrat(C::DernierCalcul).empty()) return;
    EXPECT_TRUE(base().contient(DETAILCALCUL, cle + contrat(C::DernierCalcul)));
    EXPECT_LE(contrat(C::PeriodeTraitee), "202610");
  });
}

TEST(Demo, PlanningDansLesContrats) {
  namespace T = data::TpsDetailsInterv;
  const Fichier& contrats = base()[data::fichier::CONTRAT];
  for (const auto& [cle, intervention] : base()[data::fichier::TPSDETAILSINTERV]) {
    SCOPED_TRACE("TPSDETAILSINTERV " + cle);
    const std::string aide = cle.substr(5, 5), activite = cle.substr(15, 6);
    const long debut = std::stol(cle.substr(10, 5));
    const std::string texteFin = intervention(T::DateFin);
    const long fin = texteFin.empty() ? SansFin : std::stol(texteFin);
    EXPECT_LE(debut, fin);
    EXPECT_LE(cle[21], '6');
    EXPECT_LT(cle.substr(22), intervention(T::HeureFin));
    EXPECT_EQ(base()[data::fichier::CIVILAIDE].at(aide)(data::CivilAide::DateFin), "");
    const auto couvre = [&](const auto& article) {
      const CItem& contrat = article.second;
      return article.first.starts_with(aidantDe(cle)) && !annule(contrat) &&
             contient(valeurs(contrat, C::Activites), activite) &&
             (!particulier(contrat) || contrat(C::Employeur) == aide) &&
             nombre(contrat, C::DateDebut) <= debut &&
             (finDe(contrat) == SansFin || nombre(contrat, C::DernierJourTravaille) >= fin);
    };
    EXPECT_TRUE(std::any_of(contrats.begin(), contrats.end(), couvre));
  }
  for (const auto& [cle, exception] : base()[data::fichier::TPSEXCEPTIONS]) {
    SCOPED_TRACE("TPSEXCEPTIONS " + cle);
    const std::string quoi = exception(data::TpsExceptions::Intervention);
    const CItem& intervention = base()[data::fichier::TPSDETAILSINTERV].at(quoi);
    const long date = std::stol(cle.substr(5, 5));
    EXPECT_EQ(std::to_string(data::jourDeSemaine(date)), quoi.substr(21, 1));
    EXPECT_GE(date, std::stol(quoi.substr(10, 5)));
    if (!intervention(T::DateFin).empty()) {
      EXPECT_LE(date, nombre(intervention, T::DateFin));
    }
  }
  for (const auto& [cle, moi] : base()[data::fichier::TPSMOI]) {
    EXPECT_TRUE(base().contient(data::fichier::CONTRAT, moi(data::TpsMoi::Contrat))) << cle;
  }
}

TEST(Demo, TempsEffectifSolde) {
  namespace T = data::AidantTte;
  for (const auto& [cle, item] : base()[data::fichier::AIDANTTTE]) {
    SCOPED_TRACE("AIDANTTTE " + cle);
    long solde = 0;
    for (int n = 1; n <= item.DCount(T::Mois); ++n) {
      EXPECT_EQ(item(T::Mois, n).substr(0, 4), cle.substr(8));
      const long jours = 100 * (nombre(item, T::JoursMois, n) - nombre(item, T::JoursSamDim, n) -
                                nombre(item, T::JoursFeries, n)) -
                         nombre(item, T::JoursConges, n) - nombre(item, T::JoursMaladie, n) -
                         nombre(item, T::JoursAutres, n);
      solde += nombre(item, T::TempsEffectif, n) - nombre(item, T::HeuresParJour, n) * jours / 100 -
               nombre(item, T::Regularisation, n);
      EXPECT_EQ(nombre(item, T::Solde, n), solde);
    }
  }
}

TEST(Demo, JoursDuMois) {
  struct Cas {
    const char* periode;
    int total, samediDimanche, feries;
  };
  constexpr Cas LesCas[] = {
      {"202605", 31, 10, 4},  // 1 and 8 May, Ascension on the 14th, Whit Monday on the 25th
      {"202604", 30, 8, 1},   // Easter Monday on the 6th
      {"202802", 29, 8, 0},   // leap year
      {"202711", 30, 8, 2},   // 1 and 11 November, a Monday and a Thursday
      {"202508", 31, 10, 1},  // 15 August, a Friday
      {"202611", 30, 9, 1},   // 1 November is a Sunday, the 11th a Wednesday
  };
  for (const Cas& cas : LesCas) {
    const demo::JoursDuMois jours = demo::joursDuMois(cas.periode);
    EXPECT_EQ(jours.total, cas.total) << cas.periode;
    EXPECT_EQ(jours.samediDimanche, cas.samediDimanche) << cas.periode;
    EXPECT_EQ(jours.feries, cas.feries) << cas.periode;
  }
  // 31/10/2026 is day 21489: a month later November has 30 days; a month before, September too.
  EXPECT_EQ(demo::moisPlusTard(21489, 1), 21519);
  EXPECT_EQ(demo::moisPlusTard(21489, -1), 21458);
}

// Counts calls and checks the order of the keys; keeps nothing.
class Temoin : public data::Storage {
 public:
  bool Get(std::string_view, std::string_view, std::string&) override { return echec(); }
  bool Erase(std::string_view, std::string_view) override { return echec(); }
  void Scan(std::string_view, const data::KeyRange&, const Visiteur&) override { echec(); }
  std::vector<data::FichierCompte> Fichiers() override { return {}; }
  std::vector<data::AncienTexte> Historique(std::string_view, std::string_view) override {
    return {};
  }
  void EnUnBloc(const std::function<void()>&) override { echec(); }
  void Put(std::string_view fichier, std::string_view cle, std::string_view texte) override {
    data::VerifierEcriture(fichier, cle, texte);
    std::string& derniere = dernieres_[std::string(fichier)];
    if (fichier != "HISTORINDEM") {
      EXPECT_GT(cle, derniere) << fichier;
    }
    derniere = cle;
  }

 private:
  bool echec() {
    ADD_FAILURE() << "only Put is to be called";
    return false;
  }
  std::map<std::string, std::string> dernieres_;
};

TEST(Demo, EcritDansLOrdreEtParPutSeul) {
  Temoin temoin;
  std::vector<long> avances;
  long dernierTotal = 0;
  demo::genererDemo(temoin, {.aidants = 300}, [&](long faits, long total) {
    avances.push_back(faits);
    dernierTotal = total;
  });
  EXPECT_TRUE(std::is_sorted(avances.begin(), avances.end()));
  ASSERT_FALSE(avances.empty());
  EXPECT_EQ(avances.back(), dernierTotal);
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
