// What the reader makes of lines, and every way in which a line is wrong.

#include "pilote/scenario.h"

#include <gtest/gtest.h>

#include <sstream>

#include "pilote/commandes.h"
#include "support/table.h"

namespace pilote {
namespace {

Scenario lire(const std::string& texte) {
  std::istringstream entree(texte);
  return lireScenario(entree);
}

// The commands as "ligne nom[mot][mot]", a quoted word between quotes.
std::string enTexte(const Scenario& scenario) {
  std::string texte;
  for (const Commande& c : scenario.commandes) {
    if (!texte.empty()) texte += ' ';
    texte += std::to_string(c.ligne) + std::string(c.definition->nom);
    for (const Mot& mot : c.mots) texte += mot.cite ? "{" + mot.texte + "}" : "[" + mot.texte + "]";
  }
  return texte;
}

TEST(Scenario, Mots) {
  const std::pair<const char*, const char*> cas[] = {
      {"", ""},
      {"# rien\n\n  \t # encore\nquitter", "4quitter"},
      {"\xEF\xBB\xBFquitter\r\nfermer\r\n", "1quitter 2fermer"},
      {"\ttaper  Txt_A\t12  # douze", "1taper[Txt_A][12]"},
      {"taper Txt_A \"a # \"\"b\"\"\"", "1taper[Txt_A]{a # \"b\"}"},
      {"taper Txt(0) a#b", "1taper[Txt(0)][a#b]"},
      {"choisir L \"#12\"", "1choisir[L]{#12}"},
      {"article F 1 = =", "1article[F][1][=][=]"},
      {"article F 1 2 3 4 = \"\"", "1article[F][1][2][3][4][=]{}"},
      {"touche T \" \"", "1touche[T]{ }"},
  };
  for (const auto& [texte, attendu] : cas) {
    SCOPED_TRACE(texte);
    const Scenario scenario = lire(texte);
    EXPECT_TRUE(scenario.fautes.empty());
    EXPECT_EQ(enTexte(scenario), attendu);
  }
  EXPECT_EQ(lire("  taper T \"a  b\" # note").commandes[0].source, "taper T \"a  b\"");
}

TEST(Scenario, Fautes) {
  auto cas = support::table<3>("pilote/fautes.md", "Les fautes");
  cas.push_back({"taper é\x1e", "8", "Un caractère de contrôle"});
  cas.push_back({"taper Txt_A \xff", "1", "La ligne n'est pas un texte UTF-8"});
  for (const auto& [ligne, colonne, raison] : cas) {
    SCOPED_TRACE(ligne);
    const Scenario scenario = lire("quitter\n" + support::code(ligne) + "\nfermer");
    ASSERT_EQ(scenario.fautes.size(), 1u);
    EXPECT_EQ(scenario.fautes[0].ligne, 2);
    EXPECT_EQ(scenario.fautes[0].colonne, std::stoi(colonne));
    EXPECT_TRUE(scenario.fautes[0].raison.starts_with(raison)) << scenario.fautes[0].raison;
  }
  EXPECT_EQ(lire("a\nquitter\nb\n\nonglet x").fautes.size(), 3u);
}

}  // namespace
}  // namespace pilote
