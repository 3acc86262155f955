// Acts and checks on a small screen with dialogues.

#include "pilote/pilote.h"

#include <gtest/gtest.h>

#include <nlohmann/json.hpp>

#include "atelier.h"

namespace pilote {
namespace {

struct Cas {
  const char* nom;
  const char* scenario;
  const char* echec;  // "" when all holds
};

void jouerTous(const std::vector<Cas>& tous) {
  for (const Cas& cas : tous) {
    SCOPED_TRACE(cas.nom);
    Atelier atelier;
    EXPECT_EQ(atelier.Jouer(cas.scenario), cas.echec);
  }
}

TEST(Pilote, ActesEtControles) {
  jouerTous({
      {"liste",
       "verifier Lst_Noms lignes Rose|Hervé|Rose\nverifier Lst_Noms ligne -1\n"
       "choisir Lst_Noms Hervé\nverifier Lst_Noms texte Hervé\nverifier Lst_Noms focus oui\n"
       "choisir Lst_Noms #2\nverifier Lst_Noms ligne 2\ndouble Lst_Noms\ncliquer Lst_Noms",
       ""},
      {"texte en double", "choisir Lst_Noms Rose",
       "1: une seule ligne « Rose », ou son rang #N / Rose|Hervé|Rose"},
      {"aucune ligne", "double Lst_Noms", "1: une ligne choisie, ou #N / aucune"},
      {"déroulante remplie en s'ouvrant",
       "verifier Cbo_Nature nombre 0\nchoisir Cbo_Nature Stage\nverifier Cbo_Nature texte Stage",
       ""},
      {"onglet", "onglet 1\nverifier Ong valeur 1\nonglet 2", "3: un onglet de 0 à 1 / 2"},
      {"barre", "barre Bdv_A 5\nverifier Bdv_A valeur 5\nbarre Bdv_A 6",
       "3: une valeur de 0 à 5 / 6"},
      {"case",
       "cliquer Cac_A\nverifier Cac_A valeur 1\ntouche Cac_A \" \"\nverifier Cac_A valeur 0", ""},
      {"option d'un cadre fermé",
       "verifier Opt_A valeur -1\nverifier Opt_A actif non\nverifier Opt_A visible oui\n"
       "cliquer Opt_A",
       "4: Opt_A accessible / son cadre Cdr_Ferme est désactivé"},
      {"champ désactivé", "taper Txt_Fige a", "1: Txt_Fige accessible / il est désactivé"},
      {"acte d'un autre genre", "taper Cmd_Ajouter a",
       "1: un champ qui accepte cet acte / Cmd_Ajouter est de genre bouton"},
      {"propriété d'un autre genre", "verifier Cac_A texte a",
       "1: un champ qui a la propriété texte / Cac_A est de genre case"},
      {"contrôle manqué", "verifier Lst_Noms nombre 3\nverifier Cac_A libelle Décocher",
       "2: Décocher / Cocher"},
      {"rien d'imprimé", "imprime 1.00 2.00 X", "1: X / aucun document imprimé"},
      {"erreur du stockage", "cliquer Cmd_Panne", "1: une commande sans erreur / disque plein"},
      {"écran fermé", "cliquer Cmd_Fermer\naucun-message\nforme Frm_Ecran",
       "3: une forme ouverte / aucune : l'écran des contrats est fermé"},
  });
}

TEST(Pilote, FormesModales) {
  jouerTous({
      {"dialogue rempli",
       "cliquer Cmd_Ajouter\nforme Frm_Dialogue1\ntaper Txt_Nom Zoé\ncliquer Cmd_OK\n"
       "forme Frm_Ecran\nverifier Lst_Noms lignes Rose|Hervé|Rose|Zoé\n"
       "article NOMS 1 2 2 3 = Zoé\narticle NOMS 1 2 = |~~Zoé\narticle NOMS 1 = ^|~~Zoé^a\\^b\n"
       "article NOMS 1 4 = \"\"\nabsent NOMS 2",
       ""},
      {"article absent", "article NOMS 1 = x", "1: x / aucun article sous cette clé"},
      {"article présent", "cliquer Cmd_Ajouter\ncliquer Cmd_OK\nabsent NOMS 1",
       "3: aucun article sous cette clé / ^^a\\^b"},
      {"le premier écran attend", "cliquer Cmd_Ajouter\ncliquer Cac_A",
       "2: un champ Cac_A dans Frm_Dialogue1 / aucun champ de ce nom"},
      {"deux étages, fermés ensemble",
       "cliquer Cmd_Ajouter\ncliquer Cmd_Suite\nforme Frm_Dialogue2\ntaper Txt_Nom fin\n"
       "cliquer Cmd_OK\nforme Frm_Ecran\nverifier Lst_Noms nombre 4",
       ""},
      {"focus repris",
       "cliquer Cmd_Ajouter\ntaper Txt_Nom ?\nquitter\nverifier Txt_Nom focus oui\n"
       "cliquer Cmd_OK\nforme Frm_Dialogue1\nmessage \"Nom ref\"\nmessage Nom\naucun-message",
       ""},
      {"questions",
       "cliquer Cmd_Ajouter\nrepondre NON\nfermer\nforme Frm_Dialogue1\nrepondre OUI\nfermer\n"
       "forme Frm_Ecran\nmessage Quitter\nmessage Quitter\nmessage Quitter",
       "10: un message « Quitter » / aucun message"},
      {"question imprévue", "cliquer Cmd_Ajouter\nfermer",
       "2: une réponse prévue par repondre / question sans réponse prévue : « Quitter ? »"},
      {"réponse impossible", "cliquer Cmd_Ajouter\nrepondre OK\nfermer",
       "3: une réponse prévue par repondre / la réponse OK n'est pas proposée par la question « "
       "Quitter ? »"},
      {"réponse inutile", "repondre NON\ncliquer Cmd_Ajouter\nfermer\nrepondre OUI\nquitter",
       "4: une question à laquelle répondre / aucune jusqu'à la fin du scénario"},
      {"question avalée par l'écran", "cliquer Cmd_Avaler\ncliquer Cmd_OK",
       "2: une réponse prévue par repondre / Sûr ?"},
  });
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
