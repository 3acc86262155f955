// What a clerk waits for in the contract editor, beside the reads and the durable writes that it
// rests on, noted on the way and done again raw.

#include <benchmark/benchmark.h>

#include "bases.h"
#include "control/ctr_contrat.h"
#include "data/cles.h"
#include "data/jour.h"
#include "data/layouts/contrat.h"
#include "data/layouts/fichiers.h"
#include "data/layouts/voisins.h"
#include "demo/generateur.h"
#include "journal.h"
#include "rules/heures_legales.h"
#include "rules/repartition.h"
#include "screen/headless/hote.h"
#include "screen/user.h"

namespace {

using bench::Base, bench::Journal;
using editor::Frm_ElementsContrat;

constexpr long Contrats = 100'000;
constexpr const char* Entite = "001";

// The list of one carer over a noting store, with an editor whose user is `acte`.
struct Poste {
  explicit Poste(Base& base, const std::string& aidant) : journal(*base.stockage) {
    controle.TheDatabase(db);
    controle.W_Code = aidant;
    controle.DroitsUtilisateur(droits);
    controle.init();
    controle.Show();
    hote.modales.SetPompe([this](screen::Form& form) { acte(form); });
  }
  Poste(const Poste&) = delete;
  Poste& operator=(const Poste&) = delete;

