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
    contrat(
        "121=40^40; 122=011^012; 123=0123010007^0456020008; 124=001^002; 125=30^20; 126=367^390; "
        "127=340^361; 128=1000^1250; 135=Agent^Rédacteur; 136=C1^C2");
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
  contrat("1=07");
  const auto vide = ouvrir(2);
  EXPECT_EQ(vu(*vide), "///////////");
  EXPECT_FALSE(vide->Cbo_CodeStaJur.Enabled() || vide->Etq_CodeCatSta.Enabled());
}

// The refusals in their order and what is written then: scenario droit-public, which also chooses
// the agents without tenure.
TEST_F(DroitPublic, LaPopulationDecideDesListes) {
  deuxJeux();
  const auto f = ouvrir(1);
  EXPECT_EQ(lignes(f->Cbo_CodePopEmp),
            "40 - Fonctionnaire ou ouvrier d'état|43 - Agent de droit public non fonctionnaire|");
  const struct {
    int choix;
    const char *categories, *choisis;
  } cas[] = {{1, "10 - A+|11 - A|20 - B|30 - C|90 - Non concerné", "030 - Non titulaire/10 - A+"},
             {0, "10 - A+|11 - A|20 - B|30 - C", "011 - Titulaire/10 - A+"},
             {2, "", "/"}};
  montrer(*f, [&](screen::User& user) {
    EXPECT_EQ(user.Fermer(), Acte::Avale);
    for (const auto& [choix, categories, choisis] : cas) {
      user.Choisir(f->Cbo_CodePopEmp, choix);
      EXPECT_EQ(lignes(f->Cbo_CodeCatSta), categories);
      EXPECT_EQ(f->Cbo_CodeStaJur.Text() + "/" + f->Cbo_CodeCatSta.Text(), choisis);
      EXPECT_EQ(f->Cbo_CodeStaJur.Accessible(), *categories != '\0');
    }
    EXPECT_EQ(user.Taper(f->Cbo_CodePopEmp, "43"), Acte::Inaccessible);
    user.Cliquer(f->Cmd_Ok);
  });
  // Nothing selected takes the codes away, in its own amendment alone.
  EXPECT_EQ(lu({121, 122, 125}), "121=^40 122=^012 125=^20");
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
  contrat("121=41; 122=999; 123=01; 125=77; 126=12; 128=x");
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
