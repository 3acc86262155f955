#include "dialogs/ligne_remplace.h"

#include <gtest/gtest.h>

#include "data/texte.h"

namespace dialogs {
namespace {

std::string repete(const char* texte, int n) {
  std::string resultat;
  while (n-- > 0) resultat += texte;
  return resultat;
}

TEST(LigneRemplace, VaEtVientDansSesColonnes) {
  const std::string nom = repete("é", 35), absence = repete("à", 60);
  const struct {
    LigneRemplace faite, lue;
    std::string comparee;  // columns 38 to 97, where the label begins with its column 46
  } cas[] = {
      {{"00002", "MARTIN Hélène", "Maladie", "K1"},
       {"00002", "MARTIN Hélène", "Maladie", "K1"},
       "Maladie"},
      {{"7", "", "", "K"}, {"7", "", "", "K"}, ""},
      // Cut by characters, one too many on each side; the compared columns hold a name's end.
      {{"00002", nom + "X", absence + "X", "K"},
       {"00002", nom, absence, "K"},
       repete("é", 5) + "   " + repete("à", 52)},
  };
  for (const auto& [faite, lue, comparee] : cas) {
    const std::string ligne = FaireLigne(faite);
    EXPECT_EQ(LireLigne(ligne), lue) << ligne;
    EXPECT_EQ(data::milieu(ligne, 126), faite.cleAbsence);
    EXPECT_EQ(AbsenceComparee(ligne), comparee);
  }
}

// The text stands from column 8 and ends with column 41.
TEST(LigneRemplace, UnTexteLibreGarde34Caracteres) {
  EXPECT_EQ(TexteLibre(FaireLigneLibre(repete("è", 34) + "X")), repete("è", 34));
  EXPECT_EQ(TexteLibre(FaireLigneLibre("  Mme X ")), "Mme X");
}

}  // namespace
}  // namespace dialogs
