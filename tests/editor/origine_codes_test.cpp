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
    return paire(txt("ConvColContrat"), cbo("LibConvColContrat")) +
           paire(txt("AssocContrat"), cbo("LibAssocContrat")) +
           paire(txt("EmplEtabContrat"), cbo("LibEmplEtabContrat"));
  }
  // Provident contract shown and offered.
  std::string prevoyance() {
    return txt("PrevContrat").Text() + " " + cbo("LibPrevContrat").Text() + " | " +
           lignes(cbo("LibPrevContrat"));
  }
  void particulier() {
    creer();
    taper(txt("ConvColContrat"), "02");
    taper(txt("AssocContrat"), "001");
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
      // A private employer does not hang on the entity that is typed.
      {"c02 e001 p7 e002", "[02 Particuliers][][00007 Rose MARTIN]", sansMandat,
       "Txt_AssocContrat"},
  };
  for (const auto& [actes, attendus, message, focus] : cas) {
    editeur.reset();
    creer();
    for (const std::string& acte : data::mots(actes)) {
      auto& champ = acte[0] == 'c'   ? txt("ConvColContrat")
                    : acte[0] == 'e' ? txt("AssocContrat")
                                     : txt("EmplEtabContrat");
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
  EXPECT_EQ(lignes(cbo("LibConvColContrat")), "Branche|Collectif|Particuliers|Public");
  EXPECT_EQ(choisir(cbo("LibAssocContrat"), 0), Acte::Inaccessible);
  choisir(cbo("LibConvColContrat"), 1);
  choisir(cbo("LibAssocContrat"), 1);
  choisir(cbo("LibEmplEtabContrat"), 0);
  EXPECT_EQ(codes(), "[03 Collectif][002 Bien Chez Soi][002 Est]");
  choisir(cbo("LibAssocContrat"), 0);
  EXPECT_EQ(codes(), "[03 Collectif][001 Aide du Val][001 Siège]");
  taper(cbo("LibEmplEtabContrat"), "Siège bis");
  EXPECT_EQ(codes(), "[03 Collectif][001 Aide du Val][ Siège bis]");
  taper(cbo("LibAssocContrat"), "Val");
  EXPECT_EQ(codes(), "[03 Collectif][ Val][]");
  taper(cbo("LibConvColContrat"), "");
  EXPECT_EQ(codes(), "[][][]");
  EXPECT_FALSE(txt("AssocContrat").Enabled());
  choisir(cbo("LibConvColContrat"), 2);
  choisir(cbo("LibAssocContrat"), 0);
  taper(txt("EmplEtabContrat"), "00007");
  choisir(cbo("LibAssocContrat"), 0);  // the same one
  EXPECT_EQ(codes(), "[02 Particuliers][001 Aide du Val][00007 Rose MARTIN]");
  article("ACTIVITES", "002MAN", {{1, "Mandat"}, {12, "M"}});
  choisir(cbo("LibAssocContrat"), 1);
  EXPECT_EQ(codes(), "[02 Particuliers][002 Bien Chez Soi][]");
  EXPECT_EQ(messages(), "");
}

TEST_F(Codes, UneConventionDEntiteRemplitLesAutresOnglets) {
  creer();
  const auto remplis = [&](const char* convention) {
    taper(txt("ConvColContrat"), convention);
    return lignes(cbo("GrilleContrat")) + " / " + prevoyance() + " / " +
           (cbo("Contrepartie").Visible() ? "C" : "") + cbo("Contrepartie").Text() +
           (cmd("ElemDrtPub").Visible() ? "P" : "");
  };
  EXPECT_EQ(remplis("01"), "Grille A|Grille B /   | Autres|Cadres / C");
  choisir(cbo("Contrepartie"), 1);  // it belongs to agreement "01" alone
  // The only provident contract is taken; "99" is never offered.
  EXPECT_EQ(remplis("03"), "Grille C / 20 Tous | Tous / ");
  EXPECT_EQ(etq("EmplEtabContrat").Libelle() + txt("CodPCSContrat").Text(), "Etablissement563b");
  EXPECT_EQ(remplis("07"), " /   |  / P");

  const auto activites = [&] {
    taper(txt("AssocContrat"), "001");
    return lignes(cbo("Activite")) + "/" + lignes(lst("ActiviteContrat")) + "/" +
           lignes(lst("RepartActContrat")) + "/" + lignes(cbo("OrgRetraite")) + "/" +
           txt("OrgRetraite").Text();
  };
  EXPECT_EQ(activites(), "Domicile/Domicile//Retraite A|Retraite B/001A");
  db.OpenFile("ACTIVITES").DeleteItem("001MAN");
  cliquer(opt("Administratif"));
  EXPECT_EQ(activites(), "Domicile/Domicile/100/Retraite A|Retraite B/001A");
  db.OpenFile("ACTIVITES").DeleteItem("001DOM");
  EXPECT_EQ(activites(), "////");
  EXPECT_EQ(messages(),
            "L'entité juridique que vous avez sélectionnée ne possède que des activités "
            "mandataires, veuillez en sélectionner une autre.");
}

TEST_F(Codes, UnParticulierEmployeurChangeTouteLaFiche) {
  particulier();
  EXPECT_FALSE(txt("ConvColContrat").Enabled() || cdr("RegimePrev").Enabled() ||
               txt("PrevContrat").Enabled() || cbo("OrgRetraite").Enabled());
  EXPECT_TRUE(cac("PaieSalContrat").Visible() && cac("ProvCP").Visible() &&
              txt("ProvisionCP").Visible() && cmd("DetailEmpl").Visible());
  EXPECT_EQ(etq("EmplEtabContrat").Libelle() + "|" + txt("CodPCSContrat").Text() + "|" +
                cbo("FoncPCSContrat").Text() + "|" + lignes(lst("ActiviteContrat")) + "|" +
                lignes(cbo("OrgRetraite")) + "|" + cbo("OrgRetraite").Text(),
            "Employeur|563c|Employé de maison|Mandat|IRCEM|IRCEM");
}

TEST_F(Codes, LaPrevoyanceDUnParticulierDoitEtreEnCours) {
  const struct {
    const char* code;
    const char* fin;
    const char* attendu;
  } cas[] = {{"20", "22/11/2026", "20 Employés | Employés"},
             {"20", "21/11/2026", "  | "},
             {"", "", "  | "},
             {"77", "", "  | "}};  // a contract that is not on file
  particulier();
  for (const auto& [code, fin, attendu] : cas) {
    article("ELTSPARTEMP", "00007", {{13, code}, {14, jour(fin)}});
    taper(txt("EmplEtabContrat"), "00007");
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
    taper(cbo("LibEmplEtabContrat"), "");
    cbo("LibEmplEtabContrat").Clear();
    taper(cbo("LibEmplEtabContrat"), nom);
    User(*editeur).Touche(cbo("LibEmplEtabContrat"), screen::ToucheEntree);
    EXPECT_EQ(lignes(cbo("LibEmplEtabContrat")), trouves) << nom;
    EXPECT_EQ(codes(), std::string("[02 Particuliers][001 Aide du Val][") + attendus + "]") << nom;
    EXPECT_EQ(messages(), message) << nom;
  }
  EXPECT_TRUE(editeur->Enabled());
  EXPECT_FALSE(hote.curseur.EnAttente());
}

TEST_F(Codes, LeDetailDeLEmployeurVientDUnControleDeLaSuite) {
  particulier();
  taper(txt("EmplEtabContrat"), "00007");
  cliquer(cmd("DetailEmpl"));
  EXPECT_EQ(messages().substr(0, 52), "Le détail de l'employeur ne peut pas être affiché");
  auto& controle = hote.controles.Ajouter("Ctr_CivilAide");
  hote.modales.Prevoir([](screen::Form& forme) { User(forme).Fermer(); });
  cliquer(cmd("DetailEmpl"));
  EXPECT_EQ(controle.Lire("W_CodeAide"), "00007");
}

}  // namespace
