#pragma once
// The commands of a scenario: what the reader checks of them and what the player runs.

#include <optional>
#include <string_view>

#include "pilote/scenario.h"
#include "screen/platform.h"

namespace pilote {

class Pilote;

struct Definition {
  std::string_view nom;
  std::string_view usage;
  int motsMin = 0;
  int motsMax = 0;
  void (*jouer)(Pilote&, const Commande&) = nullptr;
  // Throws a Faute, without its line, for words that can never be right.
  void (*verifier)(const Commande&) = nullptr;
};

// nullptr for an unknown name.
const Definition* trouverDefinition(std::string_view nom);

// Words that mean something, as the reader has let them pass; nothing for any other.
std::optional<int> entier(std::string_view texte);
std::optional<char32_t> touche(std::string_view texte);
std::optional<screen::Reponse> reponse(std::string_view texte);
std::optional<screen::Tranche> tranche(std::string_view texte);
// The N of an unquoted "#N".
std::optional<int> rang(const Mot& mot);

// What a user does.
void taper(Pilote& pilote, const Commande& commande);
void appuyer(Pilote& pilote, const Commande& commande);
void quitter(Pilote& pilote, const Commande& commande);
void cliquer(Pilote& pilote, const Commande& commande);
void choisir(Pilote& pilote, const Commande& commande);
void doubleCliquer(Pilote& pilote, const Commande& commande);
void choisirOnglet(Pilote& pilote, const Commande& commande);
void deplacerBarre(Pilote& pilote, const Commande& commande);
void fermer(Pilote& pilote, const Commande& commande);
void repondre(Pilote& pilote, const Commande& commande);
void trancher(Pilote& pilote, const Commande& commande);
// What another station writes meanwhile.
void ecrireAilleurs(Pilote& pilote, const Commande& commande);

// What the workstation has.
void regler(Pilote& pilote, const Commande& commande);
void installer(Pilote& pilote, const Commande& commande);

// What must hold.
void verifierTransmis(Pilote& pilote, const Commande& commande);
void verifierMessage(Pilote& pilote, const Commande& commande);
void verifierAucunMessage(Pilote& pilote, const Commande& commande);
void verifierIndication(Pilote& pilote, const Commande& commande);
void verifierConflit(Pilote& pilote, const Commande& commande);
void verifierForme(Pilote& pilote, const Commande& commande);
void verifierImprime(Pilote& pilote, const Commande& commande);
void verifierChamp(Pilote& pilote, const Commande& commande);
void verifierArticle(Pilote& pilote, const Commande& commande);
void verifierAbsent(Pilote& pilote, const Commande& commande);
void voir(Pilote& pilote, const Commande& commande);

}  // namespace pilote
