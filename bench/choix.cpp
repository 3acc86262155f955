// The keys with which a clerk chooses on the pay tab, where the entity has 2,000 activities and the
// suite 500 profiles.

#include <benchmark/benchmark.h>

#include "bases.h"
#include "editor/editeur.h"
#include "screen/headless/hote.h"
#include "screen/user.h"

namespace {

using bench::Activites, bench::PremierProfil, bench::Profils;

// A production contract of that entity, opened on its pay tab.
struct Ouvert {
  Ouvert() : base(bench::baseChoix()) {
    const std::string cle = bench::contratChoix();
    session.Db = base.db.get();
    session.W_Droits = &droits;
    session.CodeAidant = cle.substr(0, 5);
    session.OuvrirFichiers();
    editeur = std::make_unique<editor::Frm_ElementsContrat>(hote.platform, session);
    editeur->Ouvrir(cle);
    editeur->Show();
    screen::User(*editeur).Onglet(editeur->Ong_Contrat, editor::ElementsPaie);
  }

  bench::Base& base;
  screen::headless::Hote hote{21511};
  session::Session session{hote.poste};
  session::DroitsUniformes droits{session::Droit::Plein};
  std::unique_ptr<editor::Frm_ElementsContrat> editeur;
};

// A row of the list, then the double click that takes it off the contract again.
void choisirActivite(benchmark::State& state) {
  Ouvert ouvert;
  screen::User user(*ouvert.editeur);
  auto& choix = dynamic_cast<screen::ComboBox&>(*ouvert.editeur->Find("Cbo_Activite"));
  auto& liste = dynamic_cast<screen::ListBox&>(*ouvert.editeur->Find("Lst_ActiviteContrat"));
  const int avant = liste.ListCount();
  if (choix.ListCount() < Activites) throw std::runtime_error("not all activities are offered");
  for (auto _ : state) {
    user.Choisir(choix, Activites / 2);
    if (liste.ListCount() != avant + 1) throw std::runtime_error("the activity was not taken");
    user.DoubleCliquer(liste, avant);
  }
}

void taperProfil(benchmark::State& state) {
  Ouvert ouvert;
  screen::User user(*ouvert.editeur);
  auto& code = *ouvert.editeur->Find("Txt_ProfilContrat");
  const auto& libelle =
      dynamic_cast<screen::ComboBox&>(*ouvert.editeur->Find("Cbo_LibProfilContrat"));
  int rang = 0;
  for (auto _ : state) {
    rang = (rang + 1) % Profils;
    user.Taper(code, std::to_string(PremierProfil + rang));
    if (libelle.Text() != "Profil " + bench::lettres(rang))
      throw std::runtime_error("another profile");
  }
}

BENCHMARK(choisirActivite)->Unit(benchmark::kMicrosecond);
BENCHMARK(taperProfil)->Unit(benchmark::kMicrosecond);

}  // namespace
