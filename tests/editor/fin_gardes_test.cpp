// What keeps a contract from being deleted or from ending, and the deletion.

#include "editor/fin_essai.h"

namespace {

using essai::jour, essai::valeurs;
using screen::Reponse;
namespace C = data::Contrat;

class FinGardes : public essai::Fin {
 protected:
  // Linked contracts on both sides; the contract in hand ends on the day on which it starts.
  void ouvrirASupprimer() {
    contrat("00001003", {{C::DateDebut, jour("01/01/2020")},
                         {C::DateFin, jour("31/12/2020")},
                         {C::CongesReportesSur, "00001001"}});
    article("DSNEVENEMENT", "00001001", {{2, "1"}});
    ouvrirFin({{C::CongesReprisDe, "00001003"}, {C::Activites, "001DOM"}});
    notifier("01/03/2024", "Démission");
    remplir(txt("DateFinContrat"), "02/03/2024");
    EXPECT_FALSE(cmd("SupprimerContrat").Visible());
    remplir(txt("DateFinContrat"), "01/03/2024");
    EXPECT_TRUE(cmd("SupprimerContrat").Visible());
  }
  std::string supprimer() {
    hote.messages.Repondre(Reponse::Oui);
    cliquer(cmd("SupprimerContrat"));
    return messages();
  }
  std::string etat() {
    const bool declare = existe("DSNEVENEMENT", "00001001");
    const auto supprime = fiche();
    return supprime(C::Annule) + "/" + supprime(C::CongesReprisDe) + "/" +
           fiche("00001003")(C::CongesReportesSur) + (declare ? "/declare" : "/");
  }
  const std::string Intact = "/00001003/00001001/declare";
  const std::string Question = "Etes-vous sûr de vouloir supprimer ce contrat ?";
};

// The refusals of payroll, of an opposition and of indirect work, and the answer No, are
// supprimer.scenario's.
TEST_F(FinGardes, LePlanningRefuseLaSuppressionOuNeComptePas) {
  session.OptionCompteur999 = true;
  article("TPSDETAILSINTERV", "000010000821500001DOM00830", {{2, "1000"}});
  ouvrirASupprimer();
  EXPECT_EQ(supprimer(),
            Question +
                "|Impossible de supprimer ce contrat car des interventions ont été saisies dans le "
                "menu Planning.\r\n");
  EXPECT_EQ(etat(), Intact);
  EXPECT_TRUE(rendu() && !cmd("SupprimerContrat").Visible());
  // Without the planning, its records count for nothing.
  session.OptionCompteur999 = false;
  ouvrirASupprimer();
  EXPECT_EQ(supprimer(), Question + "|Le contrat 00001001 a été supprimé.");
  EXPECT_FALSE(editeur->Visible());
  EXPECT_EQ(etat(), "O///");
}

// Deleted as a whole or not at all, whichever write the store refuses.
TEST_F(FinGardes, UneSuppressionInterrompueNaRienSupprime) {
  for (int n = 1; n <= 3; ++n) {
    stockage->EchouerEcriture(0);
    ouvrirASupprimer();
    stockage->EchouerEcriture(n);
    hote.messages.Repondre(Reponse::Oui);
    EXPECT_THROW(cliquer(cmd("SupprimerContrat")), data::StoreError) << n;
    EXPECT_EQ(etat(), Intact) << n;
    EXPECT_EQ(messages(), Question);
    EXPECT_TRUE(rendu());
    stockage->EchouerEcriture(0);
    EXPECT_EQ(supprimer(), Question + "|Le contrat 00001001 a été supprimé.");
    EXPECT_EQ(etat(), "O///") << n;
  }
}

TEST_F(FinGardes, UneFinNePrecedePasLaPaieSurLesDeuxChemins) {
  const std::string refus =
      "Date de fin du contrat non compatible car des traitements ont été effectués après "
      "celle-ci.";
  const struct {
    const char* mois;
    int pas;  // steps down of the last payslip
    bool refuse;
  } cas[] = {{"202609", 0, true}, {"202608", 0, false}, {"202608", 1, true}, {"202607", 1, false}};
  for (const auto& [mois, pas, refuse] : cas) {
    for (const bool ok : {true, false}) {
      article("DETAILCALCUL", std::string("00001001") + mois, {{1, "F"}});
      ouvrirFin();
      notifier("15/08/2026", "Démission");
      remplir(txt("DateFinContrat"), "31/08/2026");
      remplir(txt("DernJrWContrat"), "31/08/2026");
      if (pas > 0) screen::User(*editeur).Barre(champ<screen::UpDown>("Bdh_Bulletin"), -pas);
      confirmer(ok);
      EXPECT_EQ(messages().ends_with(refus), refuse) << mois << pas << ok;
      EXPECT_EQ(editeur->Visible(), refuse);
      EXPECT_EQ(fiche()(C::DateFin), refuse ? "" : jour("31/08/2026"));
      db.OpenFile("DETAILCALCUL").DeleteItem(std::string("00001001") + mois);
      hote.messages = {};
    }
  }
}

// A shortened contract with its planning, its missions and its declaration: whichever write fails,
// the screen stays the user's, and saving again ends in the records of a save without a fault.
TEST_F(FinGardes, UneFinInterrompuePuisReprise) {
  session.OptionCompteur999 = true;
  const std::string intervention = "0000100007" + jour("01/08/2026") + "001DOM00830";
  const auto preparer = [&] {
    stockage->EchouerEcriture(0);
    article("MISSIONSAIDANT", "00001", {{3, ""}, {13, "001"}});
    article("TPSDETAILSINTERV", intervention, {{2, "1030"}});
    for (const char* fichier : {"DSNEVENEMENT", "ACTUSUIVICONTRAT"}) {
      db.OpenFile(fichier).DeleteItem(fichier[0] == 'D' ? "00001001" : "00001");
    }
    auto fiche = Licencie();
    fiche[C::Activites] = "001DOM";
    fiche[C::MotifFin] = "59";
    ouvrirFin(fiche);
    remplir(txt("DateFinContrat"), "13/10/2026");
    remplir(txt("FinPayeContrat"), "13/10/2026");
    remplir(txt("DernJrWContrat"), "14/08/2026");
  };
  const auto enregistrer = [&] {
    hote.modales.Prevoir(
        [](screen::Form& form) { screen::User(form).Cliquer(*form.Find("Cmd_Ok")); });
    cliquer(cmd("OK"));
  };
  preparer();
  stockage->EchouerEcriture(0);
  enregistrer();
  const int ecritures = stockage->Ecritures();
  const std::string attendu = tout();
  ASSERT_EQ(ecritures, 5);  // planning, event, contract, follow-up, missions
  for (int n = 1; n <= ecritures; ++n) {
    preparer();
    stockage->EchouerEcriture(n);
    EXPECT_THROW(enregistrer(), data::StoreError) << n;
    EXPECT_TRUE(rendu()) << n;
    EXPECT_EQ(fiche()(C::DateFin), jour(n <= 3 ? "14/10/2026" : "13/10/2026"));
    stockage->EchouerEcriture(0);
    hote.modales = {};
    // What the planning had to lose is gone: no report the second time.
    n == 1 ? enregistrer() : static_cast<void>(cliquer(cmd("OK")));
    EXPECT_EQ(tout(), attendu) << n;
    EXPECT_FALSE(editeur->Visible()) << n;
    messages();
  }
}

// The end that the overlap rules see is the screen's own.
TEST_F(FinGardes, UneFinNeChevauchePasUnAutreContrat) {
  for (const bool ok : {true, false}) {
    contrat("00001002", {{C::DateDebut, jour("01/11/2026")}});
    ouvrirFin(Licencie());
    remplir(txt("DateFinContrat"), "01/11/2026");
    confirmer(ok);
    EXPECT_NE(messages().find("2 contrats ont "), std::string::npos) << ok;
    EXPECT_EQ(fiche()(C::DateFin), jour("14/10/2026"));
    EXPECT_EQ(txt("DernBullContrat").Text(), ok ? "novembre 2026" : "");
    // The notification emptied: no end any more.
    remplir(txt("DatNotifContrat"), "");
    confirmer(ok);
    EXPECT_NE(messages().find(ok ? "se chevauchent" : "se retrouvent sans date de fin"),
              std::string::npos);
    hote.messages = {};
  }
}

}  // namespace
