#include "documents/declaration_matricielle.h"

#include <functional>

#include "essai_declaration.h"

namespace {

using essai::declaration, essai::item, essai::jour, essai::rangee;
using Dossier = documents::DossierDeclaration;

std::string blancs(int n) {
  return std::string(static_cast<std::size_t>(n), ' ');
}

struct Cas {
  double y;
  std::string attendu;
  std::function<void(Dossier&)> changement = [](Dossier&) {};
};

void verifier(const std::vector<Cas>& cas) {
  for (const Cas& c : cas) {
    Dossier d = declaration();
    d.contrat.Set(1, "01");
    c.changement(d);
    EXPECT_EQ(rangee(documents::declarationMatricielle(d), c.y), c.attendu) << "y " << c.y;
  }
}

void parEntite(Dossier& d) {
  d.etablissement.Set(2, "001");
  d.declarant = d.association;
}

TEST(DeclarationMatricielle, TheEmployerIsTheEstablishmentOrItsEntity) {
  verifier({
      {3.7, "4.6 5 5 5 5 6 6 6 6 7 7 7 7 8 8 " + blancs(13) + "8 8 1 0 B "},
      // A short number: the second zone stays where its boxes are.
      {3.7, "4.6 1 2 " + blancs(13) + blancs(24) + "8 8 1 0 B ",
       [](Dossier& d) { d.etablissement.Set(3, "12"); }},
      {3.7, "4.6 1 1 1 1 2 2 2 2 3 3 3 3 4 4 " + blancs(13) + "8 8 1 0 A ", parEntite},
      {4.5, "7.1 Siège"},
      {4.5, "7.1 Aide du Val", parEntite},
      {5.25, "4.25 9 rue Haute Cedex"},
      {6.1, "4.3 5 3 1 0 0   Mayenne"},
      {8.3, "7 7 " + blancs(15) + "9 8 7 6 5 4 3 "},
      {8.3, "7 4 5 0 " + blancs(15) + "1 2 3 4 5 6  7 8 9 0 ", parEntite},
      {28.2, "2 Mayenne|6.6 22/11/2026"},
      {28.2, "2 Fougères|6.6 22/11/2026", [](Dossier& d) { d.etablissement.Set(9, ""); }},
  });
}

TEST(DeclarationMatricielle, TheCarersZonesFallIntoTheirColumns) {
  verifier({
      {10.1, "4.4    X" + blancs(8) + "LEROY" + blancs(27) + "DURAND"},
      {10.1, "4.4 X" + blancs(11) + "LEROY" + blancs(27) + "DURAND",
       [](Dossier& d) { d.aidant.Set(1, "001MR"); }},
      {10.1, "4.4        X" + blancs(4) + "ABCDEFGHIJKLMNOPQRSTUVWXYZÉ" + blancs(5) + "DURAND",
       [](Dossier& d) {
         d.aidant.Set(1, "001MLE");
         d.aidant.Set(4, "ABCDEFGHIJKLMNOPQRSTUVWXYZÉÈÀ");
       }},
      {10.75, "4.45 Anne" + blancs(56) + "F"},
      // 13 digits and 2 of the key, each with its blank: 30, and 4 gaps of 2.
      {11.7, "4.55 2 7 1   0 3 3 5   1 2 3   4 5 6   4 2 " + blancs(10) + "0 9   0 3 1 9 7 1 "},
      {11.7, "4.55 " + blancs(48) + "0 9   0 3 1 9 7 1 ", [](Dossier& d) { d.aidant.Set(17, ""); }},
      {12.55, "4.5 X"},
      {12.55, "4.5 " + blancs(9) + "X" + blancs(15) + "ITALIE",
       [](Dossier& d) { d.aidant.Set(19, "ITALIE"); }},
      {13.3, "4.75 3 5  Rennes    ( FRANCE )"},
      {14.15, "4.35 3 ter avenue du Parc"},
      {14.9, "4.35 3 5 5 0 0   Vitré"},
      {21.5, ""},
      {21.5, "18.95 X", [](Dossier& d) { d.aidant.Set(17, ""); }},
  });
}

TEST(DeclarationMatricielle, TheContractsZonesFollowItsTypeAndItsFrequency) {
  verifier({
      {15.75, "7.5 0 5   0 1 2 0 2 6 " + blancs(28) + "0 8 0 0"},
      {17.7, "5.6 001"},
      {18.5, "5.6 5 rue Basse 35300 Fougères"},
      {19.95, "11 X"},
      {22, "6 Auxiliaire de vie" + blancs(34) + "60"},
      // 151.67 hours a month are 35 a week.
      {23.3, "12.1 35"},
      {23.3, "8.25 35,5",
       [](Dossier& d) {
         d.contrat.Set(24, "3550");
         d.contrat.Set(25, "1");
       }},
      {23.3, "8.45 70,25",
       [](Dossier& d) {
         d.contrat.Set(24, "7025");
         d.contrat.Set(25, "2");
       }},
      {23.3, "17 1607",
       [](Dossier& d) {
         d.contrat.Set(24, "160700");
         d.contrat.Set(25, "4");
       }},
      {23.3, "", [](Dossier& d) { d.contrat.Set(25, ""); }},
      {24.95, "1.7 X"},
      {24.95, "1.7 " + blancs(20) + "X" + blancs(40) + "3 1   0 3 2 0 2 6 ",
       [](Dossier& d) {
         d.contrat.Set(4, "D");
         d.contrat.Set(60, jour("31/03/2026"));
       }},
      {26.3, "2 Fougères" + blancs(29) + "22/11/26"},
  });
}

// The last digit of the number of persons falls into the fourth box.
TEST(DeclarationMatricielle, TheNumberOfPersonsIsWrittenFromTheRight) {
  const struct {
    const char* centiemes;
    std::string attendu;
  } cas[] = {
      {"123400", "7.4 1 2 3 4"},
      {"12300", "7.4   1 2 3"},
      {"1200", "7.4     1 2"},
      {"500", "7.4       5"},
      {"1250", "7.4       12,5"},
      {"1234500", "7.4       12345"},
      {"", ""},
  };
  for (const auto& c : cas) {
    Dossier d = declaration();
    d.etablissement.Set(17, 1, c.centiemes);
    EXPECT_EQ(rangee(documents::declarationMatricielle(d), 19.3), c.attendu) << c.centiemes;
  }
}

}  // namespace
