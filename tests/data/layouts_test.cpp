// The attribute numbers are a file format, and key shapes decide what a check of a data file
// reports.

#include "data/layouts/contrat.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <string>
#include <vector>

#include "data/layouts/fichiers.h"
#include "data/texte.h"
#include "support/table.h"

namespace {

namespace C = data::Contrat;

template <std::size_t N>
std::string numeros(const int (&groupe)[N], bool enOrdre = false) {
  std::vector<int> copie(groupe, groupe + N);
  if (!enOrdre) std::sort(copie.begin(), copie.end());
  std::string texte;
  for (const int numero : copie) texte += std::to_string(numero) + " ";
  return texte;
}

TEST(Contrat, GroupesDAttributsParalleles) {
  EXPECT_EQ(numeros(C::GroupeAvenant),
            "14 15 16 17 18 19 20 21 22 23 24 25 68 69 82 108 111 112 120 121 122 123 124 125 126 "
            "127 128 133 135 136 ");
  EXPECT_EQ(numeros(C::GroupeDroitPublic), "121 122 123 124 125 126 127 128 ");
  EXPECT_EQ(numeros(C::GroupeMotifCDD), "9 10 113 114 115 137 ");
  EXPECT_EQ(numeros(C::GroupeStage), "138 139 140 141 142 ");
  // Order matters here: the follow-up walks both years by the same places.
  EXPECT_EQ(numeros(C::GroupeSuivi, true), "76 77 78 79 80 100 ");
  EXPECT_EQ(numeros(C::GroupeSuiviPrecedent, true), "71 72 73 74 75 99 ");
}

TEST(Fichiers, ShapesOfKeys) {
  for (const auto& [fichier, bonnes, mauvaises] :
       support::table<3>("data/tables.md", "Shapes of keys")) {
    SCOPED_TRACE(fichier);
    for (const auto& cle : data::mots(bonnes)) EXPECT_TRUE(data::cleBienFormee(fichier, cle));
    for (const auto& cle : data::mots(mauvaises)) {
      EXPECT_FALSE(data::cleBienFormee(fichier, cle)) << cle;
    }
    EXPECT_FALSE(data::cleBienFormee(fichier, ""));
  }
  EXPECT_FALSE(data::cleBienFormee("CONTRAT", "00 01001"));
}

}  // namespace
