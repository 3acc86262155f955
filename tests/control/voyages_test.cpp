// How many trips over the line a clerk's acts take, with the base on a server: each trip is a
// millisecond or more that the clerk waits.

#include <gtest/gtest.h>

#include "control/ctr_contrat.h"
#include "data/cles.h"
#include "data/layouts/contrat.h"
#include "data/layouts/fichiers.h"
#include "data/layouts/voisins.h"
#include "demo/generateur.h"
#include "screen/headless/hote.h"
#include "screen/user.h"
#include "support/compte_storage.h"
#include "support/serveur.h"

namespace {

namespace C = data::Contrat;

class VoyagesPostgres : public testing::Test {
 protected:
  VoyagesPostgres() {
    demo::OptionsDemo options;
    options.aidants = 20;
    serveur_->EnUnBloc([&] {
      demo::genererDemo(*serveur_, options);
      Multiplier("90020", 20);
      Multiplier("90999", 999);
      Multiplier("90000", 0);
    });
    hote_.modales.SetPompe([this](screen::Form& form) {
      ouverture_ = serveur_->Voyages() - avant_;
      acte_(form);
    });
  }

  // A carer with so many contracts, of all that there are.
  void Multiplier(const std::string& aidant, int nombre) {
    std::vector<std::string> modeles;
    serveur_->Scan("CONTRAT", data::KeyRange::Tout(), [&](auto, std::string_view texte) {
      data::CItem contrat(texte);
      for (const int a : {C::CongesReportesSur, C::CongesReprisDe, C::Annule}) contrat.Set(a, "");
      modeles.push_back(contrat.Text());
      return modeles.size() < 60;
    });
    data::CItem carer;
    carer.Set(data::CivilAidant::Nom, "BENOIT");
    carer.Set(data::CivilAidant::DernierNumero, data::numeroContrat(nombre));
    serveur_->Put("CIVILAIDANT", aidant, carer.Text());
    for (int n = 1; n <= nombre; ++n) {
      serveur_->Put("CONTRAT", data::cleContrat(aidant, n),
                    modeles[static_cast<std::size_t>(n) % modeles.size()]);
    }
  }

  void Afficher(const std::string& aidant) {
    controle_ = std::make_unique<control::Ctr_Contrat>(hote_.platform);
    controle_->TheDatabase(db_);
    controle_->W_Code = aidant;
    controle_->DroitsUtilisateur(droits_);
    controle_->init();
    controle_->Show();
    controle_->Opt_TousValid.SetValue(true);
  }
  long Voyages(const std::function<void()>& acte) {
    avant_ = serveur_->Voyages();
    acte();
    return serveur_->Voyages() - avant_;
  }

  data::PosteFixe poste_{21511};
  std::unique_ptr<storage::PostgresStorage> serveur_ =
      storage::PostgresStorage::Creer(support::Serveur::Commun().NouvelleBase(), poste_);
  support::CompteStorage compte_{*serveur_};
  screen::headless::Hote hote_{21511};
  data::Db db_{std::shared_ptr<data::Storage>(&compte_, [](auto*) {})};
  session::DroitsUniformes droits_{session::Droit::Plein};
  std::unique_ptr<control::Ctr_Contrat> controle_;
  std::function<void(screen::Form&)> acte_ = [](screen::Form& form) { form.Hide(); };
  long avant_ = 0;
  long ouverture_ = 0;  // trips from the beginning of the act to the window shown
};

TEST_F(VoyagesPostgres, ListerUnAidant) {
  const struct {
    const char* aidant;
    int contrats;
    long voyages;
  } cas[] = {{"90020", 20, 6}, {"90999", 999, 12}};
  for (const auto& c : cas) {
    Afficher(c.aidant);
    EXPECT_LE(Voyages([&] { controle_->Recherche_Contrat(); }), c.voyages);
    EXPECT_EQ(controle_->Lst_DatDebContrat.ListCount(), c.contrats);
  }
}

TEST_F(VoyagesPostgres, OuvrirUnContrat) {
  Afficher("90020");
  screen::User(*controle_).Cliquer(controle_->Cmd_Recherche);
  for (int ligne = 0; ligne < 20; ++ligne) {
    screen::User(*controle_).Choisir(controle_->Lst_DatDebContrat, ligne);
    Voyages([&] { controle_->Appel_Contrat(); });
    EXPECT_GE(ouverture_, 1) << ligne;
    EXPECT_LE(ouverture_, 15) << ligne;
  }
}

// A contract on file, whose marks stand: one record, with what must be read before it.
TEST_F(VoyagesPostgres, ModifierUnContrat) {
  std::string cle;
  serveur_->Scan("CONTRAT", data::KeyRange::Tout(), [&](std::string_view k, std::string_view t) {
    const data::CItem contrat(t);
    cle = k;
    return contrat(C::Convention) == "02" || contrat(C::DateFin) != "" || contrat(C::Annule) == "O";
  });
  Afficher(cle.substr(0, 5));
  long voyages = 0;
  const char* taux = "12,31";
  acte_ = [&](screen::Form& form) {
    auto& editeur = dynamic_cast<editor::Frm_ElementsContrat&>(form);
    screen::User user(form);
    user.Onglet(editeur.Ong_Contrat, editor::Caracteristiques);
    user.Taper(*editeur.Find("Txt_TauxHorContrat"), taux);
    compte_.ecritures = 0;
    voyages = Voyages([&] { user.Cliquer(editeur.Cmd_OK); });
    EXPECT_FALSE(form.Visible());
  };
  controle_->W_CodeContrat = cle;
  controle_->Appel_Contrat();
  taux = "12,32";
  controle_->Appel_Contrat();
  EXPECT_EQ(compte_.ecritures, 1);
  EXPECT_LE(voyages, 2);
}

TEST_F(VoyagesPostgres, EnregistrerUnContrat) {
  Afficher("90000");
  long voyages = 0;
  acte_ = [&](screen::Form& form) {
    auto& editeur = dynamic_cast<editor::Frm_ElementsContrat&>(form);
    screen::User user(form);
    user.Taper(*editeur.Find("Txt_ConvColContrat"), "01");
    user.Taper(*editeur.Find("Txt_AssocContrat"), "001");
    user.Taper(*editeur.Find("Txt_EmplEtabContrat"), "001");
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
    compte_.ecritures = 0;
    voyages = Voyages([&] { user.Cliquer(editeur.Cmd_OK); });
    EXPECT_FALSE(form.Visible());
  };
  screen::User(*controle_).Cliquer(controle_->Cmd_Ajouter);
  std::string texte;
  EXPECT_TRUE(serveur_->Get("CONTRAT", "90000001", texte));
  EXPECT_EQ(compte_.ecritures, 4);
  EXPECT_LE(voyages, 4);
}

}  // namespace
