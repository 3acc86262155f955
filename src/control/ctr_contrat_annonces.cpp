// What a search is about to read, told to a store across a line before it is asked one by one.

#include <set>

#include "control/ctr_contrat.h"
#include "data/cles.h"
#include "data/layouts/contrat.h"
#include "data/layouts/fichiers.h"
#include "data/layouts/voisins.h"

namespace control {

// The carer with all contracts, then whatever these name.
void Ctr_Contrat::AnnoncerContrats(data::Route& route) {
  if (!route.Utile() || W_Code.empty()) return;
  namespace f = data::fichier;
  const auto contrats = data::KeyRange::Prefixe(W_Code);
  route.Annoncer({{f::CIVILAIDANT, {W_Code}, {}},
                  {f::PERIODESPAIE, {std::string(data::PeriodesPaie::Cle)}, {}},
                  {f::CONTRAT, {}, {contrats}}});
  std::set<std::string> aides;
  std::set<std::string> associations;
  std::set<std::string> conventions;
  session_.Db->Stockage().Scan(f::CONTRAT, contrats, [&](auto, std::string_view texte) {
    const data::CItem contrat(texte);
    if (data::estParticulierEmployeur(contrat)) {
      aides.insert(contrat(data::Contrat::Employeur));
    } else {
      associations.insert(contrat(data::Contrat::Association));
    }
    conventions.insert(contrat(data::Contrat::Convention));
    return true;
  });
  const auto liste = [](const std::set<std::string>& cles) {
    return std::vector<std::string>(cles.begin(), cles.end());
  };
  route.Annoncer({{f::CIVILAIDE, liste(aides), {}},
                  {f::ASSOCIATION, liste(associations), {}},
                  {f::CONVENTIONCOL, liste(conventions), {}}});
}

}  // namespace control
