#include "base/chevauchements.h"

#include <algorithm>
#include <tuple>
#include <utility>

#include "data/cles.h"
#include "data/layouts/contrat.h"
#include "data/nombre.h"

namespace base {
namespace {

namespace Contrat = data::Contrat;

constexpr long SansFin = 99999;  // after every day that a contract can bear

}  // namespace

void Chevauchements::Ajoute(std::string_view cle, const data::CItem& contrat) {
  if (contrat.Vue(Contrat::Annule) == Contrat::MarqueAnnule) return;
  const std::string_view debut = contrat.Vue(Contrat::DateDebut);
  const std::string_view fin = contrat.Vue(Contrat::DateFin);
  if (debut.empty()) return;
  std::string portee = contrat(Contrat::Association);
  if (data::estParticulierEmployeur(contrat)) {
    portee.append("\t").append(contrat.Vue(Contrat::Employeur));
  }
  periodes_.push_back({std::move(portee), static_cast<long>(data::entier(debut)),
                       fin.empty() ? SansFin : static_cast<long>(data::entier(fin)),
                       std::string(cle)});
}

std::vector<Chevauchements::Paire> Chevauchements::Vide() {
  std::vector<Paire> paires;
  std::sort(periodes_.begin(), periodes_.end(), [](const Periode& a, const Periode& b) {
    return std::tie(a.portee, a.debut, a.cle) < std::tie(b.portee, b.debut, b.cle);
  });
  const Periode* derniere = nullptr;  // of the scope, the one that ends last
  for (const Periode& periode : periodes_) {
    if (derniere != nullptr && derniere->portee != periode.portee) derniere = nullptr;
    if (derniere != nullptr && periode.debut <= derniere->fin) {
      paires.push_back({periode.cle, derniere->cle});
    }
    if (derniere == nullptr || periode.fin > derniere->fin) derniere = &periode;
  }
  periodes_.clear();
  return paires;
}

}  // namespace base
