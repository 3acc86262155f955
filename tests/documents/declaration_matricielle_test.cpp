#include "documents/declaration_matricielle.h"

#include "essai_declaration.h"

namespace {

TEST(DeclarationMatricielle, EachRowOfItsTables) {
  documents::DossierDeclaration d = essai::declaration();
  d.contrat.Set(1, "01");
  for (const char* const titre :
       {"L'employeur", "L'aidante", "Le contrat", "Le nombre de personnes"}) {
    essai::verifier("documents/declaration_matricielle.md", titre, d,
                    documents::declarationMatricielle);
  }
}

}  // namespace
