// What a clerk waits for in the data floor and in the contract list, beside the raw work that it
// rests on. `bench_contrats --dossier=DIR` keeps its data files in DIR (build/bench by default).

#include <benchmark/benchmark.h>

#include <cstring>

#include "bases.h"
#include "control/ctr_contrat.h"
#include "data/cles.h"
#include "data/layouts/contrat.h"
#include "data/layouts/fichiers.h"
#include "rapports.h"
#include "screen/headless/hote.h"

namespace {

using bench::Base, bench::Brut;

constexpr long Petite = 10'000;
constexpr long Moyenne = 200'000;
constexpr long Grande = 1'000'000;

std::string premierContrat(const Base& b) {
  return b.aidant + "001";
}
// Past every key that begins with the carer's code.
std::string finAidant(const std::string& aidant) {
  return aidant + '\x7f';
}

void lireUnContrat(benchmark::State& state) {
  const Base& b = bench::base(Petite);
  const data::DbFile contrats = b.db->OpenFile("CONTRAT");
  const std::string cle = premierContrat(b);
  for (auto _ : state) {
    const data::CItem item = contrats.Read(cle);
    benchmark::DoNotOptimize(item.Vue(data::Contrat::DateFin));
  }
}

void brutLireUnContrat(benchmark::State& state) {
  const Base& b = bench::base(Petite);
  Brut brut(b.chemin);
  const std::string cle = premierContrat(b);
  for (auto _ : state) benchmark::DoNotOptimize(brut.lire("CONTRAT", cle));
}

void selectAidant(benchmark::State& state, const Base& b) {
  const std::string question = "SSELECT CONTRAT AVEC 0 = \"" + b.aidant + "]\"";
  for (auto _ : state) {
    benchmark::DoNotOptimize(b.db->Selectionner(question, "CONTRAT", "0").DCount());
  }
}

void brutAidant(benchmark::State& state, const Base& b) {
  Brut brut(b.chemin);
  for (auto _ : state) {
    benchmark::DoNotOptimize(brut.parcourir("CONTRAT", b.aidant, finAidant(b.aidant)));
  }
}

void selectAidantGrande(benchmark::State& state) {
  selectAidant(state, bench::base(Grande));
}
void selectAidantPetite(benchmark::State& state) {
  selectAidant(state, bench::base(Petite));
}
void brutAidantGrande(benchmark::State& state) {
  brutAidant(state, bench::base(Grande));
}

// A question that no index answers.
void selectParcours(benchmark::State& state) {
  const Base& b = bench::base(Moyenne);
  const std::string question =
      "SELECT CONTRAT AVEC 118 = \"20000\" OR AVEC 119 = \"" + premierContrat(b) + "\"";
  for (auto _ : state) {
    benchmark::DoNotOptimize(b.db->Selectionner(question, "CONTRAT", "0").DCount());
  }
}

void brutTout(benchmark::State& state) {
  Brut brut(bench::base(Moyenne).chemin);
  for (auto _ : state) benchmark::DoNotOptimize(brut.parcourir("CONTRAT", "", "\x7f"));
}

struct Liste {
  screen::headless::Hote hote{21511};
  session::DroitsUniformes droits{session::Droit::Plein};
  control::Ctr_Contrat controle{hote.platform};

