// The contracts of the demonstration data: what the screens rely on, over every one of them.

#include <tuple>

#include "base/demo_base.h"
#include "data/jour.h"
#include "data/layouts/voisins.h"

namespace {

using namespace essai_demo;
namespace T = data::Tables;

TEST(Demo, AucunChevauchement) {
  // Contracts by carer, entity and private employer; absences by carer. Nothing shares a day.
  std::map<std::string, std::vector<std::pair<long, long>>> portees;
  chaqueContrat([&](const std::string& cle, const Item& contrat) {
    const std::string employeur = contrat.particulier() ? "02" + contrat(C::Employeur) : "";
    const std::string portee = aidantDe(cle) + contrat(C::Association) + employeur;
    portees[portee].emplace_back(contrat.debut(), contrat.fin());
  });
  for (const auto& [cle, absence] : base()[fichier::ABSENCESAIDANT]) {
    const long fin = absence.nombre(data::AbsencesAidant::DateFin);
    portees[aidantDe(cle)].emplace_back(std::stol(cle.substr(7)), fin);
  }
  for (auto& [portee, jours] : portees) {
    std::sort(jours.begin(), jours.end());
    long libre = 0;
    for (const auto& [debut, fin] : jours) {
      EXPECT_TRUE(libre <= debut && debut <= fin) << portee << " " << debut;
      libre = fin + 1;
    }
  }
}

// An attribute of a contract that is read nowhere below, all values, and the file whose keys it
// holds; or the item of TABLES and the place of its codes or labels there.
using Reference = std::tuple<int, std::string_view, const char*, int>;
constexpr Reference References[] = {
    {C::Association, fichier::ASSOCIATION, nullptr, 0},
    {C::CodePCS, fichier::PCS, nullptr, 0},
    {C::Grille, fichier::GRILLESCC, nullptr, 0},
    {C::Profil2, fichier::PROFIL, nullptr, 0},
    {C::ContratPrevoyance, fichier::CONTRATSPREV, nullptr, 0},
    {C::ActivitesAnterieures, fichier::ACTIVITES, nullptr, 0},
    {C::ChargeMutuelle, fichier::RUBCHARGE, nullptr, 0},
    {C::RubriqueCode, fichier::RUBSAISIE, nullptr, 0},
    {C::Nature, fichier::TABLES, T::NatureContrat, T::Codes},
    {C::MotifFin, fichier::TABLES, T::FinContrat, T::Codes},
    {C::ZoneTransport, fichier::TABLES, T::CarteOrange, T::Codes},
    {C::MotifEmbauche, fichier::TABLES, T::MotifEmbauche, T::MotifCodes},
    {C::Qualification, fichier::TABLES, T::Qualif, T::QualifLibelles}};

TEST(Demo, CodesDesContratsExistent) {
  for (const auto& [attribut, nom, table, place] : References) {
    SCOPED_TRACE(attribut);
    int trouves = 0;
    for (const auto& [cle, contrat] : base()[fichier::CONTRAT]) {
      for (const std::string& code : contrat.valeurs(attribut)) {
        if (code.empty()) continue;
        if (table == nullptr) {
          EXPECT_TRUE(base().contient(nom, code)) << cle << " " << code;
        } else {
          EXPECT_THAT(base().lire(nom, table).valeurs(place), testing::Contains(code)) << cle;
        }
        ++trouves;
      }
    }
    EXPECT_GT(trouves, 0);
  }
}

TEST(Demo, EmployeurProfilEtActivitesSuiventLaConvention) {
  chaqueContrat([&](const std::string& cle, const Item& contrat) {
    const std::string employeur = contrat(C::Employeur), entite = contrat(C::Association);
    const bool mandat = contrat.particulier();
    if (mandat) {
      EXPECT_TRUE(base().contient(fichier::ELTSPARTEMP, employeur)) << employeur;
      const Item& inverse = base().lire(fichier::CONTRATINV, aidantDe(cle) + employeur);
      EXPECT_THAT(inverse.valeurs(data::ContratInv::Numeros), testing::Contains(cle.substr(5)));
      const Item& aidant = base().lire(fichier::CIVILAIDANT, aidantDe(cle));
      EXPECT_LE(aidant.nombre(data::CivilAidant::PremiereEmbauche02), contrat.debut());
    } else {
      EXPECT_TRUE(base().contient(fichier::ETABLISSEMENT, employeur)) << employeur;
      EXPECT_EQ(employeur.substr(0, 3) + contrat(C::PaiementParEntite), entite + "1");
    }
    EXPECT_EQ(base().lire(fichier::PROFIL, contrat(C::Profil))(data::Profil::Mandataire),
              mandat ? "1" : "0");
    EXPECT_GT(contrat.DCount(C::Activites), 0);
    for (const std::string& code : contrat.valeurs(C::Activites)) {
      EXPECT_TRUE(code.starts_with(entite)) << code;
      EXPECT_EQ(base().lire(fichier::ACTIVITES, code)(data::Activites::Genre) == "M", mandat);
    }
    const std::string index = "CONTRAT" + entite + contrat(C::Convention);
    EXPECT_TRUE(base().contient(index, cle) && base().contient(fichier::LIENCONTRAT, index));
  });
}

TEST(Demo, GroupesParalleles) {
  // In each of these groups a line has all its values.
  const std::vector<int> Groupes[] = {{14, 15, 16, 17, 18, 19, 22, 23, 24, 25, 68, 120},
                                      {76, 77, 78, 79, 80, 100},
                                      {71, 72, 73, 74, 75, 99},
                                      {89, 90, 91, 92},
                                      {87, 88},
                                      {105, 106, 107}};
  int avenants = 0, partages = 0;
  chaqueContrat([&](const std::string& cle, const Item& contrat) {
    for (const std::vector<int>& groupe : Groupes) {
      for (const int a : groupe) EXPECT_EQ(contrat.DCount(a), contrat.DCount(groupe[0])) << a;
    }
    const int etats = contrat.DCount(C::Avenant);
    for (const int attribut : C::GroupeAvenant) EXPECT_LE(contrat.DCount(attribut), etats);
    EXPECT_EQ(contrat(C::Avenant, 1) + contrat(C::DateEffet, 1), "0" + contrat(C::DateDebut));
    for (int n = 2; n <= etats; ++n, ++avenants) {
      EXPECT_EQ(contrat(C::Avenant, n), "0" + std::to_string(n - 1));
      EXPECT_GT(contrat.nombre(C::DateEffet, n), contrat.nombre(C::DateEffet, n - 1));
      EXPECT_LE(contrat.nombre(C::DateEffet, n), contrat.fin());
      const std::string index = "AVENANT" + contrat(C::Association) + contrat(C::Convention);
      EXPECT_TRUE(base().contient(index, cle + contrat(C::Avenant, n)));
    }
    if (contrat(C::Statut) == "A") {
      long total = 0;
      for (const std::string& part : contrat.valeurs(C::PartsActivites)) total += std::stol(part);
      EXPECT_EQ(total, 10000);
      EXPECT_EQ(contrat.DCount(C::PartsActivites), contrat.DCount(C::Activites));
      EXPECT_LT(contrat(C::PeriodesEffetAnterieures), contrat(C::PeriodeEffet));
      ++partages;
    }
    EXPECT_EQ(contrat(C::Lissage, 1) == "1", contrat(C::Salaire) + contrat(C::Statut) == "MP");
  });
  EXPECT_GT(std::min(avenants, partages), 5);
}

TEST(Demo, DatesLiensEtRemplacements) {
  int liens = 0, remplaces = 0;
  chaqueContrat([&](const std::string& cle, const Item& contrat) {
    const long debut = contrat.debut(), fin = contrat.fin();
    const bool cdd = contrat(C::Type) == "D";
    EXPECT_TRUE(cdd ? debut <= contrat.nombre(C::DateFinPresumee)
                    : contrat(C::DateFinPresumee).empty());
    EXPECT_THAT(contrat(C::MotifRecours), testing::MatchesRegex(cdd ? "0[123]" : ""));
    EXPECT_NE(contrat(C::MotifEmbaucheTexte) + contrat(C::MotifEmbauche) +
                  contrat(C::PersonnesRemplacees) + (cdd ? "" : "CDI"),
              "");
    if (const std::string remplace = contrat(C::AidantsRemplaces); !remplace.empty()) {
      EXPECT_NE(remplace, aidantDe(cle));
      EXPECT_TRUE(unContrat(remplace, [&](const Item& sien) {
        return sien(C::Association) == contrat(C::Association) && sien.debut() <= debut &&
               sien.fin() >= debut;
      })) << remplace;
      const Item& absence = base().lire(fichier::ABSENCESAIDANT, contrat(C::AbsencesRemplacees));
      EXPECT_GE(absence.nombre(data::AbsencesAidant::DateFin), debut);
      ++remplaces;
    }
    if (const std::string apres = contrat(C::CongesReportesSur); !apres.empty()) {
      const Item& suite = base().lire(fichier::CONTRAT, apres);
      EXPECT_EQ(contrat(C::Type) + suite(C::Type) + suite(C::Employeur),
                "DI" + contrat(C::Employeur));
      EXPECT_TRUE(suite.debut() > fin && suite.debut() <= fin + 3) << suite.debut();
      EXPECT_NE(contrat(C::PrimePrecarite), "1");
      ++liens;
    }
    EXPECT_EQ(contrat(C::MotifFin) == "", fin == SansFin);
    EXPECT_EQ(contrat(C::DernierBulletin) == "", fin == SansFin);
  });
  EXPECT_GT(std::min(liens, remplaces), 3);
}

}  // namespace
