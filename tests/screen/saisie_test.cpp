// Typing, pasting, clicking and choosing through the user's one door.

#include <gtest/gtest.h>

#include "essai.h"

namespace screen {
namespace {

class Saisie : public testing::Test {
 protected:
  Saisie() {
    essai.Show();
    essai.Txt_Note.SetMultiligne(true);
    essai.Journal();
  }
  // Gives Txt_A its focus and its text, unnoted.
  void Poser(const char* texte) {
    essai.Txt_A.SetText(texte);
    essai.Txt_A.SetFocus();
    essai.Journal();
  }

  headless::Hote hote;
  Essai essai{hote.platform};
  User user{essai};
};

TEST_F(Saisie, ToucheParTouche) {
  const struct {
    const char* avant;
    const char* tape;
    const char* apres;
    int changements;
  } cas[] = {
      {"ancien", "ab", "ab", 2},                          // the first key replaces what stood there
      {"ancien", "", "", 1},                              // erased
      {"", "", "", 0},                                    //
      {"ancien", "xx", "ancien", 0},                      // every key refused: nothing replaced
      {"ancien", "x1x2", "12", 2},                        //
      {"", "1,5", "1.5", 3},                              // a key changed by the handler
      {"", "abcdefg", "abcde", 5},                        // five characters at most
      {"", "éèçœ€😀", "éèçœ€", 5},                         // counted as characters
      {"", "a\x1e\x1d\x1c\t\n\r\x7f\xc2\x85z", "az", 2},  // controls are never typed
      {"", "a\xff\xc3", "a", 1},                          // nor bytes that are no character
      {"0", "07", "07", 1},                               // the same text is no change
  };
  for (const auto& c : cas) {
    SCOPED_TRACE(std::string(c.avant) + " / " + c.tape);
    Poser(c.avant);
    EXPECT_EQ(user.Taper(essai.Txt_A, c.tape), Acte::Fait);
    EXPECT_EQ(essai.Txt_A.Text(), c.apres);
    std::string journal;
    for (int i = 0; i < c.changements; ++i) journal += i > 0 ? " Txt_A.Change" : "Txt_A.Change";
    EXPECT_EQ(essai.Journal(), journal);
  }
}

TEST_F(Saisie, ColleEnUneFois) {
  Poser("x");
  EXPECT_EQ(user.Coller(essai.Txt_A,
                        "é\xC3,x\x1e\r\n\x82"
                        "abcdef"),
            Acte::Fait);
  EXPECT_EQ(essai.Txt_A.Text(), "é,xab");
  EXPECT_EQ(essai.Journal(), "Txt_A.Change");
  user.Coller(essai.Txt_Note, "un\r\ndeux\ntrois");
  EXPECT_EQ(essai.Txt_Note.Text(), "un\ndeux\ntrois");
  EXPECT_EQ(user.Coller(essai.Cbo_Fixe, "un"), Acte::Inaccessible);
}

TEST_F(Saisie, Touches) {
  Poser("1é");
  user.Touche(essai.Txt_A, ToucheRetour);
  user.Touche(essai.Txt_A, U'9');
  user.Touche(essai.Txt_A, ToucheEntree);
  user.Touche(essai.Txt_A, ToucheEchap);
  EXPECT_EQ(essai.Txt_A.Text(), "19");
  EXPECT_EQ(essai.Journal(), "Txt_A.Change Txt_A.Change Entree");
  user.Taper(essai.Txt_Note, "a");
  user.Touche(essai.Txt_Note, ToucheEntree);
  EXPECT_EQ(essai.Txt_Note.Text(), "a\n");
  for (int i = 0; i < 3; ++i) user.Touche(essai.Txt_Note, ToucheRetour);
  EXPECT_EQ(essai.Txt_Note.Text(), "");
  essai.Journal();
  user.Touche(essai.Cmd_OK, ToucheEntree);
  user.Touche(essai.Cac_A, U' ');
  user.Touche(essai.Cac_A, ToucheEntree);
  EXPECT_EQ(essai.Journal(),
            "Txt_Note.LostFocus Cmd_OK.GotFocus Cmd_OK.Click Cmd_OK.LostFocus Cac_A.Click");
  EXPECT_EQ(user.Touche(essai.Etq_A, U'a'), Acte::Inaccessible);
}

// A host that edits the text itself asks what is left of a key; the text is not touched.
TEST_F(Saisie, ToucheFiltree) {
  const auto code = [](const std::string& touche) -> char32_t {
    if (touche == "Retour") return ToucheRetour;
    return touche.empty() ? 0 : static_cast<unsigned char>(touche[0]);
  };
  for (const auto& [nom, champ, touche, programme, reste, actif] :
       support::table<6>("screen/actes.md", "Une touche filtrée")) {
    SCOPED_TRACE(nom);
    const KeyHandler filtre = essai.Txt_A.KeyPress;
    if (!programme.empty()) {
      essai.Txt_A.KeyPress =
          essai.Txt_C.KeyPress = [&, &p = programme](char32_t&) { faire(essai, p); };
    }
    EXPECT_EQ(user.Filtrer(*essai.Find(champ), code(touche), ""), code(reste));
    EXPECT_EQ(essai.Actif(), actif);
    essai.Txt_A.KeyPress = essai.Txt_C.KeyPress = filtre;
  }
  EXPECT_EQ(essai.Txt_A.Text() + essai.Txt_C.Text(), "");
}

// A code field that moves on when it is full takes the rest of the keys along.
TEST_F(Saisie, LesTouchesSuiventLeFocus) {
  essai.Txt_B.SetText("b");
  essai.Sur("Txt_A.Change", [&] {
    if (essai.Txt_A.Text() == "01") essai.Txt_B.SetFocus();
  });
  EXPECT_EQ(user.Taper(essai.Txt_A, "0123"), Acte::Fait);
  EXPECT_EQ(essai.Txt_A.Text(), "01");
  EXPECT_EQ(essai.Txt_B.Text(), "b23");
}

TEST_F(Saisie, ArreteeParUnEvenement) {
  Essai dialogue(hote.platform);
  for (const char* const acte :
       {"message; focus Txt_A", "", "fermer Txt_A", "fermer Frm", "cacher Frm"}) {
    SCOPED_TRACE(acte);
    hote.modales.Prevoir([](Form& f) { f.Hide(); });
    essai.Show();
    essai.Sur("Txt_A.Change", [] {});
    Poser("");
    essai.Sur("Txt_A.Change", [&] {
      *acte == '\0' ? dialogue.ShowModal() : static_cast<void>(faire(essai, acte));
    });
    EXPECT_EQ(user.Taper(essai.Txt_A, "12"), Acte::Avale);
    EXPECT_EQ(essai.Txt_A.Text(), "1");
    essai.Txt_A.SetEnabled(true);
    essai.SetEnabled(true);
  }
}

TEST_F(Saisie, Deroulantes) {
  EXPECT_EQ(user.Choisir(essai.Cbo_Libre, 2), Acte::Fait);
  EXPECT_EQ(essai.Cbo_Libre.Text(), "trois");
  EXPECT_EQ(essai.Journal(), "Cbo_Libre.GotFocus Cbo_Libre.Click");
  EXPECT_EQ(user.Choisir(essai.Cbo_Libre, 2), Acte::Fait);
  EXPECT_EQ(essai.Journal(), "Cbo_Libre.Click");
  EXPECT_EQ(user.Taper(essai.Cbo_Libre, "t"), Acte::Fait);
  EXPECT_EQ(essai.Cbo_Libre.ListIndex(), -1);
  EXPECT_EQ(essai.Journal(), "Cbo_Libre.Change");
  essai.Sur("Cbo_Libre.DropDown", [&] { essai.Cbo_Libre.AddItem("quatre"); });
  EXPECT_EQ(user.Choisir(essai.Cbo_Libre, 3), Acte::Inaccessible);
  EXPECT_EQ(user.Derouler(essai.Cbo_Libre), Acte::Fait);
  EXPECT_EQ(user.Choisir(essai.Cbo_Libre, 3), Acte::Fait);
  EXPECT_EQ(essai.Cbo_Libre.Text(), "quatre");
  EXPECT_EQ(user.Taper(essai.Cbo_Fixe, "un"), Acte::Inaccessible);
  EXPECT_EQ(user.Touche(essai.Cbo_Fixe, U'u'), Acte::Fait);
  EXPECT_EQ(essai.Cbo_Fixe.Text(), "");
}

TEST_F(Saisie, ClicsEtLignes) {
  EXPECT_EQ(user.Cliquer(essai.Lst_A), Acte::Inaccessible);  // no row to click
  EXPECT_EQ(user.DoubleCliquer(essai.Lst_A, 1), Acte::Fait);
  EXPECT_EQ(essai.Journal(), "Lst_A.GotFocus Lst_A.Click Lst_A.DblClick");
  EXPECT_EQ(user.Cliquer(essai.Lst_A), Acte::Fait);
  EXPECT_EQ(essai.Journal(), "Lst_A.Click");
  EXPECT_EQ(user.DoubleCliquer(essai.Lst_A, 3), Acte::Inaccessible);
  essai.Sur("Lst_A.Click", [&] { essai.MessageBox("Ligne fermée."); });
  EXPECT_EQ(user.DoubleCliquer(essai.Lst_A, 0), Acte::Avale);
  for (Field* champ : std::initializer_list<Field*>{&essai.Opt_1, &essai.Cac_A}) {
    for (int clic = 1; clic <= 2; ++clic) EXPECT_EQ(user.Cliquer(*champ), Acte::Fait);
  }
  EXPECT_EQ(user.Barre(essai.Bdv_A, 99), Acte::Fait);
  EXPECT_EQ(user.Onglet(essai.Ong_A, 2), Acte::Fait);
  EXPECT_EQ(user.Onglet(essai.Ong_A, 3), Acte::Inaccessible);
  EXPECT_EQ(essai.Journal(),
            "Lst_A.Click Lst_A.LostFocus Opt_1.Click Cac_A.Click Cac_A.Click Bdv_A.Change "
            "Ong_A.Click/0");
  EXPECT_EQ(user.Cliquer(essai.Etq_A), Acte::Inaccessible);
}

// The row that was aimed at went away while the former field was being left.
TEST_F(Saisie, LigneDisparueEnArrivant) {
  user.Focus(essai.Txt_A);
  essai.Sur("Txt_A.LostFocus", [&] { essai.Lst_A.Clear(); });
  essai.Journal();
  EXPECT_EQ(user.Choisir(essai.Lst_A, 1), Acte::Avale);
  EXPECT_EQ(essai.Journal(), "Txt_A.LostFocus Lst_A.GotFocus");
}

}  // namespace
}  // namespace screen