  screen::headless::Hote hote{21511};
  Journal journal;
  data::Db db{std::shared_ptr<data::Storage>(&journal, [](auto*) {})};
  session::DroitsUniformes droits{session::Droit::Plein};
  control::Ctr_Contrat controle{hote.platform};
  std::function<void(screen::Form&)> acte = [](screen::Form& form) { form.Hide(); };
};

// A contract of an entity in the middle of the file.
std::string contratOuvert(Base& base) {
  const data::CItem lignes = base.db->Selectionner(
      "SSELECT CONTRAT AVEC 0 >= \"" + base.aidant + "\" AND AVEC 1 <> \"02\" AND AVEC 65 = \"\"",
      "CONTRAT", "0");
  return lignes(1, 1);
}

void ouvrirContrat(benchmark::State& state) {
  Base& base = bench::base(Contrats);
  const std::string cle = contratOuvert(base);
  Poste poste(base, cle.substr(0, 5));
  poste.controle.W_CodeContrat = cle;
  poste.controle.Appel_Contrat();
  for (auto _ : state) poste.controle.Appel_Contrat();
}

// The reads that were noted, raw.
void relire(benchmark::State& state, const Base& base, const Journal& journal) {
  bench::Brut brut(base.chemin);
  for (auto _ : state) {
    for (const auto& [fichier, debut, fin] : journal.lectures) {
      if (fin.empty()) {
        benchmark::DoNotOptimize(brut.lire(fichier, debut));
      } else {
        benchmark::DoNotOptimize(brut.parcourir(fichier, debut, fin));
      }
    }
  }
}

void brutOuvrirContrat(benchmark::State& state) {
  Base& base = bench::base(Contrats);
  const std::string cle = contratOuvert(base);
  Poste poste(base, cle.substr(0, 5));
  poste.controle.W_CodeContrat = cle;
  poste.controle.Appel_Contrat();
  poste.journal.noter = true;
  poste.controle.Appel_Contrat();
  relire(state, base, poste.journal);
}

// The first visit to a tab, alone: what is done before it is not counted.
void visiter(Poste& poste, int onglet, const std::function<void(bool)>& compter) {
  poste.acte = [&](screen::Form& form) {
    auto& editeur = dynamic_cast<Frm_ElementsContrat&>(form);
    compter(true);
    screen::User(form).Onglet(editeur.Ong_Contrat, onglet);
    compter(false);
    form.Hide();
  };
  poste.controle.Appel_Contrat();
}

void visiterOnglet(benchmark::State& state, int onglet) {
  Base& base = bench::base(Contrats);
  const std::string cle = contratOuvert(base);
  Poste poste(base, cle.substr(0, 5));
  poste.controle.W_CodeContrat = cle;
  visiter(poste, onglet, [](bool) {});
  for (auto _ : state) {
    state.PauseTiming();
    visiter(poste, onglet, [&](bool debut) { debut ? state.ResumeTiming() : state.PauseTiming(); });
    state.ResumeTiming();
  }
}

// The same reads and key ranges, under the same clock.
void brutVisiterOnglet(benchmark::State& state, int onglet) {
  Base& base = bench::base(Contrats);
  const std::string cle = contratOuvert(base);
  Poste poste(base, cle.substr(0, 5));
  poste.controle.W_CodeContrat = cle;
  visiter(poste, onglet, [&](bool debut) { poste.journal.noter = debut; });
  bench::Brut brut(base.chemin);
  for (auto _ : state) {
    state.PauseTiming();
    poste.acte = [](screen::Form& form) { form.Hide(); };
    poste.controle.Appel_Contrat();
    state.ResumeTiming();
    for (const auto& [fichier, debut, fin] : poste.journal.lectures) {
      if (fin.empty()) {
        benchmark::DoNotOptimize(brut.lire(fichier, debut));
      } else {
        benchmark::DoNotOptimize(brut.parcourir(fichier, debut, fin));
      }
    }
  }
}

void visiterPaie(benchmark::State& state) {
  visiterOnglet(state, editor::ElementsPaie);
}
void brutVisiterPaie(benchmark::State& state) {
  brutVisiterOnglet(state, editor::ElementsPaie);
}
void visiterConges(benchmark::State& state) {
  visiterOnglet(state, editor::DroitsConges);
}
void brutVisiterConges(benchmark::State& state) {
  brutVisiterOnglet(state, editor::DroitsConges);
}
void visiterFin(benchmark::State& state) {
  visiterOnglet(state, editor::FinContrat);
}
void brutVisiterFin(benchmark::State& state) {
  brutVisiterOnglet(state, editor::FinContrat);
}

// Reading and storing the splits of a contract, of that many periods of 20 activities.
void repartir(benchmark::State& state, int periodes) {
  rules::Repartition::Parts parts;
  for (int i = 0; i < 20; ++i) parts.push_back({"001" + std::to_string(100 + i), "500"});
  rules::Repartition repartition;
  for (int p = 0; p < periodes; ++p) {
    repartition.Ajouter(data::decalePeriode("202001", p), parts);
  }
  data::CItem contrat;
  for (auto _ : state) {
    repartition.Ecrire(contrat);
    benchmark::DoNotOptimize(rules::Repartition::DuContrat(contrat));
  }
}
void repartir60(benchmark::State& state) {
  repartir(state, 60);
}
void repartir6(benchmark::State& state) {
  repartir(state, 6);
}

// Carers without a contract, one for each creation, past those of the file and of former runs.
std::string aidantNeuf(Base& base) {
  static int numero = 300'000;
  std::string code;
  std::string texte;
  do {
    code = demo::codePersonne(++numero);
  } while (base.stockage->Get(data::fichier::CIVILAIDANT, code, texte));
  data::CItem aidant;
  aidant.Set(data::CivilAidant::Nom, "NOUVEAU");
  base.stockage->Put(data::fichier::CIVILAIDANT, code, aidant.Text());
  return code;
}

// Fills a new contract of an entity and confirms it under the clock.
void creerUnContrat(Poste& poste, Base& base, benchmark::State* state) {
  const data::CItem lignes = base.db->Selectionner(
      std::string("SSELECT ETABLISSEMENT AVEC 0 = \"") + Entite + "]\"", "ETABLISSEMENT", "0");
  poste.acte = [&, etablissement = lignes(1, 1).substr(3)](screen::Form& form) {
    auto& editeur = dynamic_cast<Frm_ElementsContrat&>(form);
    screen::User user(form);
    user.Taper(*editeur.Find("Txt_ConvColContrat"), "01");
    user.Taper(*editeur.Find("Txt_AssocContrat"), Entite);
    user.Taper(*editeur.Find("Txt_EmplEtabContrat"), etablissement);
    user.Taper(*editeur.Find("Txt_DatDebContrat"), "01/12/2026");
    user.Onglet(editeur.Ong_Contrat, editor::Caracteristiques);
    user.Taper(*editeur.Find("Cbo_QualifContrat"), "Agent à domicile");
    user.Taper(*editeur.Find("Txt_DureeWContrat"), "20");
    user.Choisir(*editeur.Find("Cbo_FreqWContrat"), 0);
    user.Taper(*editeur.Find("Txt_TauxHorContrat"), "12,02");
    user.Onglet(editeur.Ong_Contrat, editor::ElementsPaie);
    user.Taper(*editeur.Find("Txt_ProfilContrat"), "110");
    user.Choisir(*editeur.Find("Cbo_LibPrevContrat"), 0);
    user.Choisir(*editeur.Find("Cbo_Activite"), 0);
    poste.journal.noter = true;
    if (state != nullptr) state->ResumeTiming();
    user.Cliquer(editeur.Cmd_OK);
    if (state != nullptr) state->PauseTiming();
    poste.journal.noter = false;
    if (form.Visible()) throw std::runtime_error("the new contract was refused");
  };
  screen::User(poste.controle).Cliquer(poste.controle.Cmd_Ajouter);
}

void enregistrerContrat(benchmark::State& state) {
  Base& base = bench::base(Contrats);
  for (auto _ : state) {
    state.PauseTiming();
    {
      Poste poste(base, aidantNeuf(base));
      creerUnContrat(poste, base, &state);
    }
    state.ResumeTiming();
  }
}

// The same records, each in a durable transaction of its own, under keys of their own.
void brutEnregistrerContrat(benchmark::State& state) {
  Base& base = bench::base(Contrats);
  Poste poste(base, aidantNeuf(base));
  creerUnContrat(poste, base, nullptr);
  if (poste.journal.ecritures.empty()) throw std::runtime_error("the new contract was not written");
  bench::EcritureBrute brut(base.chemin);
  static int tour = 0;
  for (auto _ : state) {
    const std::string suffixe = "-" + std::to_string(++tour);
    for (const auto& [fichier, cle, texte] : poste.journal.ecritures) {
      brut.ecrire(fichier, cle + suffixe, texte);
    }
  }
}

// An opened editor on a contract of the middle, with amendments.
struct Ouvert {
  explicit Ouvert(Base& base)
      : journal(*base.stockage), db{std::shared_ptr<data::Storage>(&journal, [](auto*) {})} {
    const data::CItem lignes =
        base.db->Selectionner("SSELECT CONTRAT AVEC 0 >= \"" + base.aidant +
                                  "\" AND AVEC 1 <> \"02\" AND AVEC 65 = \"\" AND AVEC 14 = \"02\"",
                              "CONTRAT", "0");
    cle = lignes(1, 1);
    session.Db = &db;
    session.W_Droits = &droits;
    session.CodeAidant = cle.substr(0, 5);
    session.OuvrirFichiers();
    editeur = std::make_unique<Frm_ElementsContrat>(hote.platform, session);
    ouvrir();
  }
  void ouvrir() {
    editeur->Ouvrir(cle);
    editeur->Show();
  }
  void visiter() { screen::User(*editeur).Onglet(editeur->Ong_Contrat, editor::Caracteristiques); }

