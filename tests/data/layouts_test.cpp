// The attribute numbers are a file format, and key shapes decide what a check of a data file
// reports.

#include "data/layouts/contrat.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <string>
#include <vector>

#include "data/layouts/fichiers.h"
#include "data/texte.h"

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

TEST(Fichiers, FormeDesCles) {
  const struct {
    const char *fichier, *bonnes, *mauvaises;
  } cas[] = {
      {"CONTRAT", "00001001 A0001001", "00001 0000100A 000010011 0000\xc3\xa9\x30\x30\x31"},
      // An exact name before a name made at run time: "CONTRATSPREV" is "CONTRAT" and 5 characters.
      {"CONTRATSPREV", "01", "00001001"},
      {"CONTRAT00101", "00001001", "0000100101"},
      {"AVENANT00101", "0000100101 00001001100", "000010011"},
      {"LIENCONTRAT", "CONTRAT00101", "AVENANT00101"},
      {"LIENAVENANT", "", "AVENANT0010"},
      {"DETAILCALCUL", "00001001202610", "00001001202613 00001001202600"},
      {"DETAILINTER", "00001001000202612", "00001001202612"},
      {"AIDANTTTE", "000010012026", "00001001202610"},
      {"PCS", "56 563b", "563 5"},
      {"TPSDETAILSINTERV", "00001000022151100110100800", "0000100002215110011010080"},
      {"TPSEXCEPTIONS", "00001215110800", "0000121511080"},
      {"ABSENCESAIDANT", "000010121511", "00001AB21511"},
      {"TPSSANSCONTRAT", "00001001M", "00001"},
      {"OPPOSITION", "00001001", "0000100"},
      // Files of other programs of the suite, or too short a name: nothing is known of their keys.
      {"AUTRE", "x", ""},
      {"CONTRAT0010", "x", ""},
      {"AVENANT", "x", ""}};
  for (const auto& c : cas) {
    SCOPED_TRACE(c.fichier);
    for (const auto& cle : data::mots(c.bonnes)) EXPECT_TRUE(data::cleBienFormee(c.fichier, cle));
    for (const auto& cle : data::mots(c.mauvaises)) {
      EXPECT_FALSE(data::cleBienFormee(c.fichier, cle)) << cle;
    }
    EXPECT_FALSE(data::cleBienFormee(c.fichier, ""));
  }
  EXPECT_FALSE(data::cleBienFormee("CONTRAT", "00 01001"));
}

}  // namespace