  Liste() {
    controle.TheDatabase(*bench::baseAidantCharge().db);
    controle.W_Code = bench::AidantCharge;
    controle.DroitsUtilisateur(droits);
    controle.init();
    controle.Opt_TousValid.SetValue(true);
  }
};

void rechercheContrat(benchmark::State& state) {
  Liste liste;
  for (auto _ : state) liste.controle.Recherche_Contrat();
}

// The reads that the search makes: the carer, each number, its employer and its agreement.
void brutRecherche(benchmark::State& state) {
  const Base& b = bench::baseAidantCharge();
  Brut brut(b.chemin);
  data::CItem contrat;
  const data::DbFile contrats = b.db->OpenFile("CONTRAT");
  std::vector<std::pair<std::string, std::string>> lectures{{"CIVILAIDANT", bench::AidantCharge}};
  for (int numero = 1; numero <= 999; ++numero) {
    const std::string cle = data::cleContrat(bench::AidantCharge, numero);
    if (!contrats.Lire(cle, contrat)) continue;
    lectures.emplace_back("CONTRAT", cle);
    if (data::estParticulierEmployeur(contrat)) {
      lectures.emplace_back("CIVILAIDE", contrat(data::Contrat::Employeur));
    } else {
      lectures.emplace_back("ASSOCIATION", contrat(data::Contrat::Association));
    }
    lectures.emplace_back("CONVENTIONCOL", contrat(data::Contrat::Convention));
  }
  for (auto _ : state) {
    for (const auto& [fichier, cle] : lectures) benchmark::DoNotOptimize(brut.lire(fichier, cle));
  }
}

// A result of `lignes` rows walked, half of it deleted from its end, the rest put back row by row.
void parcourirResultat(benchmark::State& state) {
  const int lignes = static_cast<int>(state.range(0));
  data::CItem modele;
  for (int i = 1; i <= lignes; ++i) modele.Set(i, 1, data::numeroContrat(i));
  for (auto _ : state) {
    data::CItem r = modele;
    long longueur = 0;
    for (int i = 1; i <= r.DCount(); ++i) longueur += static_cast<long>(r.Vue(i, 1).size());
    for (int i = r.DCount(); i >= 1; --i) {
      if (i % 2 == 0) r.Delete(i);
    }
    benchmark::DoNotOptimize(longueur + r.DCount());
  }
}

void resultat50000(benchmark::State& state) {
  parcourirResultat(state);
}
void resultat5000(benchmark::State& state) {
  parcourirResultat(state);
}

// All contracts by start date, newest first, then by employer.
void trier(benchmark::State& state, Base& b) {
  for (auto _ : state) {
    benchmark::DoNotOptimize(
        b.db->Selectionner("SELECT CONTRAT PAR-DECR 7 PAR 3", "CONTRAT", "0 7").DCount());
  }
}

void trierMoyenne(benchmark::State& state) {
  trier(state, bench::base(Moyenne));
}

void trierPetite(benchmark::State& state) {
  trier(state, bench::base(Petite));
}

BENCHMARK(lireUnContrat);
BENCHMARK(brutLireUnContrat);
BENCHMARK(selectAidantGrande);
BENCHMARK(brutAidantGrande);
BENCHMARK(selectAidantPetite);
BENCHMARK(selectParcours)->Unit(benchmark::kMillisecond);
BENCHMARK(brutTout)->Unit(benchmark::kMillisecond);
BENCHMARK(rechercheContrat)->Unit(benchmark::kMillisecond);
BENCHMARK(brutRecherche)->Unit(benchmark::kMillisecond);
BENCHMARK(resultat50000)->Arg(50'000)->Unit(benchmark::kMillisecond);
BENCHMARK(resultat5000)->Arg(5'000)->Unit(benchmark::kMillisecond);
BENCHMARK(trierMoyenne)->Unit(benchmark::kMillisecond);
BENCHMARK(trierPetite)->Unit(benchmark::kMillisecond);

const std::vector<bench::Rapport> Rapports{
    {"open one contract / raw SELECT", "lireUnContrat", "brutLireUnContrat", 1.5},
    {"a carer's contracts in 1,000,000 / raw key range", "selectAidantGrande", "brutAidantGrande",
     2},
    {"the same / in 10,000", "selectAidantGrande", "selectAidantPetite", 1.15},
    {"200,000 contracts without an index / raw scan", "selectParcours", "brutTout", 2},
    {"links to a contract in 200,000 / indexed columns", "liensMoyenne", "colonnesLiensMoyenne", 5},
    {"the same / JSON columns", "liensMoyenne", "jsonLiens", 0},
    {"what is due among 200,000 / its contracts read", "echeances", "brutEcheances", 0, 50'000},
    {"links to a contract in 1,000,000 / indexed columns", "liensGrande", "colonnesLiensGrande", 5},
    {"the same / in 200,000", "liensGrande", "liensMoyenne", 1.25},
    {"a name's beginning in 20,000 carers / indexed columns", "nom", "colonnesNom", 5},
    {"the same / JSON columns", "nom", "jsonNom", 0},
    {"exceptions of one in 500,000 / indexed columns", "exceptions", "colonnesExceptions", 5},
    {"the same / JSON columns", "exceptions", "jsonExceptions", 0},
    {"list of 999 contracts / its raw reads", "rechercheContrat", "brutRecherche", 2},
    {"open a contract to its first tab / reads and selects", "ouvrirContrat", "brutOuvrirContrat",
     2},
    {"first visit to the pay tab / reads and selects", "visiterPaie", "brutVisiterPaie", 2},
    {"first visit to the leave tab / reads and selects", "visiterConges", "brutVisiterConges", 2},
    {"first visit to the last tab / reads and selects", "visiterFin", "brutVisiterFin", 2},
    {"an activity chosen among 2,000, 4 ms", "choisirActivite", "choisirActivite", 0, 4000},
    {"a profile typed among 500, 4 ms", "taperProfil", "taperProfil", 0, 4000},
    {"splits of 60 periods of 20 activities / of 6", "repartir60", "repartir6", 15},
    {"first visit of the second tab / reads and selects", "visiterCaracteristiques",
     "brutVisiterCaracteristiques", 2},
    {"walk one amendment, 1 ms", "parcourirAvenant", "brutVisiterCaracteristiques", 0, 1000},
    {"weigh the hours of 50 contracts / its raw reads", "peserHeures", "brutPeserHeures", 2},
    {"open the annual follow-up / its reads", "ouvrirSuivi", "brutOuvrirSuivi", 2},
    {"save a new contract / durable writes", "enregistrerContrat", "brutEnregistrerContrat", 1.3},
    {"2,000 interventions in 500,000 held against a contract / raw key range", "coherencePlanning",
     "brutCoherencePlanning", 2},
    {"deletion guards / raw key ranges", "gardesSuppression", "brutGardesSuppression", 2},
    {"5,000 interventions reported, 100 ms", "rapporter5000", "rapporter500", 20, 100'000},
    {"5,000 interventions printed / 500", "imprimer5000", "imprimer500", 20},
    {"5,000 interventions deleted / 500", "supprimer5000", "supprimer500", 20},
    {"200,000 contracts sorted / 10,000", "trierMoyenne", "trierPetite", 60},
    {"50,000 rows walked and filtered / ten times 5,000", "resultat50000", "resultat5000", 15},
};

}  // namespace

int main(int argc, char** argv) {
  std::vector<char*> arguments(argv, argv + argc);
  std::erase_if(arguments, [](const char* argument) {
    if (std::strncmp(argument, "--dossier=", 10) != 0) return false;
    bench::dossier() = argument + 10;
    return true;
  });
  std::string repetitions = "--benchmark_repetitions=5";
  arguments.push_back(repetitions.data());
  int nombre = static_cast<int>(arguments.size());
  benchmark::Initialize(&nombre, arguments.data());
  bench::Rapporteur rapporteur(Rapports);
  benchmark::RunSpecifiedBenchmarks(&rapporteur);
  return rapporteur.Tenus() ? 0 : 1;
}
