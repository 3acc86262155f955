// What a clerk waits for when a contract meets the planning: a carer with 2,000 interventions in a
// file of 500,000, beside one raw reading of that carer's keys.

#include <benchmark/benchmark.h>

#include <filesystem>

#include "bases.h"
#include "data/layouts/fichiers.h"
#include "data/texte.h"
#include "rules/chevauchement.h"
#include "rules/planning.h"
#include "rules/traitements.h"

namespace {

constexpr int Aidants = 250;
constexpr int ParAidant = 2'000;
constexpr const char* Aidant = "00125";

std::string cinq(int nombre) {
  return data::completeAGauche(std::to_string(nombre), 5, '0');
}

void remplir(data::Storage& stockage) {
  data::CItem activite, parametres, calcul;
  activite.Set(1, "Domicile");
  activite.Set(12, "P");
  stockage.Put(data::fichier::ACTIVITES, "001DOM", activite.Text());
  parametres.Set(19, "1");
  stockage.Put(data::fichier::TPSPARAM, "1", parametres.Text());
  calcul.Set(1, "F");
  data::CItem intervention;
  intervention.Set(1, "21900");
  intervention.Set(2, "1000");
  for (int aidant = 0; aidant < Aidants; ++aidant) {
    for (int i = 0; i < ParAidant; ++i) {
      const std::string debut = std::to_string(20000 + i * 7 % 1500);
      stockage.Put(data::fichier::TPSDETAILSINTERV,
                   cinq(aidant) + cinq(i) + debut + "001DOM" + std::to_string(i % 7) + "0830",
                   intervention.Text());
    }
    for (const char* mois : {"202601", "202602", "202603"}) {
      stockage.Put(data::fichier::DETAILCALCUL, cinq(aidant) + "001" + mois, calcul.Text());
    }
  }
}

bench::Base& planning() {
  static bench::Base base = [] {
    bench::Base b;
    std::filesystem::create_directories(bench::dossier());
    b.chemin = bench::dossier() + "/planning.contrats";
    if (!std::filesystem::exists(b.chemin)) {
      const std::string enCours = b.chemin + ".encours";
      std::filesystem::remove(enCours);
      auto neuf = storage::SqliteStorage::Creer(enCours, bench::poste());
      neuf->EnUnBloc([&] { remplir(*neuf); });
      neuf.reset();
      std::filesystem::rename(enCours, b.chemin);
    }
    b.stockage = storage::SqliteStorage::Ouvrir(b.chemin, bench::poste());
    b.db = std::make_unique<data::Db>(b.stockage);
    return b;
  }();
  return base;
}

void coherencePlanning(benchmark::State& state) {
  bench::Base& base = planning();
  rules::ContratPlanifie contrat;
  contrat.codeAidant = Aidant;
  contrat.convention = std::string("01");
  contrat.association = std::string("001");
  contrat.debut = 20000;
  contrat.termine = true;
  contrat.dernierJour = 21900;
  contrat.prochainDebutApres = rules::SansFin;
  contrat.typeActivite = std::string("P");
  contrat.activitesOffertes =
      data::ListeCodes(std::vector<data::ListeCodes::Ligne>{{"001DOM", "Domicile", {"P"}}});
  contrat.activites = {"Domicile"};
  for (auto _ : state) {
    benchmark::DoNotOptimize(rules::Verif_CoherencePlanning(*base.db, contrat, true));
  }
}

void brutCoherencePlanning(benchmark::State& state) {
  bench::Brut brut(planning().chemin);
  for (auto _ : state) {
    benchmark::DoNotOptimize(brut.parcourir("TPSDETAILSINTERV", Aidant, "00126"));
  }
}

// A contract on which nothing was done: every file of its results is asked.
void gardesSuppression(benchmark::State& state) {
  bench::Base& base = planning();
  const rules::ContratTraite contrat{"00125002", "01", "001", "001", false, "P"};
  for (auto _ : state) {
    benchmark::DoNotOptimize(rules::Verif_SuppressionPossible(*base.db, contrat));
    benchmark::DoNotOptimize(rules::Verif_Opposition(*base.db, contrat));
  }
}

void brutGardesSuppression(benchmark::State& state) {
  bench::Brut brut(planning().chemin);
  for (auto _ : state) {
    for (const char* fichier : {"DETAILCALCUL", "DETAILPREST", "OPPOSITION"}) {
      benchmark::DoNotOptimize(brut.parcourir(fichier, "00125002", "00125003"));
    }
  }
}

BENCHMARK(coherencePlanning)->Unit(benchmark::kMicrosecond);
BENCHMARK(brutCoherencePlanning)->Unit(benchmark::kMicrosecond);
BENCHMARK(gardesSuppression)->Unit(benchmark::kMicrosecond);
BENCHMARK(brutGardesSuppression)->Unit(benchmark::kMicrosecond);

}  // namespace
