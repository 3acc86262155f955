// What the reader makes of lines, and every way in which a line is wrong.

#include "pilote/scenario.h"

#include <gtest/gtest.h>

#include <sstream>

#include "pilote/commandes.h"

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

// Each fault with its column; the reason begins so.
TEST(Scenario, Fautes) {
  const struct {
    const char* texte;
    int colonne;
    const char* raison;
  } cas[] = {
      {"clique Cmd_OK", 1, "La commande « clique » n'existe pas"},
      {"taper Txt_A", 1, "Cette commande s'écrit : taper CHAMP TEXTE."},
      {"taper Txt_A é\"a\"", 14, "Un guillemet ne peut pas"},
      {"taper Txt_é \"a b", 13, "Le guillemet ouvert ici"},
      {"taper Txt_A \"a\"b", 16, "Un blanc est attendu"},
      {"taper é\x1e", 8, "Un caractère de contrôle"},
      {"taper Txt_A \xff", 1, "La ligne n'est pas un texte UTF-8"},
      {"touche T Entrée", 10, "« Entrée » n'est pas Entree"},
      {"repondre oui", 10, "« oui » n'est pas OUI"},
      {"onglet 1.5", 8, "« 1.5 » n'est pas un nombre entier"},
      {"double L 2", 10, "« 2 » n'est pas une ligne"},
      {"verifier L taille 3", 12, "« taille » n'est pas une propriété : texte, valeur"},
      {"verifier L actif 1", 18, "« 1 » n'est pas oui ou non"},
      {"article CONTRAT 1 7 21511", 19, "Le signe ="},
      {"article Contrat 1 = x", 9, "« Contrat » n'est pas un nom de fichier"},
      {"absent CONTRAT \"\"", 16, "«  » n'est pas une clé"},
  };
  for (const auto& c : cas) {
    SCOPED_TRACE(c.texte);
    const Scenario scenario = lire(std::string("quitter\n") + c.texte + "\nfermer");
    ASSERT_EQ(scenario.fautes.size(), 1u);
    EXPECT_EQ(scenario.fautes[0].ligne, 2);
    EXPECT_EQ(scenario.fautes[0].colonne, c.colonne);
    EXPECT_EQ(scenario.fautes[0].raison.substr(0, std::string(c.raison).size()), c.raison);
  }
  EXPECT_EQ(lire("a\nquitter\nb\n\nonglet x").fautes.size(), 3u);
}

}  // namespace
}  // namespace pilote
