#include "control/placement.h"

#include <algorithm>

namespace control {

namespace {

bool suitEmployeur(const LigneContrat& ligne, const LigneContrat& nouvelle) {
  return ligne.employeur.empty() || ligne.employeur > nouvelle.employeur;
}

bool suitCroissant(const LigneContrat& ligne, const LigneContrat& nouvelle) {
  return ligne.debut.empty() || ligne.jourDebut > nouvelle.jourDebut;
}

// Open contracts first, the most recent on top, then the ended ones likewise.
bool suitDecroissant(const LigneContrat& ligne, const LigneContrat& nouvelle) {
  if (ligne.debut.empty()) return true;
  const bool plusAncienne = ligne.jourDebut < nouvelle.jourDebut;
  return nouvelle.Terminee() ? ligne.Terminee() && plusAncienne : ligne.Terminee() || plusAncienne;
}

}  // namespace

std::size_t rangInsertion(const std::vector<LigneContrat>& lignes, const LigneContrat& nouvelle,
                          Tri tri) {
  const auto suit = tri == Tri::Employeur              ? suitEmployeur
                    : tri == Tri::AncienneteCroissante ? suitCroissant
                                                       : suitDecroissant;
  const auto place = std::find_if(lignes.begin(), lignes.end(),
                                  [&](const auto& ligne) { return suit(ligne, nouvelle); });
  return static_cast<std::size_t>(place - lignes.begin());
}

}  // namespace control
