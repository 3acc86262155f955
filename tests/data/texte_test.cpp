#include "data/texte.h"

#include <gtest/gtest.h>

#include <climits>

namespace data {
namespace {

TEST(Texte, CutsByCharacters) {
  struct Cas {
    const char* texte;
    int n;
    const char* gauche;
    const char* droite;
    const char* aPartir;  // milieu(texte, n)
  };
  // The euro sign has three bytes, the last sign four; \xC3 alone is a stray byte.
  const Cas cas[] = {{"", 3, "", "", ""},
                     {"Hélène", 2, "Hé", "ne", "élène"},
                     {"Hélène", INT_MIN, "", "", "Hélène"},
                     {"Hélène", INT_MAX, "Hélène", "Hélène", ""},
                     {"5 €\xF0\x9F\x98\x80", 1, "5", "\xF0\x9F\x98\x80", "5 €\xF0\x9F\x98\x80"},
                     {"5 €\xF0\x9F\x98\x80", 3, "5 €", " €\xF0\x9F\x98\x80", "€\xF0\x9F\x98\x80"},
                     {"a\xC3z", 2, "a\xC3", "\xC3z", "\xC3z"},
                     {"a\xE2\x82", 2, "a\xE2", "\xE2\x82", "\xE2\x82"}};
  for (const Cas& c : cas) {
    SCOPED_TRACE(std::string(c.texte) + " / " + std::to_string(c.n));
    EXPECT_EQ(gauche(c.texte, c.n), c.gauche);
    EXPECT_EQ(droite(c.texte, c.n), c.droite);
    EXPECT_EQ(milieu(c.texte, c.n), c.aPartir);
  }
  EXPECT_EQ(milieu("Hélène", 4, 2), "èn");
  EXPECT_EQ(milieu("Hélène", 6, 9), "e");
  EXPECT_EQ(milieu("Hélène", 2, -1), "");
  EXPECT_EQ(position("né à Évry", "à"), 4);
  EXPECT_EQ(position("né", "") + position("né", "x"), 0);
}

TEST(Texte, CompletesAndTrims) {
  EXPECT_EQ(completeADroite("né", 4), "né  ");
  EXPECT_EQ(completeAGauche("7", 3, '0'), "007");
  EXPECT_EQ(completeAGauche("Œdipe", 5), "Œdipe");
  EXPECT_EQ(completeAGauche("1234", INT_MIN), "1234");
  EXPECT_EQ(colonne("Désirée", 4), "Dési");
  EXPECT_EQ(colonne("Éva", 5), "Éva  ");
  EXPECT_EQ(sansBlancsAGauche("  a b ") + sansBlancsADroite("  a b "), "a b   a b");
  EXPECT_EQ(sansBlancs("  a b ") + sansBlancs("   "), "a b");
  EXPECT_EQ(sansAucunBlanc(" 1 234,50 "), "1234,50");
  EXPECT_EQ(mots("  le  8 mai "), (std::vector<std::string>{"le", "8", "mai"}));
  EXPECT_TRUE(mots("  ").empty());
}

TEST(Texte, NamesAsPeopleSearchAndSortThem) {
  EXPECT_EQ(sansAccents("Cœur d'Été, Ærø-Ñuñez ÿ ß Łódź"), "COEUR D'ETE, AERO-NUNEZ Y SS LODZ");
  EXPECT_EQ(sansAccents("e\u0301 x"), "E X");
  EXPECT_EQ(plier("N'Diaye-Lefèvre"), "NDIAYELEFEVRE");
  EXPECT_EQ(plier("L’Hôte"), plier("lhote"));
  const auto ordre = [](const char* a, const char* b) {
    return ordreDictionnaire(a, sansAccents(a), b, sansAccents(b));
  };
  for (const auto& [avant, apres] : {std::pair{"", "a"},
                                     {"Éva", "Zoé"},
                                     {"zoé", "Zoël"},
                                     {"Lefevre", "Lefèvre"},
                                     {"LEFEVRE", "Lefevre"}}) {
    EXPECT_LT(ordre(avant, apres), 0) << avant;
    EXPECT_GT(ordre(apres, avant), 0) << avant;
  }
  EXPECT_EQ(ordre("Éva", "Éva"), 0);
}

TEST(Texte, UpperCaseKeepsAccents) {
  const struct {
    const char *texte, *attendu;
  } cas[] = {{"d'Œuvre-Noël, 12 bis", "D'ŒUVRE-NOËL, 12 BIS"},
             {"àâäæçéèêëîïñôöœùûüÿ", "ÀÂÄÆÇÉÈÊËÎÏÑÔÖŒÙÛÜŸ"},
             {"þ÷ß×µ", "Þ÷ß×µ"},                // neither sign nor sharp s has a capital here
             {"āķĺňŋŷźžšřğı", "ĀĶĹŇŊŶŹŽŠŘĞI"},  // both parities of the pairs
             {"ŸŹŽĶĸŉ", "ŸŹŽĶĸŉ"},              // capitals and letters without capital stay
             {"шλ€", "шλ€"}};
  for (const auto& c : cas) EXPECT_EQ(majuscules(c.texte), c.attendu);
}

TEST(Texte, ValidityAndControls) {
  const char* bons =
      "az é \xE0\xA0\x80 \xED\x9F\xBF \xEE\x80\x80 \xF0\x90\x80\x80 \xF4\x8F\xBF\xBF";
  for (const auto& t : mots(bons)) EXPECT_TRUE(utf8Valide(t)) << t;
  EXPECT_TRUE(utf8Valide(""));
  // Overlong forms, surrogates, above the last code point, cut short, stray bytes.
  const char* mauvais =
      "\xC0\x80 \xC1\xBF \xE0\x9F\xBF \xED\xA0\x80 \xF0\x8F\xBF\xBF \xF4\x90\x80\x80 "
      "\xF5\x80\x80\x80 a\xC3 \xE2\x82 \xF0\x9F\x98 \x80 \xFF \xC3\x41 \xE2\x28\xA1";
  for (const auto& t : mots(mauvais)) EXPECT_FALSE(utf8Valide(t)) << t;
  EXPECT_EQ(sansControles("a\tb\r\nc\x7F\xC2\x80"
                          "d\xC2\x9F\xC2\xA0é\x1E"),
            "abcd\xC2\xA0é");
}

}  // namespace
}  // namespace data