  screen::headless::Hote hote{21511};
  Journal journal;
  data::Db db;
  session::Session session{hote.poste};
  session::DroitsUniformes droits{session::Droit::Plein};
  std::unique_ptr<Frm_ElementsContrat> editeur;
  std::string cle;
};

void visiterCaracteristiques(benchmark::State& state) {
  Ouvert ouvert(bench::base(Contrats));
  for (auto _ : state) {
    state.PauseTiming();
    ouvert.ouvrir();
    state.ResumeTiming();
    ouvert.visiter();
  }
}

void brutVisiterCaracteristiques(benchmark::State& state) {
  Base& base = bench::base(Contrats);
  Ouvert ouvert(base);
  ouvert.journal.noter = true;
  ouvert.visiter();
  relire(state, base, ouvert.journal);
}

// To the other amendment and back, by turns.
void parcourirAvenant(benchmark::State& state) {
  Ouvert ouvert(bench::base(Contrats));
  ouvert.visiter();
  auto& barre = dynamic_cast<screen::UpDown&>(*ouvert.editeur->Find("Bdh_Avenant"));
  int rang = barre.Max();
  if (rang == 0) throw std::runtime_error("a contract without amendments");
  for (auto _ : state) screen::User(*ouvert.editeur).Barre(barre, rang = rang == 0 ? 1 : 0);
}

// A carer with 50 contracts in force on the day, in the middle of the file.
constexpr const char* AidantHeures = "99990";
constexpr int ContratsEnVigueur = 50;

void preparerHeures(Base& base) {
  data::CItem contrat;
  contrat.SetText(base.db->OpenFile("CONTRAT").Read(contratOuvert(base)).Text());
  contrat.Set(data::Contrat::DateFin, "");
  contrat.Set(data::Contrat::DateDebut, "20000");
  base.stockage->EnUnBloc([&] {
    for (int n = 1; n <= ContratsEnVigueur; ++n) {
      base.stockage->Put("CONTRAT", data::cleContrat(AidantHeures, n), contrat.Text());
    }
  });
}

rules::TempsTravail tempsPese() {
  return {3500, 1, 21000, 20000};
}

void peserHeures(benchmark::State& state) {
  Base& base = bench::base(Contrats);
  preparerHeures(base);
  for (auto _ : state) {
    benchmark::DoNotOptimize(rules::Verif_NbHeures(*base.db, AidantHeures, "001", tempsPese()));
  }
}

void brutPeserHeures(benchmark::State& state) {
  Base& base = bench::base(Contrats);
  preparerHeures(base);
  Journal journal(*base.stockage);
  data::Db db{std::shared_ptr<data::Storage>(&journal, [](auto*) {})};
  journal.noter = true;
  rules::Verif_NbHeures(db, AidantHeures, "001", tempsPese());
  relire(state, base, journal);
}

BENCHMARK(visiterCaracteristiques)->Unit(benchmark::kMicrosecond)->Iterations(500);
BENCHMARK(brutVisiterCaracteristiques)->Unit(benchmark::kMicrosecond);
BENCHMARK(parcourirAvenant)->Unit(benchmark::kMicrosecond);
BENCHMARK(peserHeures)->Unit(benchmark::kMicrosecond);
BENCHMARK(brutPeserHeures)->Unit(benchmark::kMicrosecond);
BENCHMARK(ouvrirContrat)->Unit(benchmark::kMicrosecond);
BENCHMARK(brutOuvrirContrat)->Unit(benchmark::kMicrosecond);
BENCHMARK(visiterPaie)->Unit(benchmark::kMicrosecond)->Iterations(2000);
BENCHMARK(brutVisiterPaie)->Unit(benchmark::kMicrosecond)->Iterations(2000);
BENCHMARK(visiterConges)->Unit(benchmark::kMicrosecond)->Iterations(2000);
BENCHMARK(brutVisiterConges)->Unit(benchmark::kMicrosecond)->Iterations(2000);
BENCHMARK(visiterFin)->Unit(benchmark::kMicrosecond)->Iterations(2000);
BENCHMARK(brutVisiterFin)->Unit(benchmark::kMicrosecond)->Iterations(2000);
BENCHMARK(repartir60)->Unit(benchmark::kMicrosecond);
BENCHMARK(repartir6)->Unit(benchmark::kMicrosecond);
BENCHMARK(enregistrerContrat)->Unit(benchmark::kMicrosecond)->Iterations(200)->UseRealTime();
BENCHMARK(brutEnregistrerContrat)->Unit(benchmark::kMicrosecond)->Iterations(200)->UseRealTime();

}  // namespace
