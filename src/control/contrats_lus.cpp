#include "control/contrats_lus.h"

#include <algorithm>
#include <set>

#include "data/cles.h"
#include "data/layouts/contrat.h"
#include "data/layouts/fichiers.h"
#include "data/layouts/voisins.h"
#include "data/nombre.h"

namespace control {

// The carer with all contracts, then whatever these name.
void ContratsLus::Annoncer(const std::string& aidant, data::Route& route) const {
  if (!route.Utile() || aidant.empty()) return;
  namespace f = data::fichier;
  const auto contrats = data::KeyRange::Prefixe(aidant);
  route.Annoncer({{f::CIVILAIDANT, {aidant}, {}},
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

// A number without a record is passed over.
void ContratsLus::Lire(const std::string& aidant,
                       const std::function<void(const data::CItem&)>& acte) {
  lus_ = false;
  std::vector<ContratAidant> lus;
  data::CItem civil;
  session_.F_CIVILAIDANT.Lire(aidant, civil);
  const long long dernier = std::min(data::entier(civil.Vue(data::CivilAidant::DernierNumero)),
                                     data::DernierNumeroPossible);
  for (long numero = 1; numero <= dernier; ++numero) {
    data::CItem contrat;
    if (!session_.F_CONTRAT.Lire(aidant + data::numeroContrat(numero), contrat)) continue;
    lus.push_back(ContratAidant::De(contrat));
    if (acte) acte(contrat);
  }
  tous_ = std::move(lus);
  lus_ = true;
  if (SurChangement) SurChangement();
}

void ContratsLus::Assurer(const std::string& aidant) {
  if (!lus_) Lire(aidant);
}

void ContratsLus::Noter(const std::string& cle) {
  data::CItem contrat;
  if (!session_.F_CONTRAT.Lire(cle, contrat)) return;
  const auto connu = std::find_if(tous_.begin(), tous_.end(),
                                  [&](const ContratAidant& c) { return c.cle == cle; });
  if (connu == tous_.end()) {
    tous_.push_back(ContratAidant::De(contrat));
  } else {
    *connu = ContratAidant::De(contrat);
  }
  if (SurChangement) SurChangement();
}

}  // namespace control
