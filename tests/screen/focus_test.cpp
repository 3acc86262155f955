// Leaving a field: what runs, in which order, and who has the focus afterwards.

#include <gtest/gtest.h>

#include "essai.h"

namespace screen {
namespace {

TEST(Focus, QuitterUnChamp) {
  const std::map<std::string, Acte> actes{
      {"fait", Acte::Fait}, {"avalé", Acte::Avale}, {"inaccessible", Acte::Inaccessible}};
  for (const auto& [nom, auDepart, acte, rendu, journal, actif] :
       support::table<6>("screen/actes.md", "Quitter un champ")) {
    SCOPED_TRACE(nom);
    headless::Hote hote;
    Essai essai(hote.platform);
    essai.Show();
    User(essai).Focus(essai.Txt_A);
    essai.Journal();
    essai.Sur("Txt_A.LostFocus", [&essai, &a = auDepart] { faire(essai, a); });
    EXPECT_EQ(faire(essai, acte), actes.at(rendu));
    EXPECT_EQ(essai.Journal(), journal);
    EXPECT_EQ(essai.Actif(), actif);
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
