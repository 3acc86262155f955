#include "rules/avenants.h"

#include <algorithm>

#include "data/layouts/contrat.h"
#include "data/nombre.h"
#include "data/texte.h"

namespace rules {

namespace C = data::Contrat;

namespace {

constexpr int ChiffresNumero = 2;
constexpr const char* NumeroInitial = "0";

}  // namespace

std::string numeroAvenant(const data::CItem& contrat) {
  const auto dernier = data::entier(contrat.Vue(C::Avenant, contrat.DCount(C::Avenant)));
  return data::completeAGauche(std::to_string(dernier + 1), ChiffresNumero, '0');
}

int etatsContrat(const data::CItem& contrat) {
  return std::max(contrat.DCount(C::Avenant), 1);
}

int ouvrirAvenant(data::CItem& contrat) {
  if (contrat.Vue(C::Avenant).empty()) {
    contrat.Set(C::Avenant, 1, NumeroInitial);
    if (contrat.Vue(C::DateEffet, 1).empty()) {
      contrat.Set(C::DateEffet, 1, contrat(C::DateDebut));
    }
  }
  return contrat.DCount(C::Avenant) + 1;
}

void completerDroitPublic(data::CItem& contrat) {
  const int etats = contrat.DCount(C::Avenant);
  for (const int a : C::GroupeDroitPublic) {
    const std::string dernier = contrat(a, std::max(contrat.DCount(a), 1));
    for (int v = contrat.DCount(a) + 1; v <= etats; ++v) contrat.Set(a, v, dernier);
  }
}

std::string_view refusDateEffet(long effet, std::string_view avant, long debut) {
  if (!avant.empty() && effet < data::entier(avant)) {
    return "La date d'effet doit être supérieure à la date d'effet de l'avenant précédent.";
  }
  if (debut > effet) {
    return "La date d'effet doit être supérieure ou égale à la date de début du contrat.";
  }
  return {};
}

}  // namespace rules
