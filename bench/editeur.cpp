// What a clerk waits for in the contract editor, beside the reads and the durable writes that it
// rests on, noted on the way and done again raw.

#include <benchmark/benchmark.h>

#include "bases.h"
#include "control/ctr_contrat.h"
#include "data/layouts/contrat.h"
#include "data/layouts/fichiers.h"
#include "data/layouts/voisins.h"
#include "demo/generateur.h"
#include "journal.h"
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

void brutOuvrirContrat(benchmark::State& state) {
  Base& base = bench::base(Contrats);
  const std::string cle = contratOuvert(base);
  Poste poste(base, cle.substr(0, 5));
  poste.controle.W_CodeContrat = cle;
  poste.controle.Appel_Contrat();
  poste.journal.noter = true;
  poste.controle.Appel_Contrat();
  bench::Brut brut(base.chemin);
  for (auto _ : state) {
    for (const auto& [fichier, debut, fin] : poste.journal.lectures) {
      if (fin.empty()) {
        benchmark::DoNotOptimize(brut.lire(fichier, debut));
      } else {
        benchmark::DoNotOptimize(brut.parcourir(fichier, debut, fin));
      }
    }
  }
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

BENCHMARK(ouvrirContrat)->Unit(benchmark::kMicrosecond);
BENCHMARK(brutOuvrirContrat)->Unit(benchmark::kMicrosecond);
BENCHMARK(enregistrerContrat)->Unit(benchmark::kMicrosecond)->Iterations(200)->UseRealTime();
BENCHMARK(brutEnregistrerContrat)->Unit(benchmark::kMicrosecond)->Iterations(200)->UseRealTime();

}  // namespace
