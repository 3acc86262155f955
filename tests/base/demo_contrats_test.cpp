// The contracts of the demonstration data: what the screens rely on, over every one of them.

#include <gmock/gmock.h>

#include <set>

#include "base/demo_base.h"
#include "data/jour.h"
#include "data/layouts/voisins.h"

namespace {

using namespace essai_demo;

TEST(Demo, NumerosEtCompteurs) {
  std::map<std::string, std::set<std::string>> numeros;
  std::set<std::string> enCours;
  for (const auto& [cle, contrat] : base()[data::fichier::CONTRAT]) {
    numeros[aidantDe(cle)].insert(cle.substr(5));
    if (!annule(contrat) && finDe(contrat) >= Aujourdhui) enCours.insert(aidantDe(cle));
  }
  int libres = 0;
  for (const auto& [code, aidant] : base()[data::fichier::CIVILAIDANT]) {
    SCOPED_TRACE("CIVILAIDANT " + code);
    std::set<std::string> tous = numeros[code];
    ASSERT_FALSE(tous.empty());
    EXPECT_EQ(aidant(data::CivilAidant::DernierNumero), *tous.rbegin());
    for (const std::string& libre : valeurs(aidant, data::CivilAidant::NumerosLibres)) {
      EXPECT_TRUE(tous.insert(libre).second) << libre << " is free and used";
      ++libres;
    }
    // From 001 to the highest, each is a record or given back.
    EXPECT_EQ(static_cast<int>(tous.size()), std::stoi(*tous.rbegin()));
    EXPECT_EQ(*tous.begin(), "001");
    if (!aidant(data::CivilAidant::DateFin).empty()) {
      EXPECT_FALSE(enCours.contains(code));
    }
  }
  EXPECT_GT(libres, 0);
}

TEST(Demo, LiensDeCongesReciproques) {
  int liens = 0;
  chaqueContrat([&](const std::string& cle, const CItem& contrat) {
    if (!contrat(C::CongesReportesSur).empty()) {
      const CItem& suite = base()[data::fichier::CONTRAT].at(contrat(C::CongesReportesSur));
      EXPECT_EQ(suite(C::CongesReprisDe), cle);
      EXPECT_EQ(contrat(C::Type) + suite(C::Type), "DI");
      EXPECT_EQ(suite(C::Employeur), contrat(C::Employeur));
      const long ecart = nombre(suite, C::DateDebut) - finDe(contrat);
      EXPECT_TRUE(ecart >= 1 && ecart <= 3) << ecart;
      EXPECT_NE(contrat(C::PrimePrecarite), "1");
      ++liens;
    }
    if (!contrat(C::CongesReprisDe).empty()) {
      const CItem& avant = base()[data::fichier::CONTRAT].at(contrat(C::CongesReprisDe));
      EXPECT_EQ(avant(C::CongesReportesSur), cle);
    }
  });
  EXPECT_GT(liens, 3);
}

TEST(Demo, AucunChevauchementDansUnePortee) {
  // Carer, entity and, for private employers, the employer: the days that contracts share.
  std::map<std::string, std::vector<std::pair<long, long>>> portees;
  std::set<std::string> genres;
  chaqueContrat([&](const std::string& cle, const CItem& contrat) {
    const std::string portee = aidantDe(cle) + contrat(C::Association) +
                               (particulier(contrat) ? "02" + contrat(C::Employeur) : "");
    portees[portee].emplace_back(nombre(contrat, C::DateDebut), finDe(contrat));
    genres.insert(contrat(C::Type) + contrat(C::Salaire) + contrat(C::Statut) +
                  (particulier(contrat) ? "02" : "") + (finDe(contrat) == SansFin ? "" : " fini"));
  });
  for (auto& [portee, jours] : portees) {
    std::sort(jours.begin(), jours.end());
    for (std::size_t i = 0; i < jours.size(); ++i) {
      EXPECT_LE(jours[i].first, jours[i].second) << portee;
      if (i > 0) {
        EXPECT_GT(jours[i].first, jours[i - 1].second) << portee;
      }
    }
  }
  EXPECT_THAT(genres, testing::IsSupersetOf({"IHP", "IMP", "IMA", "DHP fini", "DMP fini", "IHP02",
                                             "IHP02 fini", "DHP02 fini"}));
  const Fichier& contrats = base()[data::fichier::CONTRAT];
  EXPECT_TRUE(std::any_of(contrats.begin(), contrats.end(),
                          [](const auto& article) { return annule(article.second); }));
}

// An attribute of a contract, all values, and the file whose keys it holds.
struct Reference {
  int attribut;
  std::string_view fichier;
};
constexpr Reference References[] = {
    {C::Convention, data::fichier::CONVENTIONCOL},
    {C::Association, data::fichier::ASSOCIATION},
    {C::CodePCS, data::fichier::PCS},
    {C::Grille, data::fichier::GRILLESCC},
    {C::Profil, data::fichier::PROFIL},
    {C::Profil2, data::fichier::PROFIL},
    {C::ContratPrevoyance, data::fichier::CONTRATSPREV},
    {C::Activites, data::fichier::ACTIVITES},
    {C::ActivitesAnterieures, data::fichier::ACTIVITES},
    {C::ChargeMutuelle, data::fichier::RUBCHARGE},
    {C::RubriqueCode, data::fichier::RUBSAISIE},
    {C::AidantsRemplaces, data::fichier::CIVILAIDANT},
    {C::AbsencesRemplacees, data::fichier::ABSENCESAIDANT},
};
// Likewise, codes or labels of an item of TABLES.
struct CodeDeTable {
  int attribut;
  const char* table;
  int place;
};
constexpr CodeDeTable CodesDeTable[] = {
    {C::Nature, data::Tables::NatureContrat, data::Tables::Codes},
    {C::MotifFin, data::Tables::FinContrat, data::Tables::Codes},
    {C::ZoneTransport, data::Tables::CarteOrange, data::Tables::Codes},
    {C::MotifEmbauche, data::Tables::MotifEmbauche, data::Tables::MotifCodes},
    {C::Qualification, data::Tables::Qualif, data::Tables::QualifLibelles},
};

TEST(Demo, CodesDesContratsExistent) {
  std::map<int, int> trouves;
  chaqueContrat(
      [&](const std::string&, const CItem& contrat) {
        for (const Reference& reference : References) {
          for (const std::string& code : valeurs(contrat, reference.attribut)) {
            if (code.empty()) continue;
            EXPECT_TRUE(base().contient(reference.fichier, code))
                << reference.attribut << ": " << code;
            ++trouves[reference.attribut];
          }
        }
        for (const CodeDeTable& code : CodesDeTable) {
          const CItem& table = base()[data::fichier::TABLES].at(code.table);
          for (const std::string& valeur : valeurs(contrat, code.attribut)) {
            EXPECT_TRUE(contient(valeurs(table, code.place), valeur))
                << code.attribut << ": " << valeur;
            ++trouves[code.attribut];
          }
        }
      },
      true);
  for (const Reference& reference : References) {
    EXPECT_GT(trouves[reference.attribut], 0) << reference.attribut;
  }
  for (const CodeDeTable& code : CodesDeTable) EXPECT_GT(trouves[code.attribut], 0) << code.table;
}

TEST(Demo, EmployeurProfilEtActivitesSuiventLaConvention) {
  chaqueContrat([&](const std::string& cle, const CItem& contrat) {
    const std::string employeur = contrat(C::Employeur);
    const bool mandat = particulier(contrat);
    if (mandat) {
      EXPECT_TRUE(base().contient(data::fichier::CIVILAIDE, employeur)) << employeur;
      EXPECT_TRUE(base().contient(data::fichier::ELTSPARTEMP, employeur)) << employeur;
      const CItem& inverse = base()[data::fichier::CONTRATINV].at(aidantDe(cle) + employeur);
      EXPECT_TRUE(contient(valeurs(inverse, data::ContratInv::Numeros), cle.substr(5)));
      const CItem& aidant = base()[data::fichier::CIVILAIDANT].at(aidantDe(cle));
      EXPECT_LE(nombre(aidant, data::CivilAidant::PremiereEmbauche02),
                nombre(contrat, C::DateDebut));
    } else {
      EXPECT_TRUE(base().contient(data::fichier::ETABLISSEMENT, employeur)) << employeur;
      EXPECT_TRUE(employeur.starts_with(contrat(C::Association))) << employeur;
      EXPECT_EQ(contrat(C::PaiementParEntite), "1");
    }
    const CItem& profil = base()[data::fichier::PROFIL].at(contrat(C::Profil));
    EXPECT_EQ(profil(data::Profil::Mandataire), mandat ? "1" : "0");
    for (const std::string& code : valeurs(contrat, C::Activites)) {
      EXPECT_TRUE(code.starts_with(contrat(C::Association))) << code;
      EXPECT_EQ(base()[data::fichier::ACTIVITES].at(code)(data::Activites::Genre) == "M", mandat);
    }
    EXPECT_GT(contrat.DCount(C::Activites), 0);
    for (const std::string& grille : valeurs(contrat, C::Grille)) {
      if (!grille.empty()) {
        EXPECT_TRUE(grille.starts_with(contrat(C::Convention))) << grille;
      }
    }
    const std::string portee = contrat(C::Association) + contrat(C::Convention);
    EXPECT_TRUE(base().contient("CONTRAT" + portee, cle));
    EXPECT_TRUE(base().contient(data::fichier::LIENCONTRAT, "CONTRAT" + portee));
    if (contrat(C::ModePaiement) == "1") {
      EXPECT_FALSE(base()[data::fichier::RIBAIDANT].at(aidantDe(cle))(3).empty());
    }
    const CItem& convention = base()[data::fichier::CONVENTIONCOL].at(contrat(C::Convention));
    if (convention(data::ConventionCol::PrevoyanceObligatoire) == "1") {
      EXPECT_FALSE(contrat(C::ContratPrevoyance).empty());
    }
  });
}

TEST(Demo, GroupesParalleles) {
  // In each of these groups a line has all its values.
  const auto memeNombre = [](const CItem& contrat, std::initializer_list<int> groupe) {
    for (const int attribut : groupe) {
      EXPECT_EQ(contrat.DCount(attribut), contrat.DCount(*groupe.begin())) << attribut;
    }
  };
  int modules = 0, avenants = 0, partages = 0;
  chaqueContrat([&](const std::string& cle, const CItem& contrat) {
    memeNombre(contrat, {14, 15, 16, 17, 18, 19, 22, 23, 24, 25, 68, 120});
    memeNombre(contrat, {76, 77, 78, 79, 80, 100});
    memeNombre(contrat, {71, 72, 73, 74, 75, 99});
    memeNombre(contrat, {89, 90, 91, 92});
    memeNombre(contrat, {87, 88});
    memeNombre(contrat, {105, 106, 107});
    const int etats = contrat.DCount(C::Avenant);
    for (const int attribut : C::GroupeAvenant) EXPECT_LE(contrat.DCount(attribut), etats);
    EXPECT_EQ(contrat(C::Avenant, 1) + " " + contrat(C::DateEffet, 1),
              "0 " + contrat(C::DateDebut));
    for (int n = 2; n <= etats; ++n) {
      EXPECT_EQ(contrat(C::Avenant, n), "0" + std::to_string(n - 1));
      EXPECT_GT(nombre(contrat, C::DateEffet, n), nombre(contrat, C::DateEffet, n - 1));
      EXPECT_LE(nombre(contrat, C::DateEffet, n), finDe(contrat));
      EXPECT_TRUE(base().contient("AVENANT" + contrat(C::Association) + contrat(C::Convention),
                                  cle + contrat(C::Avenant, n)));
      ++avenants;
    }
    if (contrat(C::Statut) == "A") {
      long total = 0;
      for (int n = 1; n <= contrat.DCount(C::Activites); ++n) {
        total += nombre(contrat, C::PartsActivites, n);
      }
      EXPECT_EQ(total, 10000);
      EXPECT_LT(contrat(C::PeriodesEffetAnterieures), contrat(C::PeriodeEffet));
      ++partages;
    }
    EXPECT_EQ(contrat(C::Lissage, 1) == "1",
              contrat(C::Salaire) == "M" && contrat(C::Statut) == "P");
    for (int n = 1; n <= contrat.DCount(C::SuiviPeriode); ++n, ++modules) {
      EXPECT_EQ(nombre(contrat, C::SuiviDifference, n),
                nombre(contrat, C::SuiviReel, n) -
                    (nombre(contrat, C::SuiviHeures, n) - nombre(contrat, C::SuiviAbsences, n)));
      EXPECT_LE(contrat(C::SuiviPeriode, n), contrat(C::PeriodeTraitee));
    }
  });
  EXPECT_GT(std::min({modules, avenants, partages}), 5);
}

TEST(Demo, FinsDeContrat) {
  constexpr std::string_view Indemnite = "11 12 14 15 20 25 26 33 38 65 91 92 93";
  chaqueContrat([&](const std::string& cle, const CItem& contrat) {
    const long debut = nombre(contrat, C::DateDebut);
    if (contrat(C::Type) == "D") {
      EXPECT_GE(nombre(contrat, C::DateFinPresumee), debut);
      EXPECT_FALSE(contrat(C::MotifEmbaucheTexte).empty() && contrat(C::MotifEmbauche).empty() &&
                   contrat(C::PersonnesRemplacees).empty());
      EXPECT_THAT(contrat(C::MotifRecours), testing::AnyOf("01", "02", "03"));
    } else {
      EXPECT_EQ(contrat(C::DateFinPresumee) + contrat(C::MotifRecours), "");
    }
    for (int n = 1; n <= contrat.DCount(C::AidantsRemplaces); ++n) {
      // The colleague is in service at the start, and the absence is not over.
      const std::string remplace = contrat(C::AidantsRemplaces, n);
      EXPECT_NE(remplace, aidantDe(cle));
      const Fichier& contrats = base()[data::fichier::CONTRAT];
      EXPECT_TRUE(std::any_of(contrats.begin(), contrats.end(), [&](const auto& article) {
        const CItem& autre = article.second;
        return article.first.starts_with(remplace) && !annule(autre) &&
               autre(C::Association) == contrat(C::Association) &&
               nombre(autre, C::DateDebut) <= debut && finDe(autre) >= debut;
      })) << remplace;
      const CItem& absence =
          base()[data::fichier::ABSENCESAIDANT].at(contrat(C::AbsencesRemplacees, n));
      EXPECT_GE(nombre(absence, data::AbsencesAidant::DateFin), debut);
    }
    if (finDe(contrat) == SansFin) {
      EXPECT_EQ(contrat(C::MotifFin) + contrat(C::DernierBulletin), "");
      return;
    }
    const long fin = finDe(contrat);
    EXPECT_TRUE(debut <= nombre(contrat, C::DateNotification) &&
                nombre(contrat, C::DateNotification) <= fin);
    EXPECT_TRUE(debut <= nombre(contrat, C::DernierJourTravaille) &&
                nombre(contrat, C::DernierJourTravaille) <= fin);
    EXPECT_EQ(contrat(C::DernierBulletin).size(), 6U);
    EXPECT_LE(contrat(C::DernierBulletin), data::periodeDe(fin));
    EXPECT_GE(contrat(C::DernierBulletin), data::periodeDe(debut));
    EXPECT_EQ(!contrat(C::CalculLicenciement).empty(),
              Indemnite.find(contrat(C::MotifFin)) != std::string_view::npos);
    EXPECT_EQ(!contrat(C::DateSignatureRupture).empty(), contrat(C::MotifFin) == "43");
  });
}

}  // namespace
