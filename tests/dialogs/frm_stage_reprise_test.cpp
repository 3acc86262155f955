#include "data/texte.h"
#include "dialogs/frm_reprise.h"
#include "dialogs/frm_stage.h"
#include "essai_dialogue.h"

namespace dialogs {
namespace {

class StageEtReprise : public EssaiDialogue {
 protected:
  std::unique_ptr<Frm_Stage> stage(const session::Droits& d) {
    session.W_Droits = &d;
    return std::make_unique<Frm_Stage>(hote.platform, dossier);
  }
};

TEST_F(StageEtReprise, LeSeuilEstEnCentiemes) {
  for (const auto& [stocke, affiche, tape, ecrit] :
       support::table<4>("dialogs/dialogues.md", "Le seuil d'un stage")) {
    contrat("138=a; 139=b; 140=c; 141=d; 142=" + stocke);
    const auto f = stage(droits);
    EXPECT_EQ(f->Txt_Seuil.Text(), support::code(affiche));
    montrer(*f, [&, &saisie = tape, refuse = ecrit == stocke](screen::User& user) {
      user.Taper(f->Txt_Seuil, saisie);
      EXPECT_EQ(user.Cliquer(f->Cmd_OK), refuse ? Acte::Avale : Acte::Fait) << saisie;
      const std::string trop = "Txt_Seuil : « " + data::sansBlancs(f->Txt_Seuil.Text()) +
                               " » ne tient pas ici : au plus 5 chiffres avant la virgule et 2 "
                               "chiffres après, sans signe.";
      EXPECT_EQ(hote.indications.Prendre(),
                refuse ? std::vector{trop} : std::vector<std::string>());
      if (!f->Visible()) return;
      user.Taper(f->Txt_Seuil, "");
      hote.messages.Repondre(Reponse::Non);
      user.Cliquer(f->Cmd_Retour);
    });
    EXPECT_EQ(dossier.ItemContrat(142), ecrit);
  }
}

TEST_F(StageEtReprise, RetourDuStageEcritAussiCeQuiManque) {
  const struct {
    const session::Droits& droits;
    const char *seuil, *question, *attendu;
  } cas[] = {
      {droits, "3,90", "", "138=Lycée 142=390"},
      {lecture, "", "", "138=Lycée 142=390"},
      {droits, "", "EONA Voulez-vous enregistrer les modifications apportées à ces données ?",
       "138=Lycée"},
  };
  for (const auto& [droit, seuil, question, attendu] : cas) {
    contrat("138=Lycée; 142=390");
    const auto f = stage(droit);
    EXPECT_EQ(f->Cmd_OK.Visible(), &droit == &droits);
    montrer(*f, [&, &s = seuil, &q = question](screen::User& user) {
      user.Taper(f->Txt_Seuil, s);
      if (*q != '\0') hote.messages.Repondre(Reponse::Oui);
      EXPECT_EQ(clic(user, f->Cmd_Retour), q);
    });
    EXPECT_EQ(lu({138, 139, 140, 141, 142}), attendu);
  }
}

TEST_F(StageEtReprise, LaRepriseRendCeQuiEstProposeOuSaisi) {
  DonneesReprise donnees;
  donnees.determinee = true;
  donnees.departGrille = "01/01/2020";
  donnees.congesAuMois = true;
  donnees.grilleProposee = "05/01/2020";
  donnees.ancienneteProposee = "07/01/2020";
  for (const auto& [grille, anciennete, avecGrille, reprenables, attendu] :
       support::table<5>("dialogs/dialogues.md", "Ce que rend une reprise")) {
    donnees.avecGrille = avecGrille == "oui";
    donnees.congesReprenables = reprenables == "oui";
    Frm_Reprise f(hote.platform, dossier);
    f.Afficher(donnees);
    EXPECT_EQ(f.Txt_DebGrille.Text(), donnees.avecGrille ? "01/01/2020" : "");
    EXPECT_TRUE(f.Opt_Cdd.Value() && !f.Opt_Cdi.Value() && f.Cac_CpMois.Value() == 1);
    montrer(f, [&, &g = grille, &a = anciennete](screen::User& user) {
      EXPECT_EQ(user.Taper(f.Txt_DateDeb, "1"), Acte::Inaccessible);
      EXPECT_EQ(user.Fermer(), Acte::Avale);
      EXPECT_EQ(f.Txt_DebGrilleRecalc.Accessible(), donnees.avecGrille);
      EXPECT_EQ(f.Cac_CpPerenne.Accessible(), donnees.congesReprenables);
      if (g != "=") user.Taper(f.Txt_DebGrilleRecalc, g);
      user.Taper(f.Txt_DebAncRecalc, a);
      if (donnees.congesReprenables) user.Cliquer(f.Cac_CpPerenne);
      EXPECT_EQ(user.Cliquer(f.Cmd_Ok), Acte::Fait);
    });
    EXPECT_FALSE(f.RepriseRefusee);
    EXPECT_EQ(data::sansBlancs(f.NouvelleDateGrille + " " + f.NouvelleDateAnciennete + " " +
                               f.RepriseCalcul),
              attendu);
  }
}

TEST_F(StageEtReprise, AnnulerRefuseLaReprise) {
  Frm_Reprise f(hote.platform, dossier);
  f.Afficher({});
  montrer(f, [&](screen::User& user) {
    user.Cliquer(f.Cac_CpPerenne);
    user.Cliquer(f.Cmd_Annuler);
  });
  EXPECT_TRUE(f.RepriseRefusee);
  EXPECT_EQ(f.NouvelleDateAnciennete + f.RepriseCalcul, "N");
}

}  // namespace
}  // namespace dialogs
