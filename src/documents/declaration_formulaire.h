#pragma once
// The hiring declaration on its form: one table of places, printed over the picture of the form.

#include <optional>
#include <string>
#include <vector>

#include "documents/dossier_declaration.h"

namespace documents {

inline constexpr const char* FondUrssaf = "URSSAF.jpg";

// A place of the form. Several x: the characters of the text fall into boxes, one at each.
struct Place {
  double y;  // centimetres, as x
  std::vector<double> x;
  std::string (*texte)(const DossierDeclaration&);  // "" where the case prints nothing
  double largeur = 0;                               // of the box of a whole text
  bool titre = false;                               // the heading, in larger bold letters
};

// In the order of printing.
const std::vector<Place>& placesFormulaire();

Page declarationFormulaire(const DossierDeclaration& dossier);

}  // namespace documents
