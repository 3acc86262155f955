#include "documents/declaration_formulaire.h"

#include <functional>

#include "essai_declaration.h"

namespace {

using essai::declaration, essai::item, essai::jour, essai::rangee;
using Dossier = documents::DossierDeclaration;

struct Cas {
  double y;
  const char* attendu;
  std::function<void(Dossier&)> changement = [](Dossier&) {};
};

void verifier(const std::vector<Cas>& cas) {
  for (const Cas& c : cas) {
    Dossier d = declaration();
    c.changement(d);
    EXPECT_EQ(rangee(documents::declarationFormulaire(d), c.y), c.attendu) << "y " << c.y;
  }
}

void sansNumero(Dossier& d) {
  d.aidant.Set(17, "");
}
// A carer from elsewhere, whose country belongs to the Community or not.
void etrangere(Dossier& d, const char* zone) {
  sansNumero(d);
  d.aidant.Set(19, "ITALIE");
  d.paysNationalite = item(std::string("1=République italienne du Nord|2=") + zone);
  d.etranger = item("1=2|3=0000123");
}

TEST(DeclarationFormulaire, EachPlaceTakesItsTextOrItsDigits) {
  verifier({
      {1.4, "4.3 URSSAF Bretagne / Aide du Val - Fougères"},
      {6.7, "5.6 MARTIN|15.2 Rose"},
      {7.2, "2.9 1|3.2 4|3.6 0|3.9 7|4.3 1|4.6 9|4.9 3|5.2 8|16.65 02 99 00 11 22"},
      {7.6, "2.9 12 bis rue des Lilas |12.1 3|12.4 5|12.7 3|13 0|13.3 0|14.8 Fougères"},
      {8, "11.5 Z123456"},
      {8.8, "6.9 0|7.2 5|7.6 0|7.9 1|8.3 2|8.6 0|8.9 2|9.2 6"},
      {9.2, "2.5 DURAND|10 LEROY|16.8 Anne"},
      {9.65, "9 FRANCE"},
      {10.1, "2.9 3 ter avenue du Parc Bâtiment B|12.4 3|12.7 5|13 5|13.3 0|13.6 0"},
      {10, "15.2 Vitré"},
      {10.5,
       "4.9 2|5.2 7|5.5 1|5.8 0|6.1 3|6.4 3|6.7 5|7 1|7.3 2|7.5 3|7.8 4|8.1 5|8.4 6|8.8 4|9.1 2"},
      {11.3, "2 Garde-malade"},
      {11.6, "13 X"},
      {11.6, "8.5 X", [](Dossier& d) { d.contrat.Set(30, "F"); }},
      {27.2, "3 Fougères  à  22/11/2026"},
  });
}

// The rows from 13.25 to 16.2 stand in for the number that the carer does not have yet.
TEST(DeclarationFormulaire, TheOriginIsAskedOnlyOfACarerWithoutNumber) {
  const auto communaute = [](Dossier& d) { etrangere(d, "C"); };
  const auto autre = [](Dossier& d) { etrangere(d, ""); };
  for (const double y : {13.25, 13.65, 14.7, 16.2}) {
    Dossier d = declaration();
    etrangere(d, "");
    d.aidant.Set(17, "2 71 03 35 123 456");
    EXPECT_EQ(rangee(documents::declarationFormulaire(d), y), "") << y;
  }
  verifier({
      {10.5, "", sansNumero},
      {13.25, "5.75 X", sansNumero},
      {13.25, "8.2 X|11.7 République italie", communaute},  // 17 characters
      {13.25, "14.8 X", autre},
      {16.2, "6.9 Récépissé/ n°0000123", autre},
      {16.2, "", communaute},
      {13.65, "2.9 0|3.2 9|3.6 0|3.9 3|4.3 1|4.6 9|4.9 7|5.2 1|8.3 Rennes|16.7 3|17 5", sansNumero},
      {14.7, "4.75 Maroc",
       [](Dossier& d) {
         sansNumero(d);
         d.paysNaissance = item("1=Maroc");
       }},
  });
}

TEST(DeclarationFormulaire, AddressesAreJoinedAndTheEmployersIsCut) {
  verifier({
      // "12 bis rue des Lilas et des Jonquilles": 34 characters end inside the last word.
      {7.6, "2.9 12 bis rue des Lilas et des Jonqui|12.1 3|12.4 5|12.7 3|13 0|13.3 0|14.8 Fougères",
       [](Dossier& d) { d.aide.Set(8, "des Lilas et des Jonquilles"); }},
      // The employer's complement decides whether the carer's is printed.
      {10.1, "2.9 3 avenue du Parc Bâtiment B|12.4 3|12.7 5|13 5|13.3 0|13.6 0",
       [](Dossier& d) { d.aide.Set(6, ""); }},
      {10.1, "2.9 3  avenue du Parc Bâtiment B|12.4 3|12.7 5|13 5|13.3 0|13.6 0",
       [](Dossier& d) { d.aidant.Set(6, ""); }},
      // The permits' labels come before the streets'; a code without label stays.
      {10.1, "2.9 3 ter Carte de résident du Parc Bâtiment B|12.4 3|12.7 5|13 5|13.3 0|13.6 0",
       [](Dossier& d) { d.aidant.Set(7, "01"); }},
      {10.1, "2.9 3 ter QUAI du Parc Bâtiment B|12.4 3|12.7 5|13 5|13.3 0|13.6 0",
       [](Dossier& d) { d.aidant.Set(7, "QUAI"); }},
  });
}

TEST(DeclarationFormulaire, TheKindOfEmployerChoosesTheCrosses) {
  const struct {
    const char* code;
    const char* croix;  // of the rows 22.55, 22 and 23.8
  } cas[] = {{"00", "1.9 X//"},      {"01", "1.9 X//"},      {"", "/1.9 X/"},
             {"04", "/1.9 X/2 X"},   {"02", "/1.9 X/3.2 X"}, {"03", "/1.9 X/4.4 X"},
             {"07", "/1.9 X/5.6 X"}, {"06", "/1.9 X/5.6 X"}, {"10", "/1.9 X/6.8 X"},
             {"08", "/1.9 X/6.8 X"}, {"09", "/1.9 X/8 X"},   {"05", "/1.9 X/8 X"}};
  for (const auto& [code, croix] : cas) {
    Dossier d = declaration();
    d.part.Set(9, code);
    const documents::Page page = documents::declarationFormulaire(d);
    EXPECT_EQ(rangee(page, 22.55) + "/" + rangee(page, 22) + "/" + rangee(page, 23.8), croix)
        << code;
  }
}

// The background first, the signature last, each at its place.
TEST(DeclarationFormulaire, PicturesLieUnderAndAfterTheTexts) {
  Dossier d = declaration();
  d.signature = "signature.png";
  const documents::Page page = documents::declarationFormulaire(d);
  const auto image = [](const auto& element) {
    const auto& i = std::get<documents::Image>(element);
    std::string texte = i.fichier;
    for (const double cm : {i.x, i.y, i.largeur, i.hauteur}) {
      texte += " " + std::to_string(std::lround(cm * 567));
    }
    return texte;
  };
  EXPECT_EQ(image(page.elements.front()), "images/URSSAF.jpg 0 0 11800 16895");
  EXPECT_EQ(image(page.elements.back()), "signature.png 6500 15500 3000 1000");
  const auto& titre = std::get<documents::Texte>(page.elements[1]);
  EXPECT_TRUE(titre.police.gras && titre.police.points == 11);
  d.signature = "";
  EXPECT_TRUE(std::holds_alternative<documents::Texte>(
      documents::declarationFormulaire(d).elements.back()));
}

}  // namespace
