// From the records in their files to the lines on paper.

#include "documents/dossier_declaration.h"
#include "essai_declaration.h"
#include "screen/headless/hote.h"
#include "storage/memory.h"

namespace {

struct Impression : ::testing::Test {
  Impression() { session.Db = &db; }

  // The places of all that is printed for that contract, the pictures left out.
  std::vector<std::string> imprimer(const data::CItem& contrat, bool particuliers) {
    session.OuvrirFichiers();
    documents::imprimer(
        documents::pagesDeclaration(documents::lireDossierDeclaration(session, "00001001", contrat),
                                    particuliers),
        hote.imprimante);
    std::vector<std::string> textes;
    for (const std::string& ligne : hote.imprimante.Documents().back().Lignes()) {
      if (ligne.find(" image ") == std::string::npos) textes.push_back(ligne);
    }
    return textes;
  }

  screen::headless::Hote hote{21511};
  std::shared_ptr<storage::MemoryStorage> memoire =
      std::make_shared<storage::MemoryStorage>(hote.poste);
  data::Db db{memoire};
  session::Session session{hote.poste};
};

bool tient(const std::vector<std::string>& lignes, const std::string& ligne) {
  return std::find(lignes.begin(), lignes.end(), ligne) != lignes.end();
}

TEST_F(Impression, EachRecordIsFoundByTheKeyThatNamesIt) {
  for (const auto& [fichier, cle, attributs] :
       support::table<3>("documents/impression.md", "Les articles")) {
    data::CItem item = db.OpenFile(fichier).NewItem(cle);
    for (const auto& [a, texte] : support::attributs(attributs)) item.Set(a, texte);
    item.DBWrite();
  }
  const auto mandat = imprimer(essai::item("1=02; 2=001; 3=00007"), true);
  const auto entite = imprimer(essai::item("1=01; 2=001; 3=001001"), false);
  for (const auto& [convention, ligne] :
       support::table<2>("documents/impression.md", "Ce qui s'imprime")) {
    EXPECT_TRUE(tient(convention == "02" ? mandat : entite, support::code(ligne))) << ligne;
  }
}

TEST_F(Impression, CopiesFollowOneAnotherInOneDocument) {
  const std::vector<documents::Page> pages{{{documents::Texte{1, 2, "un", {}}}},
                                           {{documents::Texte{1, 2, "deux", {}}}}};
  documents::imprimer(pages, hote.imprimante, 2);
  ASSERT_EQ(hote.imprimante.Documents().size(), 1U);
  EXPECT_EQ(hote.imprimante.Documents()[0].Lignes(),
            (std::vector<std::string>{
                "1 : 1.00 2.00 Courier New 10 : un", "2 : 1.00 2.00 Courier New 10 : deux",
                "3 : 1.00 2.00 Courier New 10 : un", "4 : 1.00 2.00 Courier New 10 : deux"}));
}

}  // namespace
