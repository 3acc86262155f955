// Acts and checks on a small screen with dialogues.

#include "pilote/pilote.h"

#include <gtest/gtest.h>

#include <nlohmann/json.hpp>

#include "atelier.h"
#include "base_demo.h"

namespace pilote {
namespace {

TEST(Pilote, ActesEtControles) {
  std::istringstream lignes(lireTout(CONTRATS_SOURCE_DIR "/tests/pilote/actes.md"));
  int joues = 0;
  std::string ligne;
  while (std::getline(lignes, ligne)) {
    if (ligne != "```scenario") continue;
    std::string scenario;
    while (std::getline(lignes, ligne) && ligne != "```") scenario += ligne + "\n";
    std::getline(lignes, ligne);
    Atelier atelier;
    EXPECT_EQ(atelier.Jouer(scenario), ligne == "tient" ? "" : ligne) << scenario;
    ++joues;
  }
  EXPECT_GE(joues, 26);
}

// What the end leaves open is dropped: nothing is written, and no handler goes on with the act,
// not even one that stops every exception.
TEST(Pilote, FinPendantUneModale) {
  for (const char* bouton : {"Cmd_Ajouter", "Cmd_Avaler"}) {
    for (const char* suite : {"", "\nverifier Txt_Nom texte b"}) {
      SCOPED_TRACE(std::string(bouton) + suite);
      Atelier atelier;
      const std::string debut = std::string("cliquer ") + bouton + "\ntaper Txt_Nom a";
      EXPECT_EQ(atelier.Jouer(debut + suite), *suite == '\0' ? "" : "3: b / a");
      EXPECT_TRUE(atelier.db.Stockage().Fichiers().empty());
      EXPECT_EQ(atelier.ecran.Lst_Noms.ListCount(), 3);
      EXPECT_FALSE(atelier.hote.curseur.EnAttente());
    }
  }
}

TEST(Pilote, Voir) {
  Atelier atelier;
  EXPECT_EQ(atelier.Jouer("choisir Lst_Noms #1\nvoir Lst_Noms\nvoir"), "");
  std::istringstream lignes(atelier.sortie.str());
  std::string champ;
  std::string forme;
  std::getline(lignes, champ);
  std::getline(lignes, forme);
  EXPECT_EQ(champ,
            "{\"nom\":\"Lst_Noms\",\"genre\":\"liste\",\"libelle\":\"\",\"actif\":true,"
            "\"visible\":true,\"focus\":true,\"texte\":\"Hervé\",\"ligne\":1,"
            "\"lignes\":[\"Rose\",\"Hervé\",\"Rose\"]}");
  const auto json = nlohmann::json::parse(forme);
  EXPECT_EQ(json["forme"], "Frm_Ecran");
  EXPECT_EQ(json["champs"].size(), atelier.ecran.Fields().size());
  EXPECT_EQ(json["champs"][4]["valeur"], -1);
}

}  // namespace
}  // namespace pilote
