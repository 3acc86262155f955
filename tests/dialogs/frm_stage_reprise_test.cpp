#include "dialogs/frm_reprise.h"
#include "dialogs/frm_stage.h"
#include "essai_dialogue.h"

namespace dialogs {
namespace {

const std::vector<int> Stage{138, 139, 140, 141, 142};

class StageEtReprise : public EssaiDialogue {
 protected:
  std::unique_ptr<Frm_Stage> stage(const session::Droits& d) {
    auto form = std::make_unique<Frm_Stage>(hote.platform, session);
    form->DroitsUtilisateur(d);
    form->init();
    return form;
  }
};

TEST_F(StageEtReprise, LesCinqZonesDuStageSontObligatoires) {
  contrat({{13, "STG"}});
  const auto f = stage(droits);
  const struct {
    screen::TextField& champ;
    const char* absente;
    const char* texte;
  } zones[] = {
      {f->Txt_Etab, "E La saisie d'un établissement d'enseignement est obligatoire.", "Lycée"},
      {f->Txt_SujetStage, "E La saisie d'un sujet de stage est obligatoire.", "L'aide \"à\" table"},
      {f->Txt_Tuteur, "E La saisie d'un tuteur est obligatoire.", "Mme Noël"},
      {f->Txt_Service, "E La saisie d'un service est obligatoire.", "SSIAD"},
      {f->Txt_Seuil, "E La saisie d'un seuil de franchise horaire est obligatoire.", "0"},
  };
  montrer(*f, [&](screen::User& user) {
    EXPECT_EQ(user.Fermer(), Acte::Avale);
    for (const auto& [champ, absente, texte] : zones) {
      if (&champ != &f->Txt_Seuil) user.Taper(champ, "  ");
      user.Cliquer(f->Cmd_OK);
      EXPECT_EQ(message(), absente);
      EXPECT_EQ(actif(*f), champ.Nom());
      user.Taper(champ, texte);
    }
    user.Cliquer(f->Cmd_OK);
  });
  EXPECT_EQ(lu({13, 138, 139, 140, 141, 142}),
            "13=STG 138=Lycée 139=L'aide \"à\" table 140=Mme Noël 141=SSIAD 142=0");
}

TEST_F(StageEtReprise, LeSeuilEstEnCentiemes) {
  const struct {
    const char *stocke, *affiche;
    std::string tape;
    const char* laisse;  // once the field is left; "" when it cannot be
    const char* ecrit;
  } cas[] = {
      {"390", "    3,90", "4.256", "    4,26", "426"},
      {"", "", "-12a,5", "   12,50", "1250"},
      {"9999999", "99999,99", "100000", "", "9999999"},  // too wide: the field is not left
      {"12345678", "123456,78", "1", "    1,00", "100"},
      {"-5", "-0,05", "0", "    0,00", "0"},
      {"douze", "douze", std::string(10000, '7'), "", "douze"},
  };
  for (const auto& c : cas) {
    contrat({{138, "a"}, {139, "b"}, {140, "c"}, {141, "d"}, {142, c.stocke}});
    const auto f = stage(droits);
    EXPECT_EQ(f->Txt_Seuil.Text(), c.affiche);
    montrer(*f, [&](screen::User& user) {
      user.Taper(f->Txt_Seuil, c.tape);
      const Acte depart = user.Cliquer(f->Cmd_OK);
      EXPECT_EQ(depart, *c.laisse == '\0' ? Acte::Avale : Acte::Fait) << c.tape;
      if (!f->Visible()) return;
      user.Taper(f->Txt_Seuil, "");
      hote.messages.Repondre(Reponse::Non);
      user.Cliquer(f->Cmd_Retour);
    });
    EXPECT_EQ(f->Txt_Seuil.Text(), c.laisse);
    EXPECT_EQ(session.ItemContrat(142), c.ecrit);
  }
}

TEST_F(StageEtReprise, RetourDuStageEcritAussiCeQuiManque) {
  const std::string question =
      "EONA Voulez-vous enregistrer les modifications apportées à ces données ?";
  for (const bool complet : {true, false}) {
    contrat({{138, "Lycée"}, {142, "390"}});
    const auto inchange = stage(droits);
    montrer(*inchange, [&](screen::User& user) { user.Cliquer(inchange->Cmd_Retour); });
    EXPECT_EQ(message(), "");
    const auto f = stage(complet ? droits : lecture);
    EXPECT_EQ(f->Cmd_OK.Visible(), complet);
    montrer(*f, [&](screen::User& user) {
      user.Taper(f->Txt_Seuil, "");
      if (complet) hote.messages.Repondre(Reponse::Oui);
      user.Cliquer(f->Cmd_Retour);
    });
    EXPECT_EQ(message(), complet ? question : "");
    EXPECT_EQ(lu(Stage), complet ? "138=Lycée" : "138=Lycée 142=390");
  }
}

TEST_F(StageEtReprise, LaRepriseRendCeQuiEstProposeOuSaisi) {
  DonneesReprise donnees;
  donnees.aidant = "Aidant : 00001 DURAND Anne";
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
      {"=", "=", true, true, false, "05/01/2020 07/01/2020 N"},
      {"", "", true, true, true, "05/01/2020 07/01/2020 O"},  // an erased date stays as proposed
      {"1-2.20", "030220", true, true, true, "01/02/2020 03/02/2020 O"},
      {"=", "1 3 2020", false, false, false, " 01/03/2020 N"},
  };
  for (const auto& c : cas) {
    donnees.avecGrille = c.avecGrille;
    donnees.congesReprenables = c.reprenables;
    Frm_Reprise f(hote.platform, session);
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

TEST_F(StageEtReprise, UneDateFausseRetientEtAnnulerRefuse) {
  Frm_Reprise f(hote.platform, session);
  f.Afficher({});
  montrer(f, [&](screen::User& user) {
    user.Cliquer(f.Cac_CpPerenne);
    for (const std::string& texte : {std::string("31x02y2026"), std::string(10000, 'z')}) {
      user.Taper(f.Txt_DebAncRecalc, texte);
      EXPECT_EQ(user.Cliquer(f.Cmd_Ok), Acte::Avale);
      EXPECT_EQ(actif(f), "Txt_DebAncRecalc");
    }
    EXPECT_EQ(f.Txt_DebAncRecalc.Text(), "//////////");
    user.Touche(f.Txt_DebAncRecalc, screen::ToucheRetour);
    EXPECT_EQ(f.Txt_DebAncRecalc.Text(), "/////////");
    user.Taper(f.Txt_DebAncRecalc, "");
    user.Cliquer(f.Cmd_Annuler);
  });
  EXPECT_TRUE(f.RepriseRefusee);
  EXPECT_EQ(f.NouvelleDateAnciennete + f.RepriseCalcul, "N");
}

}  // namespace
}  // namespace dialogs
