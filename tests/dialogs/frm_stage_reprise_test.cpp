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
  const struct {
    const char *stocke, *affiche, *tape;
    const char* ecrit;  // what is on file, when the field cannot be left
  } cas[] = {
      {"390", "    3,90", "4.256", "426"},          {"", "", "-12a,5", "1250"},
      {"9999999", "99999,99", "100000", "9999999"},  // too wide
      {"12345678", "123456,78", "1", "100"},        {"douze", "douze", "7777777777", "douze"},
  };
  for (const auto& c : cas) {
    contrat(std::string("138=a; 139=b; 140=c; 141=d; 142=") + c.stocke);
    const auto f = stage(droits);
    EXPECT_EQ(f->Txt_Seuil.Text(), c.affiche);
    montrer(*f, [&](screen::User& user) {
      user.Taper(f->Txt_Seuil, c.tape);
      const Acte depart = user.Cliquer(f->Cmd_OK);
      EXPECT_EQ(depart, std::string(c.ecrit) == c.stocke ? Acte::Avale : Acte::Fait) << c.tape;
      if (!f->Visible()) return;
      user.Taper(f->Txt_Seuil, "");
      hote.messages.Repondre(Reponse::Non);
      user.Cliquer(f->Cmd_Retour);
    });
    EXPECT_EQ(dossier.ItemContrat(142), c.ecrit);
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
  const struct {
    const char *grille, *anciennete;  // typed, "=" for nothing
    bool avecGrille, reprenables, coche;
    const char* attendu;
  } cas[] = {
      {"", "", true, true, true, "05/01/2020 07/01/2020 O"},  // an erased date stays as proposed
      {"1-2.20", "030220", true, true, true, "01/02/2020 03/02/2020 O"},
      {"=", "1 3 2020", false, false, false, " 01/03/2020 N"},
  };
  for (const auto& c : cas) {
    donnees.avecGrille = c.avecGrille;
    donnees.congesReprenables = c.reprenables;
    Frm_Reprise f(hote.platform, dossier);
    f.Afficher(donnees);
    EXPECT_EQ(f.Txt_DebGrille.Text(), c.avecGrille ? "01/01/2020" : "");
    EXPECT_TRUE(f.Opt_Cdd.Value() && !f.Opt_Cdi.Value() && f.Cac_CpMois.Value() == 1);
    montrer(f, [&](screen::User& user) {
      EXPECT_EQ(user.Taper(f.Txt_DateDeb, "1"), Acte::Inaccessible);
      EXPECT_EQ(user.Fermer(), Acte::Avale);
      EXPECT_EQ(f.Txt_DebGrilleRecalc.Accessible(), c.avecGrille);
      EXPECT_EQ(f.Cac_CpPerenne.Accessible(), c.reprenables);
      if (*c.grille != '=') user.Taper(f.Txt_DebGrilleRecalc, c.grille);
      if (*c.anciennete != '=') user.Taper(f.Txt_DebAncRecalc, c.anciennete);
      if (c.coche) user.Cliquer(f.Cac_CpPerenne);
      EXPECT_EQ(user.Cliquer(f.Cmd_Ok), Acte::Fait);
    });
    EXPECT_FALSE(f.RepriseRefusee);
    EXPECT_EQ(f.NouvelleDateGrille + " " + f.NouvelleDateAnciennete + " " + f.RepriseCalcul,
              c.attendu);
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
