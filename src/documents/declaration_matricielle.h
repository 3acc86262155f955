#pragma once
// The hiring declaration of employers other than private ones, for the pre-printed form of a
// dot-matrix printer: lines of fixed-pitch characters, zones parted by counted blanks.

#include <string>
#include <vector>

#include "documents/dossier_declaration.h"
#include "documents/zones.h"

namespace documents {

inline constexpr const char* FondDue = "DUE.jpg";

// All that a line is made from.
struct ZonesDeclaration {
  explicit ZonesDeclaration(const DossierDeclaration& dossier);

  const DossierDeclaration& dossier;
  ZonesEmployeur empl;
  ZonesSalarie sal;
  ZonesContrat contrat;
};

struct LigneMatricielle {
  using Zone = std::string (*)(const ZonesDeclaration&);

  double y, x;  // centimetres
  Zone texte;   // "" where the case prints nothing
  // Blanks fill the text up to that many columns, behind which `suite` stands.
  int colonnes = 0;
  Zone suite = nullptr;
  double largeur = 0;  // centimetres that the text may take; 0 up to the paper's edge
};

// In the order of printing.
const std::vector<LigneMatricielle>& lignesMatricielles();

Page declarationMatricielle(const DossierDeclaration& dossier);

}  // namespace documents
