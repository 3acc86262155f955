#include "rules/reprise.h"

#include "data/layouts/contrat.h"
#include "data/monnaie.h"

namespace rules {

namespace {

namespace C = data::Contrat;

constexpr long long EcartAnciennete = 4;
constexpr long long EcartPrime = 3;

std::string decale(const std::string& jour, long long jours) {
  return jour.empty() ? jour : std::to_string(data::entier(jour) + jours);
}

// Days that are no number count for none.
long long joursEntiers(const std::string& centiemes) {
  return data::estNombre(centiemes) ? data::entier(centiemes) / 100 : 0;
}

DepartReprise depart(const std::string& jour, const std::string& centiemes) {
  DepartReprise depart{jour, centiemes, {}, {}};
  if (!data::estNombre(centiemes)) return depart;
  depart.suspension = data::Monnaie::DeCentiemes(centiemes).TexteCourt();
  depart.reference = decale(jour, joursEntiers(centiemes));
  return depart;
}

}  // namespace

Reprise proposerReprise(const data::CItem& precedent, const data::CItem& nouveau,
                        bool grilleChoisie) {
  const long long ecart =
      data::entier(nouveau.Vue(C::DateDebut)) - data::entier(precedent.Vue(C::DateFin));
  const std::string suspensionGrille = precedent(C::JoursSuspensionGrille);
  const std::string suspensionAnciennete = precedent(C::JoursSuspensionAnciennete);
  const std::string anciennete = precedent(C::DateAnciennete);

  Reprise reprise;
  reprise.grille =
      depart(precedent(C::DepartGrille, precedent.DCount(C::DepartGrille)), suspensionGrille);
  reprise.anciennete =
      depart(anciennete.empty() ? precedent(C::DateDebut) : anciennete, suspensionAnciennete);
  reprise.avecGrille = !reprise.grille.jour.empty() && grilleChoisie;
  if (reprise.avecGrille) {
    reprise.grille.propose =
        decale(reprise.grille.jour, joursEntiers(suspensionGrille) + ecart - 1);
  }
  if (ecart + 1 <= EcartAnciennete) {
    reprise.anciennete.propose =
        decale(reprise.anciennete.jour, joursEntiers(suspensionAnciennete) + ecart - 1);
  }
  return reprise;
}

bool primeTombe(const data::CItem& precedent, const data::CItem& nouveau) {
  return data::entier(precedent.Vue(C::PrimePrecarite)) == 1 &&
         data::entier(precedent.Vue(C::DateFin)) + EcartPrime >=
             data::entier(nouveau.Vue(C::DateDebut)) &&
         precedent.Vue(C::Type) == "D" && nouveau.Vue(C::Type) == "I";
}

}  // namespace rules
