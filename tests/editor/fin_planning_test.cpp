// A contract that is ended or shortened, and the planning that follows it.

#include "dialogs/frm_anomalies_ajoutgraph.h"
#include "editor/fin_essai.h"

namespace {

using essai::jour;
using screen::Reponse;
namespace C = data::Contrat;
using Rapport = dialogs::Frm_AnomaliesAjoutgraph;

class FinPlanning : public essai::Fin {
 protected:
  FinPlanning() { session.OptionCompteur999 = true; }
  // Two interventions beyond the end of 30/09/2026: one that began in August, one of October.
  void planifier() {
    for (const auto& [debut, j] : {std::pair{"01/08/2026", "0"}, {"01/10/2026", "1"}}) {
      article("TPSDETAILSINTERV", "0000100007" + jour(debut) + "001DOM" + j + "0830",
              {{2, "1030"}});
    }
    article("TPSPARAM", "1", {{19, "1"}, {20, "2"}});
  }
  // An end on 31/12/2026 that was typed before, moved to 30/09/2026.
  void raccourcir(const char* type) {
    planifier();
    auto fiche = Licencie();
    fiche[C::Type] = type;
    fiche[C::MotifEmbauche] = "01";
    fiche[C::DateFinPresumee] = std::string(type) == "D" ? jour("31/12/2026") : "";
    fiche[C::MotifFin] = "59";
    fiche[C::PreavisPayeDu] = fiche[C::PreavisPayeAu] = "";
    fiche[C::DateFin] = fiche[C::DernierJourTravaille] = jour("31/12/2026");
    fiche[C::Activites] = "001DOM";
    ouvrirFin(fiche);
    remplir(txt("DateFinContrat"), "30/09/2026");
    remplir(txt("DernJrWContrat"), "30/09/2026");
  }
  // The button that the user of the report presses; its text is kept.
  void repondre(const char* bouton) {
    rapport.clear();
    hote.modales.Prevoir([this, bouton](screen::Form& form) {
      auto& f = dynamic_cast<Rapport&>(form);
      rapport = f.Text1.Text();
      screen::User(f).Cliquer(*f.Find(bouton));
    });
  }
  // Last days of the two interventions, "-" for none, and the mark of work without contract.
  std::string planning() {
    std::string texte;
    for (const auto& [debut, j] : {std::pair{"01/08/2026", "0"}, {"01/10/2026", "1"}}) {
      data::CItem i;
      const bool la = db.OpenFile("TPSDETAILSINTERV")
                          .Lire("0000100007" + jour(debut) + "001DOM" + j + "0830", i);
      texte += (la ? session.Lib.DateFromInternal(i(1)) : "-") + "/";
    }
    return texte + (existe("TPSSANSCONTRAT", "00001001") ? "sans" : "");
  }
  std::string finStockee() { return session.Lib.DateFromInternal(fiche()(C::DateFin)); }

  std::string rapport;
};

TEST_F(FinPlanning, ChaqueReponseDuRapport) {
  const struct {
    const char *type, *bouton, *planning, *fin;
  } cas[] = {{"I", "Cmd_Ok", "30/09/2026/-/", "30/09/2026"},
             {"I", "Cmd_Annuler", "//", "31/12/2026"},
             {"D", "Cmd_Ok", "30/09/2026//", "30/09/2026"},
             {"D", "Cmd_Annuler", "//", "31/12/2026"},
             {"D", "Cmd_Non", "//sans", "30/09/2026"}};
  for (const auto& [type, bouton, attendu, fin] : cas) {
    for (const bool ok : {true, false}) {
      db.OpenFile("TPSSANSCONTRAT").DeleteItem("00001001");
      raccourcir(type);
      repondre(bouton);
      confirmer(ok);
      messages();
      EXPECT_EQ(planning(), attendu) << type << bouton << ok;
      EXPECT_EQ(finStockee(), fin) << type << bouton << ok;
      EXPECT_EQ(editeur->Visible(), std::string(bouton) == "Cmd_Annuler");
      EXPECT_TRUE(editeur->Enabled() && !hote.curseur.EnAttente());
      EXPECT_NE(rapport.find("\r\n\r\nLa modification du contrat aura les incidences"),
                std::string::npos);
      EXPECT_NE(rapport.find(*type == 'I' ? "Sera supprimée." : "Sera sans contrat."),
                std::string::npos);
      hote.messages = {};
    }
  }
}

// A new contract that does not frame what is planned: the user stays, or goes on.
TEST_F(FinPlanning, UneCreationDitCeQuElleNEncadrePas) {
  planifier();
  creerContrat("01/09/2026");
  repondre("Cmd_Annuler");
  cliquer(cmd("OK"));
  EXPECT_TRUE(editeur->Visible() && editeur->Enabled());
  EXPECT_EQ(cle(), "");
  EXPECT_NE(rapport.find("à partir du 01/08/2026"), std::string::npos);
  EXPECT_EQ(rapport.find("à partir du 01/10/2026"), std::string::npos);
  repondre("Cmd_Ok");
  cliquer(cmd("OK"));
  EXPECT_EQ(cle(), "00001002");
  EXPECT_EQ(planning(), "//");
}

// A fault in the middle is told with what was done, and saving again does the rest.
TEST_F(FinPlanning, UnePanneAuMilieuDitCeQuiEstFait) {
  raccourcir("I");
  repondre("Cmd_Ok");
  stockage->EchouerEcriture(2);
  EXPECT_THROW(cliquer(cmd("OK")), data::StoreError);
  EXPECT_TRUE(
      messages().starts_with("La mise à jour du planning a été interrompue : 1 "
                             "intervention(s) sur 2 "));
  EXPECT_EQ(planning() + finStockee(), "30/09/2026//31/12/2026");
  EXPECT_TRUE(editeur->Visible() && editeur->Enabled());
  stockage->EchouerEcriture(0);
  repondre("Cmd_Ok");
  cliquer(cmd("OK"));
  EXPECT_EQ(planning() + finStockee(), "30/09/2026/-/30/09/2026");
}

// Ended for the first time: nothing is shortened, but what lies beyond is told.
TEST_F(FinPlanning, UnePremiereFinDitCeQuiDepasse) {
  planifier();
  for (const char* bouton : {"Cmd_Annuler", "Cmd_Ok"}) {
    ouvrirFin({{C::Activites, "001DOM"}});
    notifier("30/09/2026", "Démission");
    remplir(txt("DateFinContrat"), "30/09/2026");
    remplir(txt("DernJrWContrat"), "30/09/2026");
    repondre(bouton);
    cliquer(cmd("OK"));
    EXPECT_TRUE(rapport.starts_with("Des interventions du planning sont en dehors des dates"));
    EXPECT_EQ(planning(), "//");
    EXPECT_EQ(finStockee(), std::string(bouton) == "Cmd_Ok" ? "30/09/2026" : "");
  }
  // Without the planning module nothing is asked.
  session.OptionCompteur999 = false;
  raccourcir("I");
  cliquer(cmd("OK"));
  EXPECT_EQ(planning() + finStockee(), "//30/09/2026");
}

}  // namespace
