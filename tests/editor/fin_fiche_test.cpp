// The fields of the last tab: what is shown, computed and stored.

#include "editor/fin_essai.h"

namespace {

using essai::Acte, essai::jour, essai::valeurs;
using screen::Reponse;
namespace C = data::Contrat;

class FinFiche : public essai::Fin {
 protected:
  // All that the tab can store.
  const std::vector<int> Tout{C::DateFin,
                              C::MotifFin,
                              C::DateNotification,
                              C::DernierJourTravaille,
                              C::PrimePrecarite,
                              C::PreavisPayeDu,
                              C::PreavisPayeAu,
                              C::PreavisEffectueDu,
                              C::PreavisEffectueAu,
                              C::MotifNonVersement,
                              C::DernierBulletin,
                              C::ObservationsFin,
                              C::DateFinReelle,
                              C::ComplementMotifFin,
                              C::DateSignatureRupture,
                              C::PreavisNonEffectueDu,
                              C::PreavisNonEffectueAu,
                              C::CalculLicenciement,
                              C::OrganismeRetraite};
};

// Notified on 15/08/2026; "" for a reason without notice.
TEST_F(FinFiche, LaNotificationEtLeMotifDonnentLaFinEtLePreavis) {
  const auto anciennete = [](const char* suspension) {
    return Attributs{{C::DateAnciennete, jour("10/08/2024")},
                     {C::JoursSuspensionAnciennete, suspension}};
  };
  // The grid of the last amendment: an executive's.
  const Attributs cadre{{C::Avenant, valeurs("0|01")},
                        {C::DateEffet, valeurs(jour("01/03/2024") + "|" + jour("01/01/2026"))},
                        {C::Grille, valeurs("01A|01G")}};
  const Attributs handicape{{6, jour("01/01/2026")}, {10, "01"}, {11, jour("31/12/2026")}};
  const struct {
    const char* motif;
    Attributs contrat, infos;
    std::string fin;
  } cas[] = {
      {"Licenciement", {}, {}, "14/10/2026"},
      // A single month of seniority less than two years: from the seniority date, suspension added.
      {"Licenciement", anciennete("650"), {}, "14/09/2026"},
      {"Licenciement", anciennete("550"), {}, "14/10/2026"},
      {"Licenciement", cadre, {}, "14/12/2026"},
      {"Licenciement", {}, handicape, "14/11/2026"},
      {"Faute", {}, handicape, "14/10/2026"},
      {"Démission", {}, {}, ""},
      {"Rupture conventionnelle", {}, {}, ""},
  };
  article("GRILLESCC", "01A", {{1, "A"}, {7, "A"}});
  article("GRILLESCC", "01G", {{1, "G"}, {7, "G"}});
  for (const auto& [motif, contrat, infos, attendu] : cas) {
    article("INFOSAIDANT", "00001", infos);
    ouvrirFin(contrat);
    notifier("15/08/2026", motif);
    EXPECT_EQ(fin(),
              attendu.empty() ? ", -, " : attendu + ", payé 15/08/2026-" + attendu + ", août 2026");
    EXPECT_EQ(messages(), "") << motif;
  }
}

TEST_F(FinFiche, UneNotificationQuiNeChangePasNeCalculeRien) {
  auto negocie = Licencie();
  negocie[C::DateFin] = jour("30/09/2026");
  negocie[C::PreavisPayeAu] = jour("30/09/2026");
  ouvrirFin(negocie);
  const std::string vu = "30/09/2026, payé 15/08/2026-30/09/2026, août 2026";
  EXPECT_EQ(fin(), vu);
  for (const char* champ : {"DatNotifContrat", "DateFinContrat", "DernJrWContrat"}) {
    screen::User(*editeur).Focus(txt(champ));
    screen::User(*editeur).Quitter();
  }
  EXPECT_EQ(fin(), vu);
  remplir(txt("DatNotifContrat"), "20/08/2026");
  EXPECT_EQ(fin(), "19/10/2026, payé 20/08/2026-19/10/2026, août 2026");
}

// A contract that was opened, shown and left is as it was, whatever its end on file holds.
TEST_F(FinFiche, VisiterLOngletNeChangeRien) {
  auto douteux = Licencie();
  douteux[C::CalculLicenciement] = "";
  douteux[C::MotifFin] = "77";
  douteux[C::DernierBulletin] = "";
  douteux[C::DateFinReelle] = "demain";
  const Attributs sansNotification{{C::DateFin, jour("30/09/2026")},
                                   {C::DernierBulletin, "202609"},
                                   {C::MotifFin, "31"},
                                   {C::PrimePrecarite, "1"}};
  for (const auto& fiche : {Licencie(), douteux, sansNotification, Attributs{}}) {
    ouvrirFin(fiche);
    sortir();
  }
}

TEST_F(FinFiche, SansNotificationLaFinSurFichierComptePourLesRegles) {
  contrat("00001002", {{C::DateDebut, jour("01/10/2026")}});
  ouvrirFin({{C::DateFin, jour("30/09/2026")}, {C::DernierBulletin, "202609"}});
  EXPECT_EQ(txt("DateFinContrat").Text(), "");
  EXPECT_EQ(hote.indications.Prendre().size(), 1u);
  enregistrer();
  EXPECT_EQ(fiche()(C::DateFin), jour("30/09/2026"));
}

TEST_F(FinFiche, CeQuiEstSaisiEstEcrit) {
  ouvrirFin();
  notifier("15/08/2026", "Licenciement");
  remplir(txt("DernJrWContrat"), "20/08/2026");
  remplir(txt("FinReelle"), "31/10/2026");
  remplir(txt("NonVersContrat"), "Dispense");
  remplir(txt("ObsFinContrat(1)"), "Deuxième");
  remplir(txt("CmpltMotif"), "Économique");
  cliquer(opt("Effectue"));
  EXPECT_FALSE(txt("DebPayeContrat").Enabled());
  remplir(txt("DebEffContrat"), "16/08/2026");
  remplir(txt("FinEffContrat"), "14/10/2026");
  cliquer(cac("CalcIndLic"));
  enregistrer();
  EXPECT_EQ(stocke(Tout), jour("14/10/2026") + " 11 " + jour("15/08/2026") + " " +
                              jour("20/08/2026") + " 0   " + jour("16/08/2026") + " " +
                              jour("14/10/2026") + " Dispense 202608 " + "|Deuxième" + " " +
                              jour("31/10/2026") + " Économique    0 001A");
  EXPECT_EQ(db.OpenFile("DSNEVENEMENT").Read("00001001")(2), "1");
  // Without its notification nothing is left of the end.
  ouvrir("00001001");
  onglet(editor::FinContrat);
  remplir(txt("DatNotifContrat"), "");
  enregistrer();
  EXPECT_EQ(stocke(Tout), std::string(Tout.size() - 1, ' ') + "001A");
}

TEST_F(FinFiche, LesMotifsObsoletesNeSontOffertsQueSurFichier) {
  ouvrirFin();
  notifier("15/08/2026", "Licenciement");
  EXPECT_EQ(lignes(cbo("MotifFinContrat")), "Licenciement|Rupture conventionnelle|Faute|Démission");
  auto ancien = Licencie();
  ancien[C::MotifFin] = "60";
  ouvrirFin(ancien);
  EXPECT_EQ(cbo("MotifFinContrat").Text(), "Ancien");
  remplir(cbo("MotifFinContrat"), "Licensiement");
  EXPECT_EQ(messages(), "Le motif de fin de contrat saisi n'existe pas, veuillez le ressaisir.");
  EXPECT_EQ(cbo("MotifFinContrat").Text() + actif(), "Cbo_MotifFinContrat");
  remplir(cbo("MotifFinContrat"), "Licenciement");
  EXPECT_EQ(txt("DateFinContrat").Text(), "14/10/2026");
}

// The box of the second tab, and the line beside the reason.
TEST_F(FinFiche, LeMotifDecideDesHeuresNegatives) {
  const std::string coche = "Contrat modulé : retrait des heures négatives coché par défaut.";
  const std::string decoche = "Contrat modulé : retrait des heures négatives décoché par défaut.";
  const struct {
    const char *salaire, *statut;
    bool lisse;
    const char *motif, *surFichier, *modulation;
    bool retire;
    std::string info;
  } cas[] = {
      {"H", "P", false, "Licenciement", "", "S", true, ""},
      {"M", "P", true, "Démission", "", "S", true, coche},
      {"M", "P", true, "Licenciement", "", "C", false, decoche},
      {"M", "P", false, "Démission", "", "C", false, decoche},
      {"M", "A", true, "Démission", "", "C", false, decoche},
      // Back on the reason on file: as on file.
      {"M", "P", true, "Licenciement", "11", "C", true, decoche},
      {"M", "P", true, "Démission", "59", "S", false, coche},
  };
  for (const auto& c : cas) {
    auto fiche = Licencie();
    fiche[C::MotifFin] = c.surFichier;
    fiche[C::Salaire] = c.salaire;
    fiche[C::Statut] = c.statut;
    fiche[C::Modulation] = c.modulation;
    fiche[C::Lissage] = c.lisse ? "1" : "0";
    ouvrirFin(fiche);
    notifier("15/08/2026", c.motif);
    EXPECT_EQ(cac("RetraitHeuresNeg").Value() != 0, c.retire) << c.motif << c.salaire << c.statut;
    EXPECT_EQ(etq("InfoComplMotifFin").Libelle(), c.info);
    EXPECT_EQ(etq("InfoComplMotifFin").Visible(), !c.info.empty());
  }
}

TEST_F(FinFiche, LeDernierBulletinSeChoisitParMois) {
  const struct {
    const char *debut, *fin;
    int pas;  // steps down, then one up
    const char *bas, *haut;
  } cas[] = {
      {"01/03/2024", "14/02/2026", 9, "octobre 2025", "novembre 2025"},
      {"15/12/2025", "14/02/2026", 9, "décembre 2025", "janvier 2026"},
      {"01/02/2026", "14/02/2026", 9, "février 2026", "février 2026"},
      {"01/03/2024", "31/12/2025", 1, "novembre 2025", "décembre 2025"},
  };
  for (const auto& c : cas) {
    ouvrirFin({{C::DateDebut, jour(c.debut)}});
    notifier("14/02/2026", "Démission");
    remplir(txt("DateFinContrat"), c.fin);
    auto& spin = champ<screen::UpDown>("Bdh_Bulletin");
    screen::User user(*editeur);
    for (int i = 0; i < c.pas; ++i) user.Barre(spin, spin.Value() - 1);
    EXPECT_EQ(txt("DernBullContrat").Text(), c.bas) << c.fin;
    user.Barre(spin, spin.Value() + 1);
    EXPECT_EQ(txt("DernBullContrat").Text(), c.haut) << c.fin;
    messages();
  }
  // Another end takes the period along.
  remplir(txt("DateFinContrat"), "15/03/2026");
  EXPECT_EQ(txt("DernBullContrat").Text(), "mars 2026");
}

TEST_F(FinFiche, LesDatesNePrecedentPasLeDebut) {
  ouvrirFin(Licencie());
  const struct {
    const char *champ, *texte, *date;  // "" for what is no date, and holds the focus without a word
  } cas[] = {{"DatNotifContrat", "29/02/2024", "de notification de licenciement / démission"},
             {"DernJrWContrat", "29/02/2024", "du dernier jour travaillé"},
             {"FinReelle", "29/02/2024", "de fin réelle"},
             {"DernJrWContrat", "32/01/2026", ""},
             {"DebPayeContrat", "xx", ""}};
  for (const auto& [nom, texte, date] : cas) {
    remplir(txt(nom), texte);
    EXPECT_EQ(messages(), *date == '\0'
                              ? ""
                              : std::string("Erreur la date ") + date +
                                    " ne peut être inférieure à la date de début du contrat, "
                                    "veuillez la ressaisir.");
    EXPECT_EQ(actif(), std::string("Txt_") + nom);
    taper(txt(nom), "01/09/2026");
  }
}

TEST_F(FinFiche, UnParticulierEmployeurNADeRetraiteQueLaSienne) {
  ouvrirFin({{C::Convention, "02"}, {C::Employeur, "00007"}, {C::OrganismeRetraite, ""}});
  notifier("15/08/2026", "Démission");
  remplir(txt("DateFinContrat"), "31/08/2026");
  EXPECT_EQ(cbo("OrgRetraite").Text() + txt("OrgRetraite").Text(), "IRCEMIRCEM");
  EXPECT_FALSE(cbo("OrgRetraite").Enabled());
}

}  // namespace
