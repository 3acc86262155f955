#include "data/cles.h"

#include "data/layouts/contrat.h"

namespace data {

std::string numeroContrat(long numero) {
  std::string texte = std::to_string(numero);
  if (texte.size() < 3) texte.insert(0, 3 - texte.size(), '0');
  return texte;
}

std::string cleContrat(std::string_view codeAidant, long numero) {
  return std::string(codeAidant) + numeroContrat(numero);
}

bool estParticulierEmployeur(const CItem& contrat) {
  return contrat.Vue(Contrat::Convention) == ConventionParticuliers;
}

}  // namespace data
