// The annual follow-up as it is opened from the editor, beside the reads that it makes.

#include <benchmark/benchmark.h>

#include "bases.h"
#include "data/layouts/contrat.h"
#include "dialogs/frm_contrat_annuel.h"
#include "journal.h"
#include "screen/headless/hote.h"

namespace {

using bench::Base, bench::Journal;
namespace C = data::Contrat;

constexpr long Contrats = 100'000;

// A contract with both follow-ups, from the middle of the file on, held by its dossier.
struct Poste {
  explicit Poste(Base& base) : journal(*base.stockage) {
    session.Db = &db;
    session.OuvrirFichiers();
    session.W_Droits = &droits;
    const data::CItem tte =
        db.Selectionner("SSELECT AIDANTTTE AVEC 0 >= \"" + base.aidant + "\"", "AIDANTTTE", "0");
    // The first whose year in hand is that of its record.
    for (int i = 1; i <= tte.DCount(); ++i) {
      Prendre(tte(i, 1).substr(0, data::LongueurCodeAidant + data::LongueurNumero));
      if (Ouvrir() > 0) return;
    }
    throw std::runtime_error("no follow-up holds a month");
  }
  Poste(const Poste&) = delete;
  Poste& operator=(const Poste&) = delete;

  void Prendre(const std::string& cle) {
    dossier.CleContratCourant = cle;
    dossier.ItemContrat = session.F_CONTRAT.Read(cle);
    session.CodeAidant = cle.substr(0, data::LongueurCodeAidant);
  }
  int Ouvrir() {
    dialogs::Frm_ContratAnnuel forme(
        hote.platform, dossier,
        {dossier.ItemContrat(C::Convention), dossier.ItemContrat(C::Association),
         dossier.ItemContrat(C::Employeur)});
    return forme.tempsEffectif.Nombre();
  }

  screen::headless::Hote hote{21511};
  Journal journal;
  data::Db db{std::shared_ptr<data::Storage>(&journal, [](auto*) {})};
  session::DroitsUniformes droits{session::Droit::Plein};
  session::Session session{hote.poste};
  session::Dossier dossier{session};
};

void ouvrirSuivi(benchmark::State& state) {
  Poste poste(bench::base(Contrats));
  for (auto _ : state) benchmark::DoNotOptimize(poste.Ouvrir());
}

void brutOuvrirSuivi(benchmark::State& state) {
  Base& base = bench::base(Contrats);
  Poste poste(base);
  poste.journal.noter = true;
  poste.Ouvrir();
  bench::Brut brut(base.chemin);
  for (auto _ : state) {
    for (const auto& lecture : poste.journal.lectures) {
      benchmark::DoNotOptimize(brut.lire(lecture.fichier, lecture.debut));
    }
  }
}

BENCHMARK(ouvrirSuivi)->Unit(benchmark::kMicrosecond);
BENCHMARK(brutOuvrirSuivi)->Unit(benchmark::kMicrosecond);

}  // namespace
