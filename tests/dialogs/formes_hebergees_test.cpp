// The windows of the suite's other controls: what each is handed over, in order, and the answer by
// which it is left.

#include <memory>

#include "dialogs/frm_civil_aide.h"
#include "dialogs/frm_detail_conges_del_prev.h"
#include "dialogs/frm_periode_conges.h"
#include "dialogs/frm_qualif_pro.h"
#include "dialogs/frm_ventilation.h"
#include "essai_dialogue.h"

namespace dialogs {
namespace {

using Forme = std::unique_ptr<FormeHebergee>;

class FormesHebergees : public EssaiDialogue {};

TEST_F(FormesHebergees, CeQuElleTransmetEtCommentElleSeQuitte) {
  const struct {
    const char *controle, *sortie, *retenue, *libre;
    std::function<Forme()> faire;
    const char* transmis;
  } cas[] = {
      {"Ctr_CivilAide", "W_Occupe", "-1", "0",
       [&]() -> Forme { return std::make_unique<Frm_CivilAide>(hote.platform, "00007"); },
       "DroitsUtilisateur=W_Droits W_CodeAide=00007 TheDatabase=Db TheClient=LeClient"},
      {"Ctr_ParamTable", "W_Sortir", "0", "1",
       [&]() -> Forme { return std::make_unique<Frm_QualifPro>(hote.platform); },
       "TheClient=LeClient TheDatabase=Db TheCle=QUALIF W_Droits=DOSAIDANTCONTRAT "
       "DroitsUtilisateur=W_Droits"},
      {"Ctr_Ventilation", "W_Sortir", "0", "-1",
       [&]() -> Forme {
         return std::make_unique<Frm_Ventilation>(
             hote.platform,
             Frm_Ventilation::Decompte{"00001", "DURAND Anne", "001", "Aide du Val", "00001002"});
       },
       "TheDatabase=Db TheClient=LeClient DroitsUtilisateur=W_Droits W_CodeAidant=00001 "
       "W_NomPrenom=DURAND Anne W_CodeEmployeur=001 W_NomEmployeur=Aide du Val "
       "W_CodeContrat=00001002 W_NumMotif="},
      {"Ctr_DetailCongesDelPrev", "W_Occupe", "-1", "0",
       [&]() -> Forme {
         return std::make_unique<Frm_DetailCongesDelPrev>(
             hote.platform, Frm_DetailCongesDelPrev::Conges{"00001", "001", "001002", "202610"});
       },
       "DroitsUtilisateur=W_Droits W_CodeAidant=00001 W_CodeAssoc=001 W_CodeEmployeur=001002 "
       "W_Periode=202610 TheDatabase=Db TheClient=LeClient"},
      {"Ctr_PeriodeConges", "W_Occupe", "-1", "0",
       [&]() -> Forme { return std::make_unique<Frm_PeriodeConges>(hote.platform); },
       "TheDatabase=Db TheClient=LeClient"},
  };
  for (const auto& c : cas) {
    auto& controle = hote.controles.Ajouter(c.controle);
    std::string transmis;
    hote.modales.Prevoir([&](screen::Form& montree) {
      for (const std::string& acte : controle.Prendre()) transmis += acte + " ";
      controle.Regler(c.sortie, c.retenue);
      EXPECT_FALSE(montree.Close()) << c.controle;
      controle.Regler(c.sortie, c.libre);
      EXPECT_TRUE(montree.Close()) << c.controle;
    });
    screen::Form appelante(hote.platform, "Frm_Appelante");
    appelante.Show();
    EXPECT_TRUE(c.faire()->Ouvrir(appelante));
    EXPECT_EQ(transmis, std::string(c.transmis) + " init() ");
  }
}

}  // namespace
}  // namespace dialogs
