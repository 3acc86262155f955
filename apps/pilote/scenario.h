#pragma once
// A text scenario: one command a line, read whole and checked before anything of it is played.
//
//   # Les contrats en cours de Rose Martin
//   cliquer Cmd_Recherche
//   verifier Lst_Type nombre 3
//   choisir Lst_DatDebContrat #0
//
// Words are parted by blanks. Between quotes a word may hold blanks, and a quote written twice. `#`
// at the start of a word begins a comment, except before digits alone, which name a row. The
// commands stand in commandes.cpp.

#include <istream>
#include <string>
#include <string_view>
#include <vector>

namespace pilote {

struct Mot {
  std::string texte;
  bool cite = false;  // between quotes: never a row and never the sign of `article`
  int colonne = 0;    // from 1, in characters
};

struct Definition;

struct Commande {
  const Definition* definition = nullptr;
  std::vector<Mot> mots;  // after the command's name
  int ligne = 0;          // from 1
  std::string source;     // the line without its comment and outer blanks

  const std::string& Texte(std::size_t i) const { return mots[i].texte; }
};

// A line that cannot be understood.
struct Faute {
  int ligne = 0;
  int colonne = 0;
  std::string raison;  // French, one sentence
};

struct Scenario {
  std::vector<Commande> commandes;
  // All of them, in order; a scenario with a fault is not to be played.
  std::vector<Faute> fautes;
};

Scenario lireScenario(std::istream& entree);

}  // namespace pilote
