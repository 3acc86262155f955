#include "control/contrat_aidant.h"

#include "data/cles.h"
#include "data/layouts/contrat.h"
#include "data/nombre.h"

namespace control {

namespace {

namespace C = data::Contrat;

std::optional<long> jour(const data::CItem& contrat, int attribut) {
  const auto texte = contrat.Vue(attribut);
  if (texte.empty()) return std::nullopt;
  return static_cast<long>(data::entier(texte));
}

}  // namespace

ContratAidant ContratAidant::De(const data::CItem& contrat) {
  ContratAidant resultat;
  resultat.cle = contrat(0);
  resultat.portee = {resultat.cle.substr(0, data::LongueurCodeAidant),
                     resultat.cle.substr(data::LongueurCodeAidant), contrat(C::Convention),
                     contrat(C::Association), contrat(C::Employeur)};
  resultat.dates = {jour(contrat, C::DateDebut).value_or(0), jour(contrat, C::DateFin)};
  resultat.finPresumee = jour(contrat, C::DateFinPresumee);
  resultat.annule = contrat.Vue(C::Annule) == C::MarqueAnnule;
  return resultat;
}

EtatContrat etatContrat(const rules::Dates& dates, long aujourdhui) {
  if (dates.fin && *dates.fin < aujourdhui) return EtatContrat::Termine;
  return dates.debut != 0 && dates.debut <= aujourdhui ? EtatContrat::EnCours : EtatContrat::AVenir;
}

EtatContrat etatContrat(const ContratAidant& contrat, long aujourdhui) {
  return contrat.annule ? EtatContrat::Annule : etatContrat(contrat.dates, aujourdhui);
}

Compte compter(const std::vector<ContratAidant>& contrats, long aujourdhui) {
  Compte compte;
  for (const ContratAidant& contrat : contrats) {
    const EtatContrat etat = etatContrat(contrat, aujourdhui);
    int& nombre = etat == EtatContrat::EnCours   ? compte.enCours
                  : etat == EtatContrat::AVenir  ? compte.aVenir
                  : etat == EtatContrat::Termine ? compte.termines
                                                 : compte.annules;
    ++nombre;
    if (etat != EtatContrat::EnCours && etat != EtatContrat::AVenir) continue;
    const auto fin = contrat.FinAttendue();
    if (!fin || *fin < aujourdhui) continue;
    if (!compte.prochaine || *fin < compte.prochaine->jour) compte.prochaine = {*fin, contrat.cle};
  }
  return compte;
}

}  // namespace control
