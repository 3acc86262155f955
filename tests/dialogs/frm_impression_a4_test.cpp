#include "dialogs/frm_impression_a4.h"

#include "essai_dialogue.h"

namespace dialogs {
namespace {

class Impression : public EssaiDialogue {};

TEST_F(Impression, OffreLesImprimantesDePages) {
  const struct {
    std::vector<std::string> noms;
    std::string offertes;
    const char* choisie;
    bool matricielle;
  } cas[] = {
      {{"Bureau", "Étage"}, "Bureau|Étage", "Bureau", false},
      {{"MATRICIELLE", "Bureau", "Étage"}, "Bureau|Étage", "Bureau", true},
      {{"Epson matric", "Étage"}, "Étage", "Étage", true},
      {{"Epson matric"}, "", "", true},
      {{}, "", "", false},
  };
  for (const auto& [noms, offertes, choisie, matricielle] : cas) {
    hote.imprimante.noms = noms;
    Frm_ImpressionA4 f(hote.platform);
    std::string vues;
    for (const auto& ligne : f.Cbo_Imprimante.Rows()) vues += (vues.empty() ? "" : "|") + ligne;
    EXPECT_EQ(vues, offertes);
    EXPECT_EQ(f.Cbo_Imprimante.Text(), choisie);
    EXPECT_EQ(f.NomImprimante, choisie);
    EXPECT_EQ(f.ImprimanteMatricielle, matricielle);
    EXPECT_EQ(f.Cmd_Ok.Enabled(), !offertes.empty());
  }
}

TEST_F(Impression, ChoisitLImprimanteEtLesCopies) {
  hote.imprimante.noms = {"Matricielle", "Bureau", "Étage"};
  Frm_ImpressionA4 f(hote.platform);
  montrer(f, [&](screen::User& user) {
    EXPECT_EQ(user.Fermer(), Acte::Avale);
    EXPECT_EQ(actif(f), "Cmd_Ok");
    user.Choisir(f.Cbo_Imprimante, 1);
    EXPECT_EQ(actif(f), "Cmd_Ok");
    for (const char* refuse : {"", "0"}) {
      user.Taper(f.Txt_NbCopies, refuse);
      user.Cliquer(f.Cmd_Ok);
      EXPECT_EQ(actif(f), "Txt_NbCopies");
    }
    user.Taper(f.Txt_NbCopies, "a1x2");
    EXPECT_EQ(f.Bdh_NbCopies.Value(), 12);
    user.Barre(f.Bdh_NbCopies, 3);
    EXPECT_EQ(f.Txt_NbCopies.Text(), "3");
    user.Cliquer(f.Cmd_Ok);
  });
  EXPECT_EQ(f.NomImprimante + std::to_string(f.NbCopies), "Étage3");
  EXPECT_FALSE(f.ImpressionAnnulee);
  // The printer chosen is the one that prints.
  hote.imprimante.Texte(0, 0, "x");
  hote.imprimante.FinDocument();
  EXPECT_EQ(hote.imprimante.Documents().front().imprimante, "Étage");

  Frm_ImpressionA4 g(hote.platform);
  montrer(g, [&](screen::User& user) { user.Cliquer(g.Cmd_Annuler); });
  EXPECT_TRUE(g.ImpressionAnnulee);
}

}  // namespace
}  // namespace dialogs
