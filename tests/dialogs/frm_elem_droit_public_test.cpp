#include "dialogs/frm_elem_droit_public.h"

#include "essai_dialogue.h"

namespace dialogs {
namespace {

class DroitPublic : public EssaiDialogue {
 protected:
  std::unique_ptr<Frm_ElemDroitPublic> ouvrir(int rang) {
    session.W_Droits = &droits;
    return std::make_unique<Frm_ElemDroitPublic>(hote.platform, dossier, rang);
  }
  const std::vector<int> Tout{121, 122, 123, 124, 125, 126, 127, 128, 135, 136};
  // Two amendments of a tenured agent.
  void deuxJeux() {
    contrat({{121, "40^40"},
             {122, "011^012"},
             {123, "0123010007^0456020008"},
             {124, "001^002"},
             {125, "30^20"},
             {126, "367^390"},
             {127, "340^361"},
             {128, "1000^1250"},
             {135, "Agent^Rédacteur"},
             {136, "C1^C2"}});
  }
  static std::string lignes(const screen::ComboBox& liste) {
    std::string texte;
    for (const auto& ligne : liste.Rows()) texte += (texte.empty() ? "" : "|") + ligne;
    return texte;
  }
  // All that is shown, parted by "/".
  static std::string vu(const Frm_ElemDroitPublic& f) {
    std::string texte = f.Cbo_CodePopEmp.Text().substr(0, 2) + "/" +
                        f.Cbo_CodeStaJur.Text().substr(0, 3) + "/" +
                        f.Cbo_CodeCatSta.Text().substr(0, 2);
    for (const screen::TextField* champ :
         {&f.Txt_CodeCorps, &f.Txt_CodeGrade, &f.Txt_CodeEmploi, &f.Txt_CodeEche, &f.Txt_IndBrut,
          &f.Txt_IndMaj, &f.Txt_NbPtsNBI, &f.Txt_Grade, &f.Txt_Echelle}) {
      texte += "/" + champ->Text();
    }
    return texte;
  }
};

TEST_F(DroitPublic, MontreLeJeuDeSonAvenantOuLePrecedent) {
  deuxJeux();
  const char* const second = "40/012/20/0456/02/0008/002/390/361/12,50/Rédacteur/C2";
  EXPECT_EQ(ouvrir(2)->Cbo_CodeStaJur.ListIndex(), 1);
  EXPECT_EQ(ouvrir(2)->Cbo_CodePopEmp.ListIndex(), 0);
  EXPECT_EQ(vu(*ouvrir(1)), "40/011/30/0123/01/0007/001/367/340/10,00/Agent/C1");
  EXPECT_EQ(vu(*ouvrir(2)), second);
  EXPECT_EQ(vu(*ouvrir(3)), second);
  contrat({{1, "07"}});
  const auto vide = ouvrir(2);
  EXPECT_EQ(vu(*vide), "///////////");
  EXPECT_FALSE(vide->Cbo_CodeStaJur.Enabled() || vide->Etq_CodeCatSta.Enabled());
}

TEST_F(DroitPublic, LaPopulationDecideDesListes) {
  deuxJeux();
  const auto f = ouvrir(1);
  EXPECT_EQ(lignes(f->Cbo_CodePopEmp),
            "40 - Fonctionnaire ou ouvrier d'état|43 - Agent de droit public non fonctionnaire|");
  const struct {
    int choix;
    const char *statuts, *categories, *choisis;
  } cas[] = {
      {1,
       "030 - Non titulaire|054 - Non titulaire sur emploi particulier|060 - Emploi aidé de "
       "droit public",
       "10 - A+|11 - A|20 - B|30 - C|90 - Non concerné", "030 - Non titulaire/10 - A+"},
      {0, "011 - Titulaire|012 - Stagiaire", "10 - A+|11 - A|20 - B|30 - C",
       "011 - Titulaire/10 - A+"},
      {2, "", "", "/"},
  };
  montrer(*f, [&](screen::User& user) {
    for (const auto& [choix, statuts, categories, choisis] : cas) {
      user.Choisir(f->Cbo_CodePopEmp, choix);
      EXPECT_EQ(lignes(f->Cbo_CodeStaJur), statuts);
      EXPECT_EQ(lignes(f->Cbo_CodeCatSta), categories);
      EXPECT_EQ(f->Cbo_CodeStaJur.Text() + "/" + f->Cbo_CodeCatSta.Text(), choisis);
      EXPECT_EQ(f->Cbo_CodeStaJur.Accessible(), *statuts != '\0');
    }
    EXPECT_EQ(user.Taper(f->Cbo_CodePopEmp, "43"), Acte::Inaccessible);
    user.Cliquer(f->Cmd_Ok);
  });
  // Nothing selected takes the codes away, in its own amendment alone.
  EXPECT_EQ(lu({121, 122, 125}), "121=^40 122=^012 125=^20");
}

TEST_F(DroitPublic, RefuseDansLOrdre) {
  const struct {
    const char *champ, *texte, *refus;
  } cas[] = {
      {"Txt_CodeCorps", "012", "E Le code corps doit être sur 4 caractères."},
      {"Txt_CodeGrade", "0", "E Le code grade doit être sur 2 caractères."},
      {"Txt_CodeEmploi", "7", "E Le code emploi doit être sur 4 caractères."},
      {"Txt_CodeEche", "12", "E Le code échelon doit être sur 3 caractères."},
      {"Txt_IndBrut", "99", "E L'indice brut doit être compris entre 100 et 2500"},
      {"Txt_IndBrut", "2501", "E L'indice brut doit être compris entre 100 et 2500"},
      {"Txt_IndMaj", "2501", "E L'indice majoré doit être compris entre 100 et 2500"},
      {"Txt_NbPtsNBI", "800,01",
       "E Le nombre mensuel de points N.B.I. doit être inférieur ou égal à 800,00"},
  };
  for (const auto& [champ, texte, refus] : cas) {
    deuxJeux();
    const auto f = ouvrir(2);
    const std::string avant = lu(Tout);
    montrer(*f, [&, &nom = champ, &saisie = texte, &attendu = refus](screen::User& user) {
      user.Taper(*f->Find(nom), saisie);
      EXPECT_EQ(clic(user, f->Cmd_Ok), attendu);
      EXPECT_EQ(actif(*f), nom);
      user.Cliquer(f->Cmd_Annuler);
    });
    EXPECT_EQ(lu(Tout), avant) << texte;
  }
}

TEST_F(DroitPublic, EcritSonJeu) {
  deuxJeux();
  const auto f = ouvrir(2);
  montrer(*f, [&](screen::User& user) {
    EXPECT_EQ(user.Fermer(), Acte::Avale);
    user.Choisir(f->Cbo_CodePopEmp, 1);
    user.Choisir(f->Cbo_CodeCatSta, 4);
    user.Taper(f->Txt_CodeCorps, "A-é12b");  // letters and digits alone
    user.Taper(f->Txt_CodeGrade, "");
    user.Taper(f->Txt_CodeEmploi, "");
    user.Taper(f->Txt_IndBrut, "2a500");
    user.Taper(f->Txt_IndMaj, "100");
    user.Taper(f->Txt_Echelle, "");
    user.Taper(f->Txt_NbPtsNBI, "800");
    user.Touche(f->Txt_NbPtsNBI, screen::ToucheEntree);
    EXPECT_FALSE(f->Visible()) << "Enter confirms";
  });
  EXPECT_EQ(message(), "");
  EXPECT_EQ(lu(Tout),
            "121=40^43 122=011^030 123=0123010007^A12b000000 124=001^002 125=30^90 126=367^2500 "
            "127=340^100 128=1000^80000 135=Agent^Rédacteur 136=C1");
}

TEST_F(DroitPublic, RetourDemandeCeQuiAChange) {
  for (const bool change : {false, true}) {
    deuxJeux();
    const auto f = ouvrir(2);
    montrer(*f, [&](screen::User& user) {
      user.Taper(f->Txt_CodeEche, change ? "003" : "002");
      if (change) hote.messages.Repondre(Reponse::Non);
      EXPECT_EQ(clic(user, f->Cmd_Retour),
                change ? "QON Souhaitez-vous valider les modifications ?" : "");
    });
    EXPECT_EQ(lu({124}), "124=001^002");
  }
}

// Codes that the tables do not know, and points that are no number, stay until they are changed.
TEST_F(DroitPublic, CeQuiEstInconnuResteTelQuel) {
  contrat({{121, "41"}, {122, "999"}, {123, "01"}, {125, "77"}, {126, "12"}, {128, "x"}});
  const std::string avant = lu(Tout);
  const auto f = ouvrir(1);
  montrer(*f, [&](screen::User& user) {
    EXPECT_EQ(clic(user, f->Cmd_Ok), "E Le code corps doit être sur 4 caractères.");
    user.Taper(f->Txt_CodeCorps, "01");
    user.Taper(f->Txt_NbPtsNBI, "1");
    user.Coller(f->Txt_NbPtsNBI, "abc");
    user.Focus(f->Txt_Grade);
    EXPECT_EQ(message(), "E Erreur dans la saisie.");
    EXPECT_EQ(actif(*f), "Txt_NbPtsNBI");
    user.Cliquer(f->Cmd_Annuler);
    user.Coller(f->Txt_NbPtsNBI, "");
    user.Cliquer(f->Cmd_Annuler);
  });
  EXPECT_EQ(lu(Tout), avant);
}

}  // namespace
}  // namespace dialogs
