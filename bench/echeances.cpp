// What is due among 200,000 contracts, beside the raw reading of the same contracts by their keys.

#include <benchmark/benchmark.h>

#include <set>

#include "bases.h"
#include "data/layouts/contrat.h"
#include "rules/echeances.h"

namespace {

constexpr long Contrats = 200'000;

void echeances(benchmark::State& state) {
  bench::Base& base = bench::base(Contrats);
  std::size_t lignes = 0;
  for (auto _ : state) {
    lignes =
        rules::lireEcheances(*base.db, bench::poste().Aujourdhui(), rules::JoursEcheances).size();
  }
  state.counters["lignes"] = static_cast<double>(lignes);
}

void brutEcheances(benchmark::State& state) {
  bench::Base& base = bench::base(Contrats);
  std::set<std::string> cles;
  for (const auto& e :
       rules::lireEcheances(*base.db, bench::poste().Aujourdhui(), rules::JoursEcheances)) {
    cles.insert(e.contrat);
  }
  bench::Brut brut(base.chemin);
  for (auto _ : state) {
    for (const std::string& cle : cles) benchmark::DoNotOptimize(brut.lire("CONTRAT", cle));
  }
}

BENCHMARK(echeances)->Unit(benchmark::kMicrosecond);
BENCHMARK(brutEcheances)->Unit(benchmark::kMicrosecond);

}  // namespace
