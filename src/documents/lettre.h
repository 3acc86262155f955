#pragma once
// The letters of a contract and of its amendments: which template serves, the fields that a
// template may name, and the values that a contract has for them. How a template is stored is its
// reader's concern.
//
//   const DossierLettre d = lireDossierLettre(db, "00031001", "", aujourdhui);
//   modeleLettre(d).fichier                    "cdi"
//   fusionner({"salarie_nom", "prime"}, d)     valeurs {salarie_nom: "DURAND"}, inconnus {prime}

#include <map>
#include <span>
#include <string>
#include <vector>

#include "documents/dossier_lettre.h"

namespace documents {

struct ModeleLettre {
  const char* fichier;  // without its extension
  const char* titre;
  bool (*convient)(const DossierLettre&);
};

// In the order in which they are tried; one always suits.
std::span<const ModeleLettre> modelesLettres();
const ModeleLettre& modeleLettre(const DossierLettre& dossier);

struct ChampLettre {
  const char* nom;
  const char* sens;  // French, for who edits a template
  // A text of several lines has them parted by "\n".
  std::string (*valeur)(const DossierLettre&);
  // A contract may well have nothing there.
  bool facultatif = false;
};

// By theme, in the order of the clerk's documentation.
struct ThemeLettre {
  const char* titre;
  std::vector<ChampLettre> champs;
};
const std::vector<ThemeLettre>& champsLettres();
// nullptr for a name that no letter has.
const ChampLettre* champLettre(std::string_view nom);

struct Fusion {
  // Of every field that was named and is known, by name.
  std::map<std::string, std::string> valeurs;
  // Named by the template: unknown ones, and those for which this contract has nothing and a
  // contract should. Each once, in the template's order.
  std::vector<std::string> inconnus, vides;
};

Fusion fusionner(const std::vector<std::string>& noms, const DossierLettre& dossier);

}  // namespace documents
