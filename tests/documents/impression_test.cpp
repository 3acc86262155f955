// From the records in their files to the lines on paper.

#include "documents/dossier_declaration.h"
#include "essai_declaration.h"
#include "screen/headless/hote.h"
#include "storage/memory.h"

namespace {

struct Impression : ::testing::Test {
  Impression() { session.Db = &db; }

  void article(const char* fichier, const std::string& cle, const std::string& texte) {
    memoire->Put(fichier, cle, essai::item(texte).Text());
  }
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
  article("PERIODESPAIE", "1", "1=202611");
  article("ASSOCIATION", "001", "1=Aide du Val|9=Fougères");
  article("ASSOCIATION", "002", "1=Déclarant");
  article("CIVILAIDE", "00007", "2=MARTIN");
  article("ELTSPARTEMP", "00007", "1=351|2=REF");
  article("CENTREURSSAF", "351", "9=Centre");
  article("CIVILAIDANT", "00001", "1=003MR|2=DURAND|19=MAROC|20=MA|29=TN");
  article("PAYS", "MA", "1=Maroc");
  article("PAYS", "TN", "1=Tunisie");
  article("ETRANGER", "00001", "1=1|3=77");
  article("TABLES", "TITRESSEJOUR", "2=01|3=Résident");
  article("ETABLISSEMENT", "001001", "1=Siège|2=002001");
  article("CENTREMEDICAL", "003", "2=5 rue Basse");
  const auto mandat = imprimer(essai::item("1=02|2=001|3=00007"), true);
  for (const char* const ligne : {
           "1 : 4.30 1.40 Courier New 11 gras : Centre / Aide du Val - Fougères",
           "1 : 5.60 6.70 Courier New 10 : MARTIN",
           "1 : 11.50 8.00 Courier New 10 : REF",
           "1 : 2.50 9.20 Courier New 10 : DURAND",
           "1 : 14.80 13.25 Courier New 10 : X",
           "1 : 6.90 16.20 Courier New 10 : Résident/ n°77",
           "1 : 4.75 14.70 Courier New 10 : Tunisie",
       }) {
    EXPECT_TRUE(tient(mandat, ligne)) << ligne;
  }
  // The other agreements print the dot-matrix form first.
  const auto entite = imprimer(essai::item("1=01|2=001|3=001001"), false);
  EXPECT_TRUE(tient(entite, "1 : 7.10 4.50 Courier New 11 : Déclarant"));
  EXPECT_TRUE(tient(entite, "1 : 5.60 17.70 Courier New 11 : 003"));
  EXPECT_TRUE(tient(entite, "1 : 5.60 18.50 Courier New 11 : 5 rue Basse"));
  EXPECT_TRUE(tient(entite, "2 : 2.50 9.20 Courier New 10 : DURAND"));
  EXPECT_TRUE(tient(entite, "2 : 4.30 1.40 Courier New 11 gras :  / Aide du Val - Fougères"));
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
