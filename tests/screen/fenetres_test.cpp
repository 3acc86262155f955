// Modal shows, closing, forms that go away under their own handlers, and the headless services.

#include <gtest/gtest.h>

#include "essai.h"
#include "screen/attente.h"

namespace screen {
namespace {

struct Fenetres : testing::Test {
  headless::Hote hote;
};

TEST_F(Fenetres, ModaleDansUnGestionnaire) {
  Essai essai(hote.platform);
  essai.Show();
  std::string lu;
  essai.Sur("Cmd_OK.Click", [&] {
    Essai dialogue(hote.platform);
    dialogue.Sur("Cmd_OK.Click", [&] { dialogue.Hide(); });
    dialogue.ShowModal();
    lu = dialogue.Txt_A.Text() + " " + dialogue.Actif() + " " + dialogue.Journal();
  });
  hote.modales.Prevoir([](Form& form) {
    auto& dialogue = static_cast<Essai&>(form);
    User(dialogue).Taper(dialogue.Txt_A, "12");
    EXPECT_EQ(User(dialogue).Cliquer(dialogue.Cmd_OK), Acte::Fait);
    EXPECT_EQ(User(dialogue).Cliquer(dialogue.Cmd_OK), Acte::Inaccessible);
  });
  EXPECT_EQ(User(essai).Cliquer(essai.Cmd_OK), Acte::Fait);
  EXPECT_EQ(lu,
            "12 - Activate Txt_A.GotFocus Txt_A.Change Txt_A.Change Txt_A.LostFocus "
            "Cmd_OK.GotFocus Cmd_OK.Click");
  EXPECT_EQ(essai.Actif(), "Cmd_OK");
}

TEST_F(Fenetres, CacheeDesSonActivation) {
  Essai essai(hote.platform);
  essai.Sur("Activate", [&] { essai.Hide(); });
  essai.ShowModal();
  EXPECT_TRUE(hote.modales.Montrees().empty());
  essai.Sur("Activate", [] {});
  essai.Show();
  EXPECT_THROW(essai.ShowModal(), std::logic_error);
  EXPECT_TRUE(essai.Visible());
}

TEST_F(Fenetres, Fermeture) {
  Essai essai(hote.platform);
  EXPECT_EQ(User(essai).Fermer(), Acte::Inaccessible);
  essai.Show();
  essai.fermetureRefusee = true;
  EXPECT_EQ(User(essai).Fermer(), Acte::Avale);
  EXPECT_TRUE(essai.Visible());
  essai.SetEnabled(false);
  essai.fermetureRefusee = false;
  EXPECT_EQ(User(essai).Fermer(), Acte::Inaccessible);
  essai.SetEnabled(true);
  EXPECT_EQ(User(essai).Fermer(), Acte::Fait);
  EXPECT_FALSE(essai.Visible());
}

// Each act ends well when a handler drops the form under it.
TEST_F(Fenetres, DetruiteParSonGestionnaire) {
  const struct {
    const char* evenement;
    std::function<Acte(Essai&)> acte;
    Acte attendu;
  } cas[] = {
      {"Cmd_OK.Click", [](Essai& e) { return User(e).Cliquer(e.Cmd_OK); }, Acte::Fait},
      {"Txt_A.LostFocus", [](Essai& e) { return User(e).Cliquer(e.Cmd_OK); }, Acte::Avale},
      {"Cmd_OK.GotFocus", [](Essai& e) { return User(e).Cliquer(e.Cmd_OK); }, Acte::Avale},
      {"Txt_A.Change", [](Essai& e) { return User(e).Taper(e.Txt_A, "12"); }, Acte::Avale},
      {"Lst_A.Click", [](Essai& e) { return User(e).DoubleCliquer(e.Lst_A, 1); }, Acte::Avale},
      {"Txt_A.LostFocus", [](Essai& e) { return User(e).Quitter(); }, Acte::Avale},
  };
  for (const auto& c : cas) {
    SCOPED_TRACE(c.evenement);
    auto essai = std::make_unique<Essai>(hote.platform);
    essai->Show();
    User(*essai).Focus(essai->Txt_A);
    essai->Sur(c.evenement, [&] { essai.reset(); });
    Essai& form = *essai;
    EXPECT_EQ(c.acte(form), c.attendu);
    EXPECT_EQ(essai, nullptr);
  }
  auto modale = std::make_unique<Essai>(hote.platform);
  hote.modales.Prevoir([&](Form&) { modale.reset(); });
  modale->ShowModal();
  EXPECT_EQ(modale, nullptr);
}

// A window and a question that no test foresaw; the form does not stay shown.
TEST_F(Fenetres, LInattenduEstUneErreur) {
  Essai essai(hote.platform);
  EXPECT_THROW(essai.ShowModal(), headless::FenetreInattendue);
  EXPECT_FALSE(essai.Visible());
  hote.messages.Repondre(Reponse::Oui);
  EXPECT_THROW(essai.MessageBox("Oui ?", Boutons::OkAnnuler), headless::QuestionInattendue);
}

// During long work the user reaches nothing, and the screen comes back whatever ends the work.
TEST_F(Fenetres, AttenteSansPriseParLUtilisateur) {
  Essai essai(hote.platform);
  essai.Show();
  Acte pendant = Acte::Fait;
  hote.curseur.SurEvenements = [&] { pendant = User(essai).Cliquer(essai.Cmd_OK); };
  const auto travailler = [&](bool panne) {
    Attente attente(essai);
    EXPECT_TRUE(hote.curseur.EnAttente());
    if (panne) throw std::runtime_error("panne");
    attente.Finir();
  };
  travailler(false);
  EXPECT_EQ(pendant, Acte::Inaccessible);
  EXPECT_THROW(travailler(true), std::runtime_error);
  EXPECT_TRUE(essai.Enabled());
  EXPECT_FALSE(hote.curseur.EnAttente());
  EXPECT_EQ(hote.curseur.Attentes(), 2);
}

}  // namespace
}  // namespace screen
