// The second tab: what it shows of a record, what it writes of the screen, its checks and handlers.

#include "editeur_essai.h"

namespace {

using essai::jour, essai::valeurs;
namespace C = essai::C;
using screen::User;

class Tab : public essai::Editeur {
 protected:
  Tab() {
    libelles("PCS", {{"52", "Agents publics"}, {"526a", "Aide-soignant"}, {"562a", "Coiffeur"}});
    article("GRILLESCC", "01A", {{1, "Grille A"}, {7, "A"}});
    article("GRILLESCC", "01B", {{1, "Grille B"}, {7, "B"}});
    article("CONVENTIONCOL", "03", {{1, "Collectif"}, {36, "VRAI"}});
  }

  // A complete contract of 35 hours a week, but for `autres`.
  static Attributs complet(Attributs autres = {}) {
    autres.merge(Attributs{{C::Coefficient, "270000"},
                           {C::DureeTravail, "3500"},
                           {C::Lissage, "0"},
                           {C::ChangementSituation, "0"}});
    return Editeur::complet(std::move(autres));
  }
  // Opens it on the second tab.
  void visiter(const Attributs& autres = {}) {
    ouvrirContrat(complet(autres));
    onglet(editor::Caracteristiques);
  }
  // The tab's fields that hold something, in a clerk's order, "<" and ">" round those disabled.
  std::string ecran(std::initializer_list<const char*> noms) {
    std::string texte;
    for (const std::string nom : noms) {
      const screen::Field& c = *editeur->Find(nom);
      std::string valeur;
      if (c.Genre() == screen::Kind::Texte) {
        valeur = static_cast<const screen::TextField&>(c).Text();
      } else if (c.Genre() == screen::Kind::Deroulante) {
        valeur = static_cast<const screen::ComboBox&>(c).Text();
      } else {
        valeur = std::to_string(static_cast<const screen::CheckBox&>(c).Value());
      }
      texte += (nom == *noms.begin() ? "" : " ") + (c.Enabled() ? valeur : "<" + valeur + ">");
    }
    return texte;
  }
  std::string grille() {
    return ecran({"Cbo_GrilleContrat", "Txt_DepartGrilContrat", "Txt_JourSusp", "Txt_DatReference",
                  "Txt_CoefNivContrat", "Txt_TauxHorContrat", "Txt_Categorie"});
  }
  // Confirms, and gives those attributes of what is stored.
  std::string confirmer(const std::vector<int>& attributs) {
    enregistrer();
    return stocke(attributs);
  }
};

TEST_F(Tab, MontreUnContrat) {
  visiter({{C::Grille, "01B"},
           {C::DepartGrille, jour("15/03/2026")},
           {C::JoursSuspensionGrille, "250"},
           {C::Coefficient, "0"},
           {C::TauxHoraire, "0"},
           {C::DateAnciennete, ""},
           {C::JoursSuspensionAnciennete, "3000"},
           {C::Commentaire1, "a"},
           {C::Commentaire2, "b"},
           {C::NormeCRC, "CRC1"},
           {C::ChangementSituation, "1"},
           {C::PopulationPrevoyance, "7"}});
  EXPECT_EQ(ecran({"Txt_AvenantContrat", "Txt_DatEffetContrat", "Cbo_QualifContrat",
                   "Txt_RegroupBudget", "Cbo_CategPCSContrat", "Txt_CodPCSContrat",
                   "Cbo_FoncPCSContrat", "Txt_DureeWContrat", "Cbo_FreqWContrat"}),
            "<0> <01/03/2026> Agent <Terrain> Services 563b Aide à domicile    35,00 Hebdo");
  // Two whole days of suspension move the date; seniority counts from the start.
  EXPECT_EQ(grille(), "Grille B 15/03/2026 2,5 <17/03/2026> <     0,000> <     0,000> <B>");
  EXPECT_EQ(
      ecran({"Txt_DateAnciennete", "Txt_JourSuspAnc", "Txt_DatReferenceAnc", "Txt_Commentaire",
             "Txt_Commentaire2", "Txt_NormCrc", "Cac_ChgtSitAdm", "Txt_CodePop"}),
      " 30 <31/03/2026> a b CRC1 1 7");
  EXPECT_EQ(etq("RangAvenant").Libelle(), "Aucun avenant");
  EXPECT_TRUE(cmd("SuiviAnnuel").Enabled());
  EXPECT_FALSE(cmd("ImpAvenant").Enabled());
}

// "0" and "" are both no suspension; a private employer has no budget group.
TEST_F(Tab, MontreCeQuiManque) {
  visiter({{C::Avenant, ""}, {C::DateEffet, ""}, {C::JoursSuspensionGrille, "0"}});
  EXPECT_EQ(ecran({"Txt_AvenantContrat", "Txt_DatEffetContrat"}), "<0> <01/03/2026>");
  EXPECT_EQ(grille(), " <> 0 <>    270,000     12,020 <>");
  visiter({{C::Convention, "02"}, {C::Employeur, "00007"}, {C::Qualification, "Hors table"}});
  EXPECT_FALSE(txt("RegroupBudget").Visible());
  EXPECT_EQ(cbo("QualifContrat").Text() + "/" + lignes(cbo("QualifContrat")),
            "Hors table/Agent|Secrétaire|Cadre");
  visiter({{C::Convention, "03"}, {C::Categorie, "K2"}});
  EXPECT_EQ(grille(), " <>  <>    270,000     12,020 K2");
}

TEST_F(Tab, VerifieDansLOrdre) {
  const Attributs sansEffet{{C::Avenant, valeurs("0|01")}, {C::DateEffet, jour("01/03/2026")}};
  const Attributs sansLissage{{C::Salaire, "M"}, {C::Lissage, "0"}};
  const struct {
    Attributs contrat;
    std::string message;
    const char* actif;  // nullptr: no matter
    const char* grille = "";
  } cas[] = {
      {sansEffet, "La date d'effet de l'avenant est obligatoire.", "Txt_DatEffetContrat"},
      {{{C::Qualification, ""}},
       "La qualification professionnelle est obligatoire.",
       "Cbo_QualifContrat"},
      {{{C::CategoriePCS, ""}}, "La catégorie P.C.S est obligatoire.", "Cbo_CategPCSContrat"},
      {{{C::FonctionPCS, ""}}, "La fonction P.C.S est obligatoire.", "Cbo_FoncPCSContrat"},
      {{{C::DureeTravail, ""}}, "La durée de travail est obligatoire.", "Txt_DureeWContrat"},
      {{{C::Frequence, ""}}, "La fréquence est obligatoire.", "Cbo_FreqWContrat"},
      {{{C::TauxHoraire, ""}}, "Le taux horaire est obligatoire.", "Txt_TauxHorContrat"},
      {sansLissage, "Le lissage des rémunérations est obligatoire.", nullptr},
      {{{C::CategoriePCS, "Agents publics"}},
       "Cette catégorie P.C.S n'existe pas.",
       "Cbo_CategPCSContrat"},
      {{{C::FonctionPCS, "Coiffeur"}}, "Cette fonction P.C.S n'existe pas.", "Cbo_FoncPCSContrat"},
      {{}, "Cette grille n'existe pas.", "Cbo_GrilleContrat", "Grille Z"},
      // What the grid decides is not asked for, nor levelling of administrative staff.
      {{{C::Grille, "01A"}, {C::TauxHoraire, "0"}}, "", ""},
      {{{C::Salaire, "M"}, {C::Statut, "A"}}, "", ""},
  };
  for (const auto& [attributs, message, focus, grilleTapee] : cas) {
    editeur.reset();
    visiter(attributs);
    if (*grilleTapee != '\0') remplir(cbo("GrilleContrat"), grilleTapee);
    onglet(editor::Origine);
    cliquer(cmd("OK"));
    EXPECT_EQ(messages(), message);
    EXPECT_EQ(editeur->Visible(), !message.empty()) << message;
    if (message.empty()) continue;
    EXPECT_EQ(editeur->Ong_Contrat.Tab(), editor::Caracteristiques) << message;
    if (focus != nullptr) {
      EXPECT_EQ(actif(), focus);
    }
  }
}

TEST_F(Tab, EcritCeQuiEstSaisi) {
  visiter();
  choisir(cbo("QualifContrat"), 1);
  EXPECT_EQ(txt("RegroupBudget").Text(), "Siège");
  remplir(txt("CodPCSContrat"), "526a");
  EXPECT_EQ(cbo("CategPCSContrat").Text() + "/" + cbo("FoncPCSContrat").Text(),
            "Agents publics/Aide-soignant");
  remplir(txt("DureeWContrat"), "151.67");
  choisir(cbo("FreqWContrat"), 2);
  remplir(txt("CoefNivContrat"), "");
  remplir(txt("TauxHorContrat"), "12,3456");
  remplir(txt("JourSusp"), "1,5");
  remplir(txt("DateAnciennete"), "1/2/26");
  remplir(txt("JourSuspAnc"), "0");
  remplir(txt("Commentaire2"), "Suite");
  cliquer(cac("ChgtSitAdm"));
  EXPECT_EQ(confirmer({C::Qualification, C::CodePCS, C::CategoriePCS, C::FonctionPCS,
                       C::DureeTravail, C::Frequence, C::Coefficient, C::TauxHoraire}),
            "Secrétaire 526a Agents publics Aide-soignant 15167 3  12346");
  EXPECT_EQ(stocke({C::JoursSuspensionGrille, C::DateAnciennete, C::JoursSuspensionAnciennete,
                    C::Commentaire1, C::Commentaire2, C::ChangementSituation}),
            "150 " + jour("01/02/2026") + " 0  Suite 1");
}

TEST_F(Tab, UneProfessionSeChoisitParCategorieOuParCode) {
  visiter();
  User(*editeur).Derouler(cbo("CategPCSContrat"));
  EXPECT_EQ(lignes(cbo("CategPCSContrat")), "Agents publics|Services");
  EXPECT_EQ(cbo("CategPCSContrat").Text(), "Services");
  User(*editeur).Derouler(cbo("FoncPCSContrat"));
  EXPECT_EQ(lignes(cbo("FoncPCSContrat")), "Aide à domicile|Coiffeur|Employé de maison");
  EXPECT_EQ(cbo("FoncPCSContrat").Text(), "Aide à domicile");
  choisir(cbo("FoncPCSContrat"), 1);
  EXPECT_EQ(txt("CodPCSContrat").Text(), "562a");
  choisir(cbo("CategPCSContrat"), 0);
  EXPECT_EQ(txt("CodPCSContrat").Text() + cbo("FoncPCSContrat").Text(), "");
  EXPECT_EQ(lignes(cbo("FoncPCSContrat")), "Aide-soignant");
  taper(txt("CodPCSContrat"), "999z");
  EXPECT_EQ(messages(), "Aucune fonction ne correspond à ce code.");
  EXPECT_EQ(txt("CodPCSContrat").Text() + actif(), "Txt_CodPCSContrat");
}

TEST_F(Tab, UneGrilleAttendUnDebut) {
  ouvrirContrat(complet());
  taper(txt("DatDebContrat"), "");
  onglet(editor::Caracteristiques);
  choisir(cbo("GrilleContrat"), 0);
  EXPECT_EQ(messages(), "Vous devez renseigner la date de début du contrat.");
  EXPECT_EQ(cbo("GrilleContrat").Text() + actif(), "Txt_DatDebContrat");
  EXPECT_EQ(editeur->Ong_Contrat.Tab(), editor::Origine);
}

// Boxes: levelling, negative hours withdrawn, positive hours paid.
TEST_F(Tab, LaModulationSeCodeEnUneLettre) {
  const struct {
    const char *avant, *coches, *apres;
  } cas[] = {
      {"1 C", "", "1 C"},
      {"1 L", "", "1 L"},
      {"1 S", "", "1 S"},
      {"1 S", "RetraitHeuresNeg", "1 C"},
      {"1 S", "PaiementHeuresPos", "1 L"},
      {"1 C", "RetraitHeuresNeg", "1 L"},
      {"1 L", "PaiementHeuresPos", "1 S"},
  };
  for (const auto& [avant, coches, apres] : cas) {
    visiter({{C::Salaire, "M"}, {C::Lissage, "1"}, {C::Modulation, avant + 2}});
    const bool retrait = avant[2] == 'C';
    EXPECT_EQ(cac("RetraitHeuresNeg").Value() != 0, retrait);
    EXPECT_EQ(cac("PaiementHeuresPos").Value() != 0, retrait || avant[2] == 'L');
    if (*coches != '\0') cliquer(cac(coches));
    EXPECT_EQ(confirmer({C::Lissage, C::Modulation}), apres) << avant << coches;
  }
  visiter({{C::Salaire, "M"}, {C::Lissage, "1"}, {C::Modulation, "C"}});
  cliquer(cac("Lissage"));
  EXPECT_EQ(ecran({"Cac_RetraitHeuresNeg", "Cac_PaiementHeuresPos"}), "<0> <0>");
  onglet(editor::Origine);
  cliquer(opt("Horaire"));
  EXPECT_EQ(confirmer({C::Lissage, C::Modulation}), "0 ");
}

// What moves along with the start is debut-et-effet.scenario's; an effect date that is missing on
// file comes with it.
TEST_F(Tab, LeDebutDonneLEffetQuiManque) {
  ouvrirContrat(complet({{C::DateEffet, ""}, {C::PeriodeTraitee, "202602"}}));
  remplir(txt("DatDebContrat"), "01/04/2026");
  EXPECT_EQ(confirmer({C::DateEffet}), jour("01/04/2026"));
}

// All that a new contract stores is nouveau-cdi.scenario's.
TEST_F(Tab, UnNouveauContratNeGardeRienDuPrecedent) {
  visiter(
      {{C::Salaire, "M"}, {C::Lissage, "1"}, {C::Modulation, "C"}, {C::ChangementSituation, "1"}});
  cliquer(cmd("OK"));
  creerContrat("01/12/2026", "01", "001", "35");
  EXPECT_EQ(ecran({"Txt_AvenantContrat", "Txt_DatEffetContrat", "Txt_CodPCSContrat",
                   "Cac_ChgtSitAdm", "Cac_Lissage"}),
            "<0> <01/12/2026> 563b 0 0");
  EXPECT_FALSE(cmd("AjoutAvenant").Visible());
  // 70 hours a week with the contract on file: refused, the creation is given up.
  hote.messages.Repondre(screen::Reponse::Non);
  cliquer(cmd("OK"));
  EXPECT_EQ(messages().substr(0, 50), "Le nombre d'heures cumulées tous contrats confond");
  EXPECT_FALSE(editeur->Visible() || editeur->Cree());
}

TEST_F(Tab, QualificationAjouteeParLEcranDesTables) {
  visiter();
  cliquer(cmd("QualifPro"));
  EXPECT_NE(messages(), "") << "the host does not have the control";
  auto& controle = hote.controles.Ajouter("Ctr_ParamTable");
  controle.Regler("W_Sortir", "1");
  hote.modales.Prevoir([this](screen::Form& f) {
    EXPECT_EQ(f.Nom(), "Frm_QualifPro");
    article("TABLES", "QUALIF", {{2, valeurs("Agent|Infirmier")}, {4, valeurs("10|20")}});
    User(f).Fermer();
  });
  cliquer(cmd("QualifPro"));
  EXPECT_EQ(controle.Lire("TheCle") + " " + controle.Lire("W_Droits"), "QUALIF DOSAIDANTCONTRAT");
  EXPECT_EQ(lignes(cbo("QualifContrat")) + "/" + cbo("QualifContrat").Text(),
            "Agent|Infirmier/Agent");
  EXPECT_EQ(txt("RegroupBudget").Text(), "Terrain");
}

}  // namespace
