// The attribute numbers are a file format, and key shapes decide what a check of a data file
// reports.

#include <gtest/gtest.h>

#include <iterator>
#include <set>
#include <string>
#include <vector>

#include "data/layouts/contrat.h"
#include "data/layouts/fichiers.h"

namespace {

namespace C = data::Contrat;

template <std::size_t N>
std::set<int> numeros(const int (&groupe)[N]) {
  const std::set<int> uniques(std::begin(groupe), std::end(groupe));
  EXPECT_EQ(uniques.size(), N);
  return uniques;
}

TEST(Contrat, GroupesDAttributsParalleles) {
  EXPECT_EQ(
      numeros(C::GroupeAvenant),
      (std::set<int>{14,  15,  16,  17,  18,  19,  20,  21,  22,  23,  24,  25,  68,  69,  82,
                     108, 111, 112, 120, 121, 122, 123, 124, 125, 126, 127, 128, 133, 135, 136}));
  EXPECT_EQ(numeros(C::GroupeDroitPublic), (std::set<int>{121, 122, 123, 124, 125, 126, 127, 128}));
  EXPECT_EQ(numeros(C::GroupeMotifCDD), (std::set<int>{9, 10, 113, 114, 115, 137}));
  EXPECT_EQ(numeros(C::GroupeStage), (std::set<int>{138, 139, 140, 141, 142}));
  // Order matters here: the follow-up walks both years by the same places.
  EXPECT_EQ(std::vector<int>(std::begin(C::GroupeSuivi), std::end(C::GroupeSuivi)),
            (std::vector<int>{76, 77, 78, 79, 80, 100}));
  EXPECT_EQ(
      std::vector<int>(std::begin(C::GroupeSuiviPrecedent), std::end(C::GroupeSuiviPrecedent)),
      (std::vector<int>{71, 72, 73, 74, 75, 99}));
}

struct CasCle {
  const char* fichier;
  const char* cle;
  bool bonne;
};
constexpr CasCle Cles[] = {
    {"CONTRAT", "00001001", true},
    {"CONTRAT", "A0001001", true},
    {"CONTRAT", "00001", false},
    {"CONTRAT", "0000100A", false},
    {"CONTRAT", "000010011", false},
    {"CONTRAT", "", false},
    {"CONTRAT", "00 01001", false},
    {"CONTRAT",
     "0000\xc3\xa9"
     "001",
     false},
    // An exact name before a name made at run time: "CONTRATSPREV" is "CONTRAT" and 5 characters.
    {"CONTRATSPREV", "01", true},
    {"CONTRATSPREV", "00001001", false},
    {"CONTRATINV", "0000100002", true},
    {"CONTRAT00101", "00001001", true},
    {"CONTRAT00101", "0000100101", false},
    {"AVENANT00101", "0000100101", true},
    {"AVENANT00101", "00001001100", true},
    {"AVENANT00101", "000010011", false},
    {"LIENCONTRAT", "CONTRAT00101", true},
    {"LIENCONTRAT", "AVENANT00101", false},
    {"LIENAVENANT", "AVENANT0010", false},
    {"DETAILCALCUL", "00001001202610", true},
    {"DETAILCALCUL", "00001001202613", false},
    {"DETAILCALCUL", "00001001202600", false},
    {"DETAILINTER", "00001001000202612", true},
    {"DETAILINTER", "00001001202612", false},
    {"AIDANTTTE", "000010012026", true},
    {"AIDANTTTE", "00001001202610", false},
    {"PCS", "56", true},
    {"PCS", "563b", true},
    {"PCS", "563", false},
    {"PCS", "5", false},
    {"TPSDETAILSINTERV", "00001000022151100110100800", true},
    {"TPSDETAILSINTERV", "0000100002215110011010080", false},
    {"TPSAIDANTINDISPO", "000012151130800", true},
    {"TPSEXCEPTIONS", "00001215110800", true},
    {"TPSEXCEPTIONS", "0000121511080", false},
    {"ABSENCESAIDANT", "000010121511", true},
    {"ABSENCESAIDANT", "00001AB21511", false},
    {"TABLES", "MOTIFEMBAUCHE", true},
    {"TABLES", "", false},
    {"TPSSANSCONTRAT", "00001001M", true},
    {"TPSSANSCONTRAT", "00001", false},
    {"OPPOSITION", "00001001", true},
    {"OPPOSITION", "0000100", false},
    // A file of another program of the suite: nothing is known of its keys.
    {"AUTRE", "x", true},
    {"AUTRE", "", false},
};

TEST(Fichiers, FormeDesCles) {
  for (const CasCle& cas : Cles) {
    EXPECT_EQ(data::cleBienFormee(cas.fichier, cas.cle), cas.bonne)
        << cas.fichier << " \"" << cas.cle << "\"";
  }
}

TEST(Fichiers, NomsExactsAvantNomsDeCirconstance) {
  EXPECT_EQ(data::fichierConnu("CONTRATSPREV")->forme, "2c");
  EXPECT_TRUE(data::fichierConnu("CONTRAT00101")->prefixe);
  EXPECT_EQ(data::fichierConnu("CONTRAT0010"), nullptr);
  EXPECT_EQ(data::fichierConnu("AVENANT"), nullptr);
}

}  // namespace
