// Leaving a field: what runs, in which order, and who has the focus afterwards.

#include <gtest/gtest.h>

#include "essai.h"

namespace screen {
namespace {

// Each case starts with the focus in Txt_A; the program of `auDepart` is its LostFocus.
struct Cas {
  const char* nom;
  std::function<void(Essai&)> auDepart;
  std::function<Acte(Essai&)> acte;
  Acte attendu;
  const char* journal;
  const char* actif;
};

const auto rien = [](Essai&) {};
const auto garder = [](Essai& e) { e.Txt_A.SetFocus(); };
const auto cliquerOk = [](Essai& e) { return User(e).Cliquer(e.Cmd_OK); };
const auto quitter = [](Essai& e) { return User(e).Quitter(); };

const Cas tous[] = {
    {"clic", rien, cliquerOk, Acte::Fait, "Txt_A.LostFocus Cmd_OK.GotFocus Cmd_OK.Click", "Cmd_OK"},
    {"clic refusé", garder, cliquerOk, Acte::Avale, "Txt_A.LostFocus", "Txt_A"},
    {"le dernier envoi compte", [](Essai& e) { e.Txt_C.SetFocus(), e.Txt_B.SetFocus(); }, cliquerOk,
     Acte::Avale, "Txt_A.LostFocus Txt_B.GotFocus", "Txt_B"},
    {"envoi puis retour à l'acte", [](Essai& e) { e.Txt_C.SetFocus(), e.Cmd_OK.SetFocus(); },
     cliquerOk, Acte::Fait, "Txt_A.LostFocus Cmd_OK.GotFocus Cmd_OK.Click", "Cmd_OK"},
    {"envoi vers un champ fermé", [](Essai& e) { e.Txt_C.SetEnabled(false), e.Txt_C.SetFocus(); },
     cliquerOk, Acte::Fait, "Txt_A.LostFocus Cmd_OK.GotFocus Cmd_OK.Click", "Cmd_OK"},
    {"arrivée désactivée", [](Essai& e) { e.Cmd_OK.SetEnabled(false); }, cliquerOk, Acte::Avale,
     "Txt_A.LostFocus", "Txt_A"},
    {"arrivée dans un cadre fermé", [](Essai& e) { e.Cdr_A.SetEnabled(false); },
     [](Essai& e) { return User(e).Cliquer(e.Opt_1); }, Acte::Avale, "Txt_A.LostFocus", "Txt_A"},
    {"départ désactivé en partant", [](Essai& e) { e.Txt_A.SetEnabled(false); }, cliquerOk,
     Acte::Fait, "Txt_A.LostFocus Cmd_OK.GotFocus Cmd_OK.Click", "Cmd_OK"},
    {"écran caché en partant", [](Essai& e) { e.Hide(); }, cliquerOk, Acte::Avale,
     "Txt_A.LostFocus", "-"},
    {"écran désactivé en partant", [](Essai& e) { e.SetEnabled(false); }, cliquerOk, Acte::Avale,
     "Txt_A.LostFocus Cmd_OK.GotFocus", "Cmd_OK"},
    {"tabulation", rien, quitter, Acte::Fait, "Txt_A.LostFocus Txt_B.GotFocus", "Txt_B"},
    {"tabulation par-dessus", rien,
     [](Essai& e) {
       e.Txt_B.SetEnabled(false);
       e.Txt_C.SetVisible(false);
       return User(e).Quitter();
     },
     Acte::Fait, "Txt_A.LostFocus Txt_Note.GotFocus", "Txt_Note"},
    {"barre et menu laissent le focus", garder,
     [](Essai& e) {
       User(e).Barre(e.Bdv_A, 3);
       return User(e).Cliquer(e.Mnu_A);
     },
     Acte::Fait, "Bdv_A.Change Mnu_A.Click", "Txt_A"},
    {"acte sur un champ fermé", rien,
     [](Essai& e) { return e.Cdr_A.SetVisible(false), User(e).Cliquer(e.Opt_1); },
     Acte::Inaccessible, "", "Txt_A"},
    {"déplacement par un clic", rien,
     [](Essai& e) {
       e.Sur("Cmd_OK.Click", [&e] { e.Txt_C.SetFocus(); });
       return User(e).Cliquer(e.Cmd_OK);
     },
     Acte::Fait, "Txt_A.LostFocus Cmd_OK.GotFocus Cmd_OK.Click Cmd_OK.LostFocus Txt_C.GotFocus",
     "Txt_C"},
    {"refus pendant un long travail", rien,
     [](Essai& e) {
       e.SetEnabled(false);
       e.Txt_C.SetFocus();
       e.SetEnabled(true);
       return Acte::Fait;
     },
     Acte::Fait, "Txt_A.LostFocus Txt_C.GotFocus", "Txt_C"},
    {"dernier champ vers le premier", rien,
     [](Essai& e) { return e.Cmd_OK.SetFocus(), e.Journal(), User(e).Quitter(); }, Acte::Fait,
     "Cmd_OK.LostFocus Txt_A.GotFocus", "Txt_A"},
};

TEST(Focus, QuitterUnChamp) {
  for (const Cas& cas : tous) {
    SCOPED_TRACE(cas.nom);
    headless::Hote hote;
    Essai essai(hote.platform);
    essai.Show();
    User(essai).Focus(essai.Txt_A);
    essai.Journal();
    essai.Sur("Txt_A.LostFocus", [&] { cas.auDepart(essai); });
    EXPECT_EQ(cas.acte(essai), cas.attendu);
    EXPECT_EQ(essai.Journal(), cas.journal);
    EXPECT_EQ(essai.Actif(), cas.actif);
  }
}

TEST(Focus, CadreFermeAutourDuChampActif) {
  headless::Hote hote;
  Essai essai(hote.platform);
  essai.Show();
  User(essai).Focus(essai.Opt_2);
  essai.Cdr_A.SetEnabled(false);
  EXPECT_EQ(essai.Actif(), "-");
  EXPECT_EQ(User(essai).Quitter(), Acte::Fait);
  EXPECT_EQ(essai.Actif(), "Txt_A");
}

TEST(Focus, AvantDeMontrerNeDeclencheRien) {
  headless::Hote hote;
  Essai essai(hote.platform);
  essai.Txt_A.SetFocus();
  essai.Txt_B.SetFocus();
  EXPECT_EQ(User(essai).Cliquer(essai.Cmd_OK), Acte::Inaccessible);
  EXPECT_EQ(essai.Journal(), "");
  essai.Show();
  EXPECT_EQ(User(essai).Cliquer(essai.Cmd_OK), Acte::Fait);
  EXPECT_EQ(essai.Journal(), "Activate Txt_B.LostFocus Cmd_OK.GotFocus Cmd_OK.Click");
}

// A handler that fails leaves no move under way behind.
TEST(Focus, ErreurEnPartant) {
  headless::Hote hote;
  Essai essai(hote.platform);
  essai.Show();
  User(essai).Focus(essai.Txt_A);
  essai.Sur("Txt_A.LostFocus", [] { throw std::runtime_error("panne"); });
  EXPECT_THROW(User(essai).Cliquer(essai.Cmd_OK), std::runtime_error);
  essai.Sur("Txt_A.LostFocus", [] {});
  EXPECT_EQ(User(essai).Cliquer(essai.Cmd_OK), Acte::Fait);
  EXPECT_EQ(essai.Actif(), "Cmd_OK");
}

}  // namespace
}  // namespace screen
