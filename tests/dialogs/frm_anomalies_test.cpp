#include "dialogs/frm_anomalies_ajoutgraph.h"

#include "dialogs/imprimantes.h"
#include "essai_dialogue.h"

namespace dialogs {
namespace {

class Anomalies : public EssaiDialogue {
 protected:
  Anomalies() {
    session.CodeAidant = "00001";
    session.NomPrenomAidant = "DURAND Anne";
  }
  std::unique_ptr<Frm_AnomaliesAjoutgraph> rapport(const std::string& texte, bool determine) {
    return std::make_unique<Frm_AnomaliesAjoutgraph>(
        hote.platform, dossier,
        Frm_AnomaliesAjoutgraph::Rapport{texte, determine, "001 Aide du Val"});
  }
};

TEST_F(Anomalies, LaReponseDecideDuPlanning) {
  const struct {
    bool determine;
    const char *bouton, *libelle;
    bool acceptees, appliquer;
  } cas[] = {{true, "Cmd_Ok", "Oui", true, true},
             {true, "Cmd_Non", "Non", true, false},
             {true, "Cmd_Annuler", "Annuler", false, false},
             {false, "Cmd_Ok", "Ok", true, true},
             {false, "Cmd_Annuler", "Annuler", false, false}};
  for (const auto& c : cas) {
    const auto f = rapport("Lundi", c.determine);
    EXPECT_EQ(f->Cmd_Non.Visible(), c.determine);
    montrer(*f, [&](screen::User& user) {
      EXPECT_EQ(user.Fermer(), Acte::Avale);
      EXPECT_EQ(f->Find(c.bouton)->Libelle(), c.libelle);
      user.Cliquer(*f->Find(c.bouton));
    });
    EXPECT_EQ(f->AnomaliesAcceptees, c.acceptees) << c.bouton;
    EXPECT_EQ(f->PlanningAApplier, c.appliquer) << c.bouton;
  }
}

TEST_F(Anomalies, UnLongTexteDefileEtSImprimeParPages) {
  std::string texte = "Début";
  for (int i = 1; i <= 21; ++i) texte += "\r\nLigne " + std::to_string(i);
  EXPECT_TRUE(rapport(texte, true)->Label1.Visible());
  for (int i = 22; i <= 200; ++i) texte += "\r\nLigne " + std::to_string(i);
  texte += "\r\n" + std::string(110, 'a') + "b";
  const auto f = rapport(texte, true);
  EXPECT_FALSE(f->Label1.Visible());
  montrer(*f, [&](screen::User& user) {
    user.Taper(f->Text1, "x");
    EXPECT_EQ(f->Text1.Text(), texte);
    user.Cliquer(f->Cmd_Imprimer);
    user.Cliquer(f->Cmd_Annuler);
  });
  ASSERT_EQ(hote.imprimante.Documents().size(), 1u);
  std::string imprime;
  const auto& pages = hote.imprimante.Documents().front().pages;
  // 55 lines on the first page under the title, 56 on the next ones.
  EXPECT_EQ(pages.size(), 4u);
  for (const auto& page : pages) {
    for (const auto& trace : page) imprime += trace.texte + "\n";
  }
  EXPECT_TRUE(
      imprime.starts_with("Anomalies sur contrat de travail\n \nAidant    : 00001 DURAND "
                          "Anne\nEmployeur : 001 Aide du Val\n \nDébut\nLigne 1\n"));
  EXPECT_TRUE(imprime.ends_with("Ligne 200\n" + std::string(110, 'a') + "\nb\n"));
}

TEST_F(Anomalies, LImprimanteDuRapport) {
  hote.imprimante.noms = {"Bureau", "Matricielle 9 aiguilles", "Étage"};
  EXPECT_EQ(PrinterIndex(hote.platform), 0);
  hote.reglages.Ecrire("Impression", "Frm_AnomaliesAjoutgraph", "Étage");
  EXPECT_EQ(PrinterIndex(hote.platform), 2);
  hote.reglages.Ecrire("Impression", "Frm_AnomaliesAjoutgraph", "Ailleurs");
  EXPECT_EQ(PrinterIndex(hote.platform), 0);
  EXPECT_TRUE(estMatricielle(hote.imprimante.noms[1]) && !estMatricielle("Bureau"));
  hote.imprimante.noms.clear();
  const auto f = rapport("x", true);
  montrer(*f, [&](screen::User& user) {
    EXPECT_EQ(clic(user, f->Cmd_Imprimer), "E Aucune imprimante n'est installée sur ce poste.");
    user.Cliquer(f->Cmd_Annuler);
  });
}

}  // namespace
}  // namespace dialogs
