#include "dialogs/frm_rub_saisie.h"

#include "dialogs/frm_comment_bull.h"
#include "dialogs/frm_tps_indem.h"
#include "dialogs/frm_vespamoi.h"
#include "essai_dialogue.h"

namespace dialogs {
namespace {

class Rubriques : public EssaiDialogue {
 protected:
  Rubriques() { articles("Les rubriques"); }
  std::unique_ptr<Frm_RubSaisie> ouvrir(bool administratif = false, std::size_t activites = 2) {
    session.W_Droits = &droits;
    ContexteRubriques contexte{administratif, {{"001DOM", "Domicile"}, {"001GAR", "Garde"}}};
    contexte.activites.resize(activites);
    return std::make_unique<Frm_RubSaisie>(hote.platform, dossier, contexte);
  }
  // "Code Base Taux Montant Activité" of each row.
  static std::string lignes(const Frm_RubSaisie& f) {
    std::string texte;
    for (int i = 0; i < f.Lst_Code.ListCount(); ++i) {
      texte += (i > 0 ? "|" : "") + f.Lst_Code.List(i) + " " + f.Lst_Base.List(i) + " " +
               f.Lst_Taux.List(i) + " " + f.Lst_Montant.List(i) + " " + f.Lst_Activite.List(i);
    }
    return texte;
  }
};

TEST_F(Rubriques, LeGenreDitCeQuiSeSaisit) {
  for (const auto& [code, ouverts, attendues, premier] :
       support::table<4>("dialogs/dialogues.md", "Ce que le genre d'une rubrique laisse saisir")) {
    SCOPED_TRACE(code);
    const auto f = ouvrir();
    montrer(*f, [&, &c = code, &o = ouverts, &v = attendues, &p = premier](screen::User& user) {
      user.Cliquer(f->Cmd_Ajouter);
      EXPECT_EQ(actif(*f), "Txt_Code");
      user.Taper(f->Txt_Code, c);
      std::string etats, valeurs;
      for (const screen::TextField* champ : {&f->Txt_Base, &f->Txt_Taux, &f->Txt_Montant}) {
        etats += champ->Enabled() ? 'o' : 'x';
        valeurs += (champ == &f->Txt_Base ? "" : "/") + champ->Text();
      }
      EXPECT_EQ(etats + " " + valeurs, o + " " + v);
      EXPECT_EQ(actif(*f), p);
      EXPECT_FALSE(f->Cmd_Retour.Enabled());
      hote.messages.Repondre(Reponse::Oui);
      user.Cliquer(f->Cmd_Annuler);
      user.Cliquer(f->Cmd_Annuler);
    });
  }
}

TEST_F(Rubriques, LeMontantCalculeSArronditPuisSeCoupe) {
  for (const auto& [base, taux, montant] :
       support::table<3>("dialogs/dialogues.md", "Le montant d'une rubrique")) {
    EXPECT_EQ(MontantCalcule(std::stoll(base), std::stoll(taux)), std::stoll(montant));
  }
}

// What a clerk types is played by the scenario paie-rubriques; this is a line that came wrong.
TEST_F(Rubriques, UnNombreFauxResteTantQuIlNEstPasTouche) {
  contrat("89=000; 90=-1250; 91=10000; 92=x; 93=001GAR");
  const auto f = ouvrir();
  EXPECT_EQ(lignes(*f), "000 -12,50 1,0000 x Garde");
  montrer(*f, [&](screen::User& user) {
    EXPECT_EQ(user.Fermer(), Acte::Avale);
    user.Cliquer(f->Cmd_Ajouter);
    user.Taper(f->Cbo_LibRub, "Produit");
    EXPECT_EQ(f->Txt_Code.Text(), "002");
    user.Taper(f->Txt_Base, "1");
    user.Taper(f->Txt_Taux, "12,345");
    EXPECT_EQ(clic(user, f->Cmd_OK), "E L'activité est obligatoire.");
    EXPECT_EQ(actif(*f), "Cbo_Activite");
    user.Choisir(f->Cbo_Activite, 0);
    EXPECT_EQ(clic(user, f->Cmd_OK), "");
    user.DoubleCliquer(f->Lst_Taux, 0);
    user.Taper(f->Txt_Base, "7");
    user.Choisir(f->Cbo_Activite, 0);
    f->Txt_Montant.SetText("x");
    user.Cliquer(f->Cmd_OK);
    user.Cliquer(f->Cmd_OK);
  });
  EXPECT_EQ(lu({89, 90, 91, 92, 93}),
            "89=000^002 90=700^100 91=10000^123450 92=x^1235 93=001DOM^001DOM");
}

TEST_F(Rubriques, CeQuiEstFaitSeDefaitEnQuittant) {
  // Of the activities none goes with the line that is removed.
  for (const auto& [choix, apres] :
       {std::pair{Reponse::Non, "89=000^901^000 90=100^200^300 93=001DOM^001GAR^001GAR"},
        {Reponse::Oui, "89=901^000 90=200^300 93=001DOM^001GAR"}}) {
    contrat("89=000^901^000; 90=100^200^300; 93=001DOM^001GAR^001GAR");
    const auto f = ouvrir();
    montrer(*f, [&, choix = choix](screen::User& user) {
      user.DoubleCliquer(f->Lst_Code, 0);
      for (const Reponse r : {Reponse::Non, Reponse::Oui, Reponse::Annuler, choix}) {
        hote.messages.Repondre(r);
      }
      for (int i = 0; i < 2; ++i) {
        EXPECT_EQ(clic(user, f->Cmd_Supprimer),
                  "EON Etes-vous sûr de vouloir supprimer cette ligne ?");
      }
      for (int i = 0; i < 2; ++i) {
        EXPECT_TRUE(f->Visible());
        EXPECT_EQ(clic(user, f->Cmd_Retour),
                  "EONA Voulez-vous enregistrer les modifications apportées à cet article ?");
      }
    });
    EXPECT_EQ(lu({89, 90, 93}), apres);
  }
  // A heading that can no longer be chosen goes with its activity; leaving by Annuler forgets it.
  contrat("89=901^000; 90=100^200; 93=001DOM^001GAR");
  for (const bool garder : {false, true}) {
    const auto f = ouvrir();
    montrer(*f, [&](screen::User& user) {
      user.DoubleCliquer(f->Lst_Code, 0);
      EXPECT_EQ(lignes(*f), "000 2,00   Garde");
      user.Cliquer(garder ? f->Cmd_OK : f->Cmd_Annuler);
    });
    EXPECT_EQ(lu({89, 93}), garder ? "89=000 93=001GAR" : "89=901^000 93=001DOM^001GAR");
  }
}

TEST_F(Rubriques, LActiviteSuitLeContrat) {
  const struct {
    bool administratif;
    std::size_t activites;
    bool ouverte;
    const char* ecrite;
  } cas[] = {{false, 1, false, "001DOM"}, {true, 2, false, ""}, {true, 1, false, ""}};
  for (const auto& [administratif, activites, ouverte, ecrite] : cas) {
    contrat("");
    const auto f = ouvrir(administratif, activites);
    montrer(*f, [&](screen::User& user) {
      user.Cliquer(f->Cmd_Ajouter);
      EXPECT_EQ(f->Cbo_Activite.Enabled(), ouverte);
      user.Taper(f->Txt_Code, "211");
      EXPECT_EQ(clic(user, f->Cmd_OK), "");
      user.Cliquer(f->Cmd_OK);
    });
    EXPECT_EQ(dossier.ItemContrat(93), ecrite);
    EXPECT_EQ(dossier.ItemContrat(92), "1200");
  }
  // Read only: nothing to add, and nothing asked on leaving.
  session.W_Droits = &lecture;
  Frm_RubSaisie f(hote.platform, dossier, {});
  montrer(f, [&](screen::User& user) {
    EXPECT_FALSE(f.Cmd_Ajouter.Visible() || f.Cmd_OK.Visible() || f.Cmd_Supprimer.Visible());
    user.Cliquer(f.Cmd_Retour);
  });
}

class Commentaires : public EssaiDialogue {
 protected:
  Commentaires() {
    session.W_Droits = &droits;
    article("PERIODESPAIE", "1", "1=202611; 2=202612");
  }
  static std::string lignes(const Frm_CommentBull& f) {
    std::string texte;
    for (int i = 0; i < f.Lst_Periode.ListCount(); ++i) {
      texte += (i > 0 ? "|" : "") + f.Lst_Periode.List(i) + " " + f.Lst_Libelle.List(i);
    }
    return texte;
  }
};

TEST_F(Commentaires, IlsSeRangentEtSortirDemandeQuoiFaire) {
  for (const bool garder : {true, false}) {
    contrat("87=202702^202510^202608; 88=c^a^b");
    Frm_CommentBull f(hote.platform, dossier);
    EXPECT_EQ(lignes(f), "OCTOBRE 2025 a|AOÛT 2026 b|FÉVRIER 2027 c");
    montrer(f, [&](screen::User& user) {
      EXPECT_EQ(user.Fermer(), Acte::Avale);
      user.Cliquer(f.Cmd_Ajouter);
      EXPECT_EQ(clic(user, f.Cmd_OK), "E La période ainsi que le libellé sont obligatoires.");
      EXPECT_EQ(actif(f), "Cbo_Periode");
      user.Choisir(f.Cbo_Periode, 0);
      user.Taper(f.Txt_Libelle, "n");
      user.Cliquer(f.Cmd_OK);
      hote.messages.Repondre(garder ? Reponse::Oui : Reponse::Non);
      EXPECT_EQ(clic(user, f.Cmd_Sortir),
                "EONA Voulez-vous enregistrer les modifications apportées à cet article ?");
    });
    EXPECT_EQ(lu({87, 88}), garder ? "87=202510^202608^202611^202702 88=a^b^n^c"
                                   : "87=202702^202510^202608 88=c^a^b");
  }
  contrat("87=202608; 88=b");
  Frm_CommentBull f(hote.platform, dossier);
  montrer(f, [&](screen::User& user) { EXPECT_EQ(clic(user, f.Cmd_Sortir), ""); });
}

class Heberges : public EssaiDialogue {
 protected:
  // Opens the form that `faire` makes and tries to close it while its control answers `retenue`,
  // then `libre`: what the control was given up to its start.
  std::string ouvrir(const char* controle, const char* sortie, const char* retenue,
                     const char* libre,
                     const std::function<std::unique_ptr<FormeHebergee>()>& faire) {
    hote.controles = {};
    auto& c = hote.controles.Ajouter(controle);
    screen::Form appelante(hote.platform, "Frm_Appelante");
    appelante.Show();
    hote.modales.Prevoir([&](screen::Form& montree) {
      c.Regler(sortie, retenue);
      EXPECT_FALSE(montree.Close());
      c.Regler(sortie, libre);
      EXPECT_TRUE(montree.Close());
    });
    EXPECT_TRUE(faire()->Ouvrir(appelante));
    std::string texte;
    for (const auto& acte : c.Journal()) {
      texte += (texte.empty() ? "" : " ") + acte;
      if (acte == "init()") break;
    }
    return texte;
  }
};

TEST_F(Heberges, LaTelegestionRecoitSonContexte) {
  ContexteTelegestion contexte{.association = "001",
                               .employeur = "002",
                               .nomEmployeur = "MARTIN Rose",
                               .codeAidant = "00001",
                               .nomAidant = "DURAND Anne",
                               .particuliers = false,
                               .activites = {"001DOM", "001GAR"}};
  const std::string titre = "Télégestion VESPARIO : paramétrages pour l'aidant 00001 DURAND Anne";
  EXPECT_EQ(Frm_VESPAMOI(hote.platform, contexte).Titre(), titre);
  // The control has to say that it can be left.
  EXPECT_EQ(ouvrir("Ctr_Vespamoi", "W_Sortir", "0", "-1",
                   [&] { return std::make_unique<Frm_VESPAMOI>(hote.platform, contexte); }),
            "TheDatabase=Db TheClient=LeClient W_CodeAsso=001 W_CodeAide=002 W_CodeAidant=00001 "
            "W_TypeAct=P W_StrAct=001DOM001GAR init()");
  contexte.particuliers = true;
  EXPECT_EQ(Frm_VESPAMOI(hote.platform, contexte).Titre(),
            titre + " / pour l'aidé 002 MARTIN Rose");
}

TEST_F(Heberges, LIndemnisationCommenceAuPlusTot) {
  session.CodeAidant = "00001";
  session.NomPrenomAidant = "DURAND Anne";
  for (const auto& [calcul, traitee, premiere, periode] :
       support::table<4>("dialogs/dialogues.md", "La première période d'indemnisation")) {
    contrat("81=" + calcul + "; 63=" + traitee);
    if (premiere.empty()) {
      memoire.Erase("HISTORINDEM", "1000001");
    } else {
      article("HISTORINDEM", "1000001", "1=" + premiere + "^202601");
    }
    EXPECT_EQ(ouvrir("Ctr_TpsIndem", "W_Occupe", "-1", "0",
                     [&] { return std::make_unique<Frm_TpsIndem>(hote.platform, dossier, "10"); }),
              "DroitsUtilisateur=W_Droits TheDatabase=Db TheClient=LeClient W_CodeAidant=00001 "
              "W_NomPrenom=DURAND Anne W_Periode=" +
                  periode + " W_Cle=1000001 init()");
  }
}

}  // namespace
}  // namespace dialogs
