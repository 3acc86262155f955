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
  double y, x;                                    // centimetres
  std::string (*texte)(const ZonesDeclaration&);  // "" where the case prints nothing
};

// In the order of printing.
const std::vector<LigneMatricielle>& lignesMatricielles();

Page declarationMatricielle(const DossierDeclaration& dossier);

}  // namespace documents
