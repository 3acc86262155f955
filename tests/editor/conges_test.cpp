// The leave counters, and the contracts between which leave passes.

#include "editor/editeur_essai.h"

namespace {

using essai::Acte, essai::jour, essai::valeurs;
using screen::Reponse;
namespace C = data::Contrat;

class Conges : public essai::Editeur {
 protected:
  // 30 days acquired and 12,5 left, 2 and 1 for fractioning, 15 being acquired, 3 and 2 of
  // seniority, 2 and 1 of notice-period leave.
  static Attributs Compteurs() {
    return {{C::CPAcquis, "3000"},          {C::CPRestants, "1250"},
            {C::FractionnementAcquis, "2"}, {C::FractionnementRestants, "100"},
            {C::ValeurJourHeures, "500"},   {C::ValeurJourMontant, "6505"},
            {C::CPEnCoursJours, "1500"},    {C::CPEnCoursHeures, "7500"},
            {C::CPEnCoursMontant, "97500"}, {C::AncienneteAcquis, "3"},
            {C::AncienneteRestants, "200"}, {C::JoursAnticipation, "0"},
            {C::DelaiPrevAcquis, "2"},      {C::DelaiPrevRestants, "100"}};
  }
  void ouvrirConges(Attributs autres = {}) {
    autres.merge(Compteurs());
    ouvrirContrat(complet(autres));
    onglet(editor::DroitsConges);
  }
};

TEST_F(Conges, LesCompteursSontAffichesEtUneVisiteNeChangeRien) {
  ouvrirConges({{C::PeriodeTraitee, "202610"}});
  std::string affiches;
  for (const char* champ :
       {"CPConsoAcqContrat", "CPRestConsoContrat", "CFConsoAcqContrat", "CFRestConsoContrat",
        "JrOuvrHContrat", "JrOuvreHContrat", "JrOuvreMContrat", "CPCoursJContrat",
        "CPCoursHContrat", "CPCoursMContrat", "CAncAcqContrat", "CAncRestContrat", "CDPAcquis",
        "CDPRestants"}) {
    affiches += txt(champ).Text() + " ";
  }
  EXPECT_EQ(affiches, "30,00 12,50 2 1,00 5,00 6,00 78,06 15 75,00 975,00 3 2,00 2 1,00 ");
  EXPECT_EQ(etq("PeriodeConges").Libelle(), "OCTOBRE 2026");
  const Attributs douteux{{C::CPAcquis, ""}, {C::CPEnCoursJours, "1250"}, {C::CPRestants, "x"}};
  for (const auto& autres : {Attributs{}, douteux}) {
    ouvrirConges(autres);
    sortir();
  }
}

TEST_F(Conges, UnCompteurVideEstZero) {
  ouvrirConges({{C::CPEnCoursHeures, ""}});
  remplir(txt("CPRestConsoContrat"), "");
  EXPECT_EQ(txt("CPRestConsoContrat").Text(), "0,00");
  taper(txt("CAncAcqContrat"), "4");
  enregistrer();
  EXPECT_EQ(fiche()(C::CPRestants) + fiche()(C::CPEnCoursHeures) + fiche()(C::AncienneteAcquis),
            "004");
  creer();
  taper(txt("ConvColContrat"), "01");
  taper(txt("AssocContrat"), "002");
  taper(txt("EmplEtabContrat"), "001");
  remplir(txt("DatDebContrat"), "01/12/2026");
  caracteriser();
  payer();
  onglet(editor::ElementsPaie);
  choisir(cbo("Activite"), 0);
  enregistrer();
  EXPECT_EQ(fiche(cle())(C::CPAcquis) + fiche(cle())(C::DelaiPrevRestants), "00");
}

TEST_F(Conges, LesLibellesSuiventLeDecompte) {
  const struct {
    const char *convention, *statut, *cp, *anciennete, *delai;
    const char* libelles;  // paid, seniority, notice-period: E for ouvrés, A for ouvrables
    bool avecDelai;
  } cas[] = {
      {"01", "P", "1", "2", "", "EAE", true},   {"01", "P", "2", "1", "", "AEA", true},
      {"01", "P", "2", "2", "1", "AAE", true},  {"01", "P", "1", "1", "2", "EEA", true},
      {"01", "A", "2", "2", "2", "EEA", false}, {"02", "P", "2", "2", "1", "AAE", false},
  };
  for (const auto& c : cas) {
    article("CONVENTIONCOL", c.convention,
            {{1, "Branche"}, {2, c.cp}, {12, c.anciennete}, {76, c.delai}});
    ouvrirConges({{C::Convention, c.convention},
                  {C::Employeur, std::string(c.convention) == "02" ? "00007" : "001001"},
                  {C::Statut, c.statut}});
    std::string vus;
    for (const char* nom : {"JO", "CA", "CDP"}) {
      const std::string acquis = etq(std::string(nom) + "Acquis").Libelle();
      const std::string mode = acquis.substr(0, acquis.size() - 7);
      EXPECT_EQ(etq(std::string(nom) + "Restants").Libelle(), mode + " restants");
      vus += mode == "Jours ouvrés" ? "E" : mode == "Jours ouvrables" ? "A" : "?";
    }
    EXPECT_EQ(vus, c.libelles) << c.convention << c.statut;
    EXPECT_EQ(cdr("DelaiPrev").Enabled(), c.avecDelai);
    EXPECT_EQ(txt("CDPRestants").Text(), c.avecDelai ? "1,00" : "0");
  }
}

TEST_F(Conges, EnQuittantUnCompteur) {
  const std::string fin =
      " ne peut être qu'un nombre de jours entier ou un nombre de demi-journées.";
  const struct {
    const char *champ, *texte;
    std::string message;
    const char* revient;  // the field that takes the focus, empty
  } cas[] = {
      {"CPConsoAcqContrat", "2,25", "acquis" + fin, "CPConsoAcqContrat"},
      {"CPConsoAcqContrat", "2,5", "", ""},
      {"CPRestConsoContrat", "-2,25", "restants" + fin, "CPRestConsoContrat"},
      {"CPRestConsoContrat", "-2,5", "", ""},
      {"CFRestConsoContrat", "0,75", "restants" + fin, "CFRestConsoContrat"},
      {"CAncRestContrat", "1,1", "en cours d'acquisition" + fin, "CAncRestContrat"},
      {"CDPRestants", "1,1", "en cours d'acquisition" + fin, "CAncRestContrat"},
      {"JourAnticipation", "1,1", "pris par anticipation" + fin, "JourAnticipation"},
      {"JourAnticipation", "15,5", "", ""},
      {"JourAnticipation", "16",
       "pris par anticipation ne peut être supérieur au nombre de jours de "
       "congès en cours d'acquisition.",
       "JourAnticipation"},
      {"JrOuvrMContrat", "7,77", "", ""},
  };
  for (const auto& [nom, texte, message, revient] : cas) {
    ouvrirConges();
    remplir(txt(nom), texte);
    EXPECT_EQ(messages(), message.empty() ? "" : "Le nombre de jours " + message) << nom;
    if (*revient == '\0') continue;
    EXPECT_EQ(actif(), std::string("Txt_") + revient) << nom;
    EXPECT_EQ(txt(revient).Text(), "") << nom;
  }
}

TEST_F(Conges, ChaqueVerificationARaisonDunSeulDefaut) {
  const std::string debut = "Le nombre de jours pour congés ";
  const std::string entier = " doit être un entier.";
  const std::string reste = " restants doit être inférieur au nombre de jours acquis.";
  const struct {
    const char *champ, *texte;
    std::string message;
  } cas[] = {
      {"CFConsoAcqContrat", "2,5", debut + "pour fractionnement acquis" + entier},
      {"CPCoursJContrat", "15,5", debut + "payés en-cours" + entier},
      {"CAncAcqContrat", "3,5", debut + "d'ancienneté acquis" + entier},
      {"CPRestConsoContrat", "-15,5",
       debut + "payés pris par avance doit être inférieur au nombre de jours en cours "
               "d'acquisition."},
      {"CPRestConsoContrat", "-15", ""},
      {"CPRestConsoContrat", "30,5", debut + "payés" + reste},
      {"CPRestConsoContrat", "30", ""},
      {"CFRestConsoContrat", "2,5", debut + "pour fractionnement" + reste},
      {"CAncRestContrat", "3,5", debut + "d'ancienneté" + reste},
      {"CDPAcquis", "2,5", debut + "délai prévenance acquis" + entier},
      {"CDPRestants", "2,5", debut + "délai prévenance" + reste},
  };
  for (const auto& [champ, texte, message] : cas) {
    ouvrirConges();
    remplir(txt(champ), texte);
    EXPECT_EQ(messages(), "");
    cliquer(cmd("OK"));
    EXPECT_EQ(messages(), message);
    if (!message.empty()) {
      EXPECT_EQ(actif(), std::string("Txt_") + champ);
    }
  }
  // Quarters of a day come from the file alone: the boxes do not take them.
  const std::tuple<int, const char*, const char*> quarts[] = {
      {C::CPRestants, "225", "payés acquis"},
      {C::FractionnementRestants, "125", "pour fractionnement acquis"},
      {C::AncienneteRestants, "175", "d'ancienneté en-cours"}};
  for (const auto& [attribut, valeur, conges] : quarts) {
    ouvrirConges({{attribut, valeur}});
    refuse(std::string("Le nombre de jours restants pour congés ") + conges +
           " doit être un entier ou une demi-journée.");
  }
}

// The two windows of other components: what is handed to each in its order, and when it may close.
TEST_F(Conges, LesDetailsDesAutresEcrans) {
  const struct {
    const char *bouton, *controle, *propriete, *retenue, *libre;
    std::string contexte;
  } cas[] = {
      {"Conges", "Ctr_Ventilation", "W_Sortir", "0", "-1",
       "TheDatabase=Db|TheClient=LeClient|DroitsUtilisateur=W_Droits|W_CodeAidant=00001|"
       "W_NomPrenom=DURAND Anne|W_CodeEmployeur=001|W_NomEmployeur=Aide du Val|"
       "W_CodeContrat=00001001|W_NumMotif=|init()|"},
      {"Detail", "Ctr_DetailCongesDelPrev", "W_Occupe", "-1", "0",
       "DroitsUtilisateur=W_Droits|W_CodeAidant=00001|W_CodeAssoc=001|W_CodeEmployeur=001|"
       "W_Periode=202610|TheDatabase=Db|TheClient=LeClient|init()|"},
  };
  for (const auto& c : cas) {
    ouvrirConges({{C::PeriodeTraitee, "202610"}});
    cliquer(cmd(c.bouton));
    EXPECT_NE(messages().find("n'est pas installé sur ce poste"), std::string::npos);
    auto& controle = hote.controles.Ajouter(c.controle);
    hote.modales.Prevoir([&](screen::Form& form) {
      screen::User clerc(form);
      controle.Regler(c.propriete, c.retenue);
      EXPECT_EQ(clerc.Fermer(), Acte::Avale) << c.bouton;
      controle.Regler(c.propriete, c.libre);
      EXPECT_EQ(clerc.Fermer(), Acte::Fait) << c.bouton;
    });
    cliquer(cmd(c.bouton));
    std::string journal;
    for (const auto& ligne : controle.Journal()) journal += ligne + "|";
    EXPECT_TRUE(journal.starts_with(c.contexte) && rendu()) << journal;
  }
  creer();
  EXPECT_FALSE(cmd("Conges").Enabled() || cmd("Detail").Enabled());
}

// A fixed term 001 whose leave is carried onto the open-ended 002, which has been paid with it.
class Lien : public Conges {
 protected:
  void lier(const char* rubrique = "843") {
    contrat("00001001", complet({{C::Type, "D"},
                                 {C::DateDebut, jour("01/01/2026")},
                                 {C::DateFin, jour("30/06/2026")},
                                 {C::DateFinPresumee, jour("30/06/2026")},
                                 {C::MotifEmbauche, "01"},
                                 {C::MotifFin, "59"},
                                 {C::DateNotification, jour("20/06/2026")},
                                 {C::DernierJourTravaille, jour("30/06/2026")},
                                 {C::DernierBulletin, "202606"},
                                 {C::OrganismeRetraite, "001A"},
                                 {C::CongesReportesSur, "00001002"}}));
    contrat("00001002", complet({{C::DateDebut, jour("01/07/2026")},
                                 {C::Activites, "001DOM"},
                                 {C::DernierCalcul, "202607"},
                                 {C::CongesReprisDe, "00001001"}}));
    article("DETAILPREST", "00001002202607", {{5, valeurs(std::string("100|") + rubrique)}});
    data::CItem motifs = db.OpenFile("TABLES").NewItem("FINCONTRAT");
    motifs.Set(2, 1, "59");
    motifs.Set(3, 1, "Démission");
    motifs.DBWrite();
  }
  void ouvrirLien(const std::string& cle) {
    ouvrir(cle);
    onglet(editor::DroitsConges);
  }
  std::string liens() {
    return fiche("00001001")(C::CongesReportesSur) + "/" + fiche("00001002")(C::CongesReprisDe);
  }
};

// The roads are conges-lien.scenario's. A box that is taken back leaves nothing to save.
TEST_F(Lien, UneBoiteRepriseNEnregistreRien) {
  for (const auto& [cle, boite] :
       {std::pair{"00001001", "ReportConges"}, std::pair{"00001002", "RepriseConges"}}) {
    lier();
    ouvrirLien(cle);
    EXPECT_TRUE(cac(boite).Visible() && cac(boite).Value() != 0 && !etq(boite).Visible());
    cliquer(cac(boite));
    quitter(Reponse::Annuler);
    messages();
    cliquer(cac(boite));
    sortir();
  }
}

TEST_F(Lien, NeSeDefaitPlusUneFoisPaye) {
  lier("101");
  ouvrirLien("00001001");
  EXPECT_FALSE(cac("ReportConges").Visible());
  EXPECT_TRUE(etq("ReportConges").Visible());
  EXPECT_TRUE(etq("ReportConges").Libelle().starts_with("Droits aux congés reportés"));
  cliquer(cmd("OK"));
  EXPECT_EQ(liens(), "00001002/00001001");
  // To a contract that is not there: no word, and nothing to save.
  memoire.Erase("CONTRAT", "00001002");
  ouvrirLien("00001001");
  EXPECT_FALSE(cac("ReportConges").Visible() || etq("ReportConges").Visible());
  sortir();
}

// The last payslip moves onto the period of the linked contract's, which has none.
TEST_F(Lien, LeDernierBulletinLeRompt) {
  lier();
  data::CItem suivant = fiche("00001002");
  suivant.Set(C::DernierBulletin, "202605");
  suivant.DBWrite();
  ouvrir("00001001");
  onglet(editor::FinContrat);
  auto& spin = champ<screen::UpDown>("Bdh_Bulletin");
  screen::User(*editeur).Barre(spin, -1);
  const auto apres = [&] { return messages() + " " + liens(); };
  const std::string dit =
      "Suite au changement de la période du dernier bulletin, il n'est plus possible de reportés "
      "les congés sur le contrat débutant le 01/07/2026.\r\nVérifiez l'état d'avancement des "
      "bulletins de ces contrats.";
  // A store that refuses a write leaves both sides, or none; trying again ends the same.
  for (int n = 1; n <= 2; ++n) {
    stockage->EchouerEcriture(n);
    EXPECT_THROW(cliquer(cmd("OK")), data::StoreError) << n;
    EXPECT_EQ(apres(), " 00001002/00001001") << n;
  }
  stockage->EchouerEcriture(0);
  cliquer(cmd("OK"));
  EXPECT_EQ(apres(), dit + " /");
}

}  // namespace
