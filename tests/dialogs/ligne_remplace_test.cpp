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
  const std::string nom35 = repete("é", 35);
  const std::string absence60 = repete("à", 60);
  const struct {
    LigneRemplace faite, lue;
  } cas[] = {
      {{"00002", "MARTIN Hélène", "Maladie", "K1"}, {"00002", "MARTIN Hélène", "Maladie", "K1"}},
      {{"7", "", "", "K"}, {"7", "", "", "K"}},
      // Cut by characters, one too many on each side.
      {{"00002", nom35 + "X", absence60 + "X", "K"}, {"00002", nom35, absence60, "K"}},
  };
  for (const auto& [faite, lue] : cas) {
    const std::string ligne = FaireLigne(faite);
    EXPECT_EQ(LireLigne(ligne), lue) << ligne;
    EXPECT_EQ(data::milieu(ligne, 126), faite.cleAbsence);
    EXPECT_EQ(data::milieu(ligne, 8, 35), data::colonne(lue.nom, 35));
  }
}

TEST(LigneRemplace, UnTexteLibreEstCoupeAuxColonnes7A41) {
  // The text stands from column 8: 34 of its characters are kept.
  const std::string ligne = FaireLigneLibre(repete("è", 34) + "X");
  EXPECT_EQ(LireLigne(ligne), (LigneRemplace{"", repete("è", 34) + "X", "", ""}));
  EXPECT_EQ(TexteLibre(ligne), repete("è", 34));
  EXPECT_EQ(TexteLibre(FaireLigneLibre("  Mme X ")), "Mme X");
}

TEST(LigneRemplace, LAbsenceSeCompareDeLaColonne38) {
  const struct {
    std::string nom, absence, comparee;
  } cas[] = {
      {repete("n", 30), "Maladie", "Maladie"},
      {repete("n", 30), "", ""},
      // Columns 38 to 97 hold 52 characters of the label, and the end of a long name.
      {"n", repete("b", 53), repete("b", 52)},
      {repete("n", 30) + "M", "Maladie", "M       Maladie"},
  };
  for (const auto& [nom, absence, comparee] : cas) {
    EXPECT_EQ(AbsenceComparee(FaireLigne({"00002", nom, absence, ""})), comparee);
  }
}

}  // namespace
}  // namespace dialogs
