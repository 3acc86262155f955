#include "data/texte.h"
#include "editeur_essai.h"

namespace {

using essai::Acte, essai::jour, screen::User;

class Codes : public essai::Editeur {
 protected:
  // The three pairs as they stand: "[01 Branche][][]".
  std::string codes() {
    const auto paire = [](const screen::TextField& code, const screen::ComboBox& libelle) {
      return "[" + code.Text() + (libelle.Text().empty() ? "" : " " + libelle.Text()) + "]";
    };
    return paire(o().Txt_ConvColContrat, o().Cbo_LibConvColContrat) +
           paire(o().Txt_AssocContrat, o().Cbo_LibAssocContrat) +
           paire(o().Txt_EmplEtabContrat, o().Cbo_LibEmplEtabContrat);
  }
  // Provident contract shown, kept and offered.
  std::string prevoyance() {
    auto& paie = editeur->paie;
    return paie.Txt_PrevContrat.Text() + " " + paie.Cbo_LibPrevContrat.Text() + " | " +
           o().PrevContratPrecedent + " | " + lignes(paie.Cbo_LibPrevContrat);
  }
  void particulier() {
    creer();
    taper(o().Txt_ConvColContrat, "02");
    taper(o().Txt_AssocContrat, "001");
  }
};

// Acts: agreement, entity or employer ("c", "e", "p") with what is typed there.
TEST_F(Codes, UnCodeConnuMontreSonLibelleEtUnAutreEstRefuse) {
  const char* const convention = "Cette convention collective n'existe pas.";
  const char* const sansMandat =
      "L'entité juridique que vous avez sélectionnée n'a pas d'activité mandataire, veuillez en "
      "sélectionner une autre.";
  const struct {
    const char* actes;
    const char* codes;
    const char* message;
    const char* actif;
  } cas[] = {
      {"c01", "[01 Branche][][]", "", "Txt_AssocContrat"},
      {"c1", "[01 Branche][][]", "", "Txt_AssocContrat"},
      {"c04", "[][][]", convention, "Txt_ConvColContrat"},
      {"cé", "[][][]", convention, "Txt_ConvColContrat"},
      {"c01 e001", "[01 Branche][001 Aide du Val][001 Siège]", "", "Cbo_LibAssocContrat"},
      {"c01 e001 e0\"1", "[01 Branche][][]", "Cette entité juridique n'existe pas.",
       "Txt_AssocContrat"},
      {"c01 e002 p2", "[01 Branche][002 Bien Chez Soi][002 Est]", "", "Cbo_LibEmplEtabContrat"},
      {"c01 e002 p0021", "[01 Branche][002 Bien Chez Soi][]", "Cet établissement n'existe pas.",
       "Txt_EmplEtabContrat"},
      // A new entity, or a new agreement, drops what followed from the former.
      {"c01 e001 e002", "[01 Branche][002 Bien Chez Soi][]", "", "Cbo_LibAssocContrat"},
      {"c01 e001 c03", "[03 Collectif][][]", "", "Txt_AssocContrat"},
      {"c02 e001 p7", "[02 Particuliers][001 Aide du Val][00007 Rose MARTIN]", "",
       "Cbo_LibEmplEtabContrat"},
      {"c02 e001 p00009", "[02 Particuliers][001 Aide du Val][]", "Cet employeur n'existe pas.",
       "Txt_EmplEtabContrat"},
      {"c02 e001 p7 e002", "[02 Particuliers][][]", sansMandat, "Txt_AssocContrat"},
  };
  for (const auto& [actes, attendus, message, focus] : cas) {
    editeur.reset();
    creer();
    for (const std::string& acte : data::mots(actes)) {
      auto& champ = acte[0] == 'c'   ? o().Txt_ConvColContrat
                    : acte[0] == 'e' ? o().Txt_AssocContrat
                                     : o().Txt_EmplEtabContrat;
      taper(champ, acte.substr(1));
      // A complete code may have moved on by itself already, and a refused one keeps the focus.
      if (actif() == champ.Nom() && hote.messages.Restants() == 0) User(*editeur).Quitter();
    }
    EXPECT_EQ(codes(), attendus) << actes;
    EXPECT_EQ(messages(), message) << actes;
    EXPECT_EQ(actif(), focus) << actes;
  }
}

TEST_F(Codes, UnLibelleChoisiDonneSonCodeUnLibelleTapeNEnDonnePas) {
  creer();
  EXPECT_EQ(lignes(o().Cbo_LibConvColContrat), "Branche|Collectif|Particuliers|Public");
  EXPECT_EQ(choisir(o().Cbo_LibAssocContrat, 0), Acte::Inaccessible);
  choisir(o().Cbo_LibConvColContrat, 1);
  choisir(o().Cbo_LibAssocContrat, 1);
  choisir(o().Cbo_LibEmplEtabContrat, 0);
  EXPECT_EQ(codes(), "[03 Collectif][002 Bien Chez Soi][002 Est]");
  choisir(o().Cbo_LibAssocContrat, 0);
  EXPECT_EQ(codes(), "[03 Collectif][001 Aide du Val][001 Siège]");
  taper(o().Cbo_LibEmplEtabContrat, "Siège bis");
  EXPECT_EQ(codes(), "[03 Collectif][001 Aide du Val][ Siège bis]");
  taper(o().Cbo_LibAssocContrat, "Val");
  EXPECT_EQ(codes(), "[03 Collectif][ Val][]");
  taper(o().Cbo_LibConvColContrat, "");
  EXPECT_EQ(codes(), "[][][]");
  EXPECT_FALSE(o().Txt_AssocContrat.Enabled());
  EXPECT_EQ(messages(), "");
}

TEST_F(Codes, UneConventionDEntiteRemplitLesAutresOnglets) {
  creer();
  auto& carac = editeur->caracteristiques;
  auto& paie = editeur->paie;
  const auto remplis = [&](const char* convention) {
    taper(o().Txt_ConvColContrat, convention);
    return lignes(carac.Cbo_GrilleContrat) + " / " + prevoyance() + " / " +
           (o().Cbo_Contrepartie.Visible() ? "C" : "") + o().Cbo_Contrepartie.Text() +
           (carac.Cmd_ElemDrtPub.Visible() ? "P" : "");
  };
  EXPECT_EQ(remplis("01"), "Grille A|Grille B /   |  | Autres|Cadres / C");
  choisir(o().Cbo_Contrepartie, 1);  // it belongs to agreement "01" alone
  // The only provident contract is taken; "99" is never offered.
  EXPECT_EQ(remplis("03"), "Grille C / 20 Tous |  | Tous / ");
  EXPECT_EQ(o().Etq_EmplEtabContrat.Libelle() + carac.Txt_CodPCSContrat.Text(),
            "Etablissement563b");
  EXPECT_EQ(remplis("07"), " /   |  |  / P");

  const auto activites = [&] {
    taper(o().Txt_AssocContrat, "001");
    return lignes(paie.Cbo_Activite) + "/" + lignes(paie.Lst_ActiviteContrat) + "/" +
           lignes(paie.Lst_RepartActContrat) + "/" + lignes(editeur->fin.Cbo_OrgRetraite) + "/" +
           editeur->fin.Txt_OrgRetraite.Text();
  };
  EXPECT_EQ(activites(), "Domicile/Domicile//Retraite A|Retraite B/001A");
  db.OpenFile("ACTIVITES").DeleteItem("001MAN");
  cliquer(o().Opt_Administratif);
  EXPECT_EQ(activites(), "Domicile/Domicile/100/Retraite A|Retraite B/001A");
  db.OpenFile("ACTIVITES").DeleteItem("001DOM");
  EXPECT_EQ(activites(), "////");
  EXPECT_EQ(messages(),
            "L'entité juridique que vous avez sélectionnée ne possède que des activités "
            "mandataires, veuillez en sélectionner une autre.");
}

TEST_F(Codes, UnParticulierEmployeurChangeTouteLaFiche) {
  particulier();
  const auto& paie = editeur->paie;
  EXPECT_FALSE(o().Txt_ConvColContrat.Enabled() || paie.Cdr_RegimePrev.Enabled() ||
               paie.Txt_PrevContrat.Enabled() || editeur->fin.Cbo_OrgRetraite.Enabled());
  EXPECT_TRUE(paie.Cac_PaieSalContrat.Visible() && paie.Cac_ProvCP.Visible() &&
              editeur->conges.Txt_ProvisionCP.Visible() && o().Cmd_DetailEmpl.Visible());
  EXPECT_EQ(o().Etq_EmplEtabContrat.Libelle() + "|" +
                editeur->caracteristiques.Txt_CodPCSContrat.Text() + "|" +
                editeur->caracteristiques.Cbo_FoncPCSContrat.Text() + "|" +
                lignes(paie.Lst_ActiviteContrat) + "|" + lignes(editeur->fin.Cbo_OrgRetraite) +
                "|" + editeur->fin.Cbo_OrgRetraite.Text(),
            "Employeur|563c|Employé de maison|Mandat|IRCEM|IRCEM");
}

TEST_F(Codes, LaPrevoyanceDUnParticulierDoitEtreEnCours) {
  const struct {
    const char* code;
    const char* fin;
    const char* attendu;
  } cas[] = {{"20", "22/11/2026", "20 Employés | 20 | Employés"},
             {"20", "21/11/2026", "  |  | "},
             {"", "", "  |  | "},
             {"77", "", "  |  | "}};  // a contract that is not on file
  particulier();
  for (const auto& [code, fin, attendu] : cas) {
    article("ELTSPARTEMP", "00007", {{13, code}, {14, jour(fin)}});
    taper(o().Txt_EmplEtabContrat, "00007");
    EXPECT_EQ(prevoyance(), attendu) << code << fin;
  }
}

TEST_F(Codes, RechercheUnEmployeurParSonNom) {
  particulier();
  article("CIVILAIDE", "00010", {{2, "MARTIN"}, {3, "Parti"}, {43, "20000"}});  // no longer helped
  article("CIVILAIDE", "00011", {{2, "MARTIN"}, {3, "Aidée"}});  // no employer: no elements
  const struct {
    const char* nom;
    const char* trouves;
    const char* codes;
    const char* message;
  } cas[] = {
      {"martin", "Rose MARTIN|Luc MARTINEZ", " martin", ""},
      {"martin r", "Rose MARTIN", "00007 Rose MARTIN", ""},
      {"x\"] OR AVEC 0 = \"", "", " x\"] OR AVEC 0 = \"", ""},
      {"mar\"tinez", "Luc MARTINEZ", "00008 Luc MARTINEZ", ""},
      {"[\"", "", " [\"", "Au moins le premier caractère du nom doit être saisi."},
  };
  for (const auto& [nom, trouves, attendus, message] : cas) {
    taper(o().Cbo_LibEmplEtabContrat, "");
    o().Cbo_LibEmplEtabContrat.Clear();
    taper(o().Cbo_LibEmplEtabContrat, nom);
    User(*editeur).Touche(o().Cbo_LibEmplEtabContrat, screen::ToucheEntree);
    EXPECT_EQ(lignes(o().Cbo_LibEmplEtabContrat), trouves) << nom;
    EXPECT_EQ(codes(), std::string("[02 Particuliers][001 Aide du Val][") + attendus + "]") << nom;
    EXPECT_EQ(messages(), message) << nom;
  }
  EXPECT_TRUE(editeur->Enabled());
  EXPECT_FALSE(hote.curseur.EnAttente());
}

TEST_F(Codes, LeDetailDeLEmployeurVientDUnControleDeLaSuite) {
  particulier();
  taper(o().Txt_EmplEtabContrat, "00007");
  cliquer(o().Cmd_DetailEmpl);
  EXPECT_EQ(messages().substr(0, 52), "Le détail de l'employeur ne peut pas être affiché");
  auto& controle = hote.controles.Ajouter("Ctr_CivilAide");
  hote.modales.Prevoir([](screen::Form& forme) { User(forme).Fermer(); });
  cliquer(o().Cmd_DetailEmpl);
  EXPECT_EQ(controle.Lire("W_CodeAide"), "00007");
}

}  // namespace
