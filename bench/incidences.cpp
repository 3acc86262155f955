// What a clerk waits for when a contract is shortened and thousands of interventions with it: their
// report, its printing, and their deletion, each beside a tenth of it.

#include <benchmark/benchmark.h>

#include "bases.h"
#include "data/layouts/fichiers.h"
#include "data/layouts/voisins.h"
#include "data/texte.h"
#include "dialogs/imprimantes.h"
#include "rules/chevauchement.h"
#include "rules/planning.h"
#include "screen/headless/hote.h"

namespace {

constexpr const char* Aidant = "00001";
constexpr long DernierJour = 21500;
constexpr int Grand = 5'000;
constexpr int Petit = 500;

std::string cinq(long nombre) {
  return data::completeAGauche(std::to_string(nombre), 5, '0');
}

// That many interventions after the last day worked, each at another person's and with a day that
// deviates from it.
void planifier(data::Storage& stockage, int nombre) {
  data::CItem activite, intervention, exception, aide;
  activite.Set(data::Activites::Libelle, "Domicile");
  activite.Set(data::Activites::Genre, "P");
  stockage.Put(data::fichier::ACTIVITES, "001DOM", activite.Text());
  intervention.Set(data::TpsDetailsInterv::DateFin, "21900");
  intervention.Set(data::TpsDetailsInterv::HeureFin, "1000");
  aide.Set(data::CivilAide::Nom, "MARTIN");
  aide.Set(data::CivilAide::Prenom, "Rose");
  for (int i = 0; i < nombre; ++i) {
    const std::string cle = Aidant + cinq(i) + "21600" + "001DOM" + std::to_string(i % 7) + "0830";
    stockage.Put(data::fichier::CIVILAIDE, cinq(i), aide.Text());
    stockage.Put(data::fichier::TPSDETAILSINTERV, cle, intervention.Text());
    exception.Set(data::TpsExceptions::Intervention, cle);
    stockage.Put(data::fichier::TPSEXCEPTIONS,
                 Aidant + cinq(21600 + i / 10) + "0" + std::to_string(i % 10) + "00",
                 exception.Text());
  }
}

bench::Base& base(int nombre) {
  static bench::Base grande =
      bench::ouvrirBase("incidences", [](data::Storage& s) { planifier(s, Grand); });
  static bench::Base petite =
      bench::ouvrirBase("incidences-500", [](data::Storage& s) { planifier(s, Petit); });
  return nombre == Grand ? grande : petite;
}

rules::ContratPlanifie contrat() {
  rules::ContratPlanifie c;
  c.codeAidant = Aidant;
  c.convention = std::string("01");
  c.association = std::string("001");
  c.employeur = std::string("001001");
  c.debut = 20000;
  c.termine = true;
  c.dernierJour = DernierJour;
  c.prochainDebutApres = rules::SansFin;
  c.typeActivite = std::string("P");
  return c;
}

void rapporter(benchmark::State& state, int nombre) {
  data::Db& db = *base(nombre).db;
  const auto c = contrat();
  for (auto _ : state) {
    const auto incidences = rules::incidences(db, c);
    if (static_cast<int>(incidences.size()) != nombre) throw std::runtime_error("incidences");
    benchmark::DoNotOptimize(rules::rapportIncidences(db, c, incidences, ""));
  }
}

void imprimer(benchmark::State& state, int nombre) {
  data::Db& db = *base(nombre).db;
  const auto c = contrat();
  const std::string texte = rules::rapportIncidences(db, c, rules::incidences(db, c), "");
  for (auto _ : state) {
    screen::headless::Hote hote{21511};
    dialogs::imprimerTexte(hote.platform.imprimante, false, "Anomalies", dialogs::lignesDe(texte));
  }
}

// Each intervention with its exception is a durable block. The disk, which others use too, is not
// counted: what matters is that the work does not grow faster than their number.
void supprimer(benchmark::State& state, int nombre) {
  bench::Base& b = base(nombre);
  const auto c = contrat();
  for (auto _ : state) {
    state.PauseTiming();
    b.stockage->EnUnBloc([&] { planifier(*b.stockage, nombre); });
    const auto incidences = rules::incidences(*b.db, c);
    rules::MiseAJourPlanning maj(*b.db, c, 21900, "mesure");
    state.ResumeTiming();
    maj.Appliquer(incidences);
    state.PauseTiming();
    if (maj.Faites() != nombre || !rules::incidences(*b.db, c).empty()) {
      throw std::runtime_error("not all interventions were deleted");
    }
    b.stockage->EnUnBloc([&] { planifier(*b.stockage, nombre); });
    state.ResumeTiming();
  }
}

void rapporter5000(benchmark::State& state) {
  rapporter(state, Grand);
}
void rapporter500(benchmark::State& state) {
  rapporter(state, Petit);
}
void imprimer5000(benchmark::State& state) {
  imprimer(state, Grand);
}
void imprimer500(benchmark::State& state) {
  imprimer(state, Petit);
}
void supprimer5000(benchmark::State& state) {
  supprimer(state, Grand);
}
void supprimer500(benchmark::State& state) {
  supprimer(state, Petit);
}

BENCHMARK(rapporter5000)->Unit(benchmark::kMicrosecond);
BENCHMARK(rapporter500)->Unit(benchmark::kMicrosecond);
BENCHMARK(imprimer5000)->Unit(benchmark::kMicrosecond);
BENCHMARK(imprimer500)->Unit(benchmark::kMicrosecond);
BENCHMARK(supprimer5000)->Unit(benchmark::kMicrosecond)->Iterations(1);
BENCHMARK(supprimer500)->Unit(benchmark::kMicrosecond)->Iterations(1);

}  // namespace
