#include "control/filtre.h"

#include "data/cles.h"
#include "data/layouts/contrat.h"
#include "data/nombre.h"

namespace control {

namespace C = data::Contrat;

bool FiltreContrats::Garde(const data::CItem& contrat) const {
  if (contrat.Vue(C::Annule) == C::MarqueAnnule || !EstValide(contrat)) return false;
  if (!association.empty() && contrat.Vue(C::Association) != association) return false;
  return type == TousType ||
         data::estParticulierEmployeur(contrat) == (type == ParticuliersEmployeurs);
}

bool FiltreContrats::EstValide(const data::CItem& contrat) const {
  const std::string_view fin = contrat.Vue(C::DateFin);
  switch (validite) {
    case Actifs:
      return fin.empty() || data::entier(fin) >= debutPeriode;
    case Historiques:
      return !fin.empty() && data::entier(fin) < aujourdhui;
    default:
      return true;
  }
}

}  // namespace control
