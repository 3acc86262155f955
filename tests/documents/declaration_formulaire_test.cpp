#include "documents/declaration_formulaire.h"

#include "essai_declaration.h"

namespace {

using essai::declaration;

TEST(DeclarationFormulaire, EachRowOfItsTables) {
  for (const char* const titre : {"Les places du formulaire", "L'origine, sans numéro",
                                  "Les adresses", "Le genre d'employeur"}) {
    essai::verifier("documents/declaration_formulaire.md", titre, declaration(),
                    documents::declarationFormulaire);
  }
}

// The background first, the signature last, each at its place.
TEST(DeclarationFormulaire, PicturesLieUnderAndAfterTheTexts) {
  documents::DossierDeclaration d = declaration();
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
