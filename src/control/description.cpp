#include "control/description.h"

#include "data/cles.h"
#include "data/jour.h"
#include "data/layouts/contrat.h"
#include "data/layouts/voisins.h"
#include "data/liste_codes.h"
#include "data/nombre.h"

namespace control {

namespace {

namespace C = data::Contrat;

std::string numero(const std::string& cle) {
  return cle.empty() ? "Nouveau contrat"
                     : "Contrat " + cle.substr(static_cast<std::size_t>(data::LongueurCodeAidant));
}

// "du 01/02/2026 au 24/01/2027", "depuis le 01/02/2026", "à partir du 01/12/2026".
std::string periode(long debut, std::optional<long> fin, EtatContrat etat) {
  const std::string premier = data::dateAffichee(debut);
  if (fin) return "du " + premier + " au " + data::dateAffichee(*fin);
  return (etat == EtatContrat::AVenir ? "à partir du " : "depuis le ") + premier;
}

std::string etablissement(const session::Session& session, const data::CItem& contrat) {
  if (data::estParticulierEmployeur(contrat)) {
    return "Employeur : " + nommerPortee(session, ContratAidant::De(contrat).portee);
  }
  data::CItem article;
  session.F_ETABLISSEMENT.Lire(contrat.Vue(C::Employeur), article);
  const std::string libelle = article(data::Etablissement::Libelle);
  return "Établissement : " + (libelle.empty() ? contrat(C::Employeur) : libelle);
}

std::string nature(const session::Session& session, const data::CItem& contrat) {
  data::CItem natures;
  session.F_TABLES.Lire(data::Tables::NatureContrat, natures);
  const std::string libelle = data::ListeCodes::DeTable(natures).Libelle(contrat(C::Nature));
  return libelle.empty() ? contrat(C::Nature) : libelle;
}

}  // namespace

const char* direEtat(EtatContrat etat) {
  switch (etat) {
    case EtatContrat::EnCours:
      return "en cours";
    case EtatContrat::AVenir:
      return "à venir";
    case EtatContrat::Termine:
      return "terminé";
    case EtatContrat::Annule:
      return "annulé";
  }
  return "";
}

std::string direBarre(const Barre& barre) {
  std::optional<long> fin;
  if (!barre.sansFin) fin = barre.dite;
  std::string texte = numero(barre.cle) + ", " + periode(barre.debut, fin, barre.etat);
  if (barre.presumee) texte += " (fin présumée)";
  texte += std::string(", ") + direEtat(barre.etat);
  if (barre.chevauche) texte += ", chevauche un autre contrat";
  return texte;
}

std::string decrireContrat(const session::Session& session, const data::CItem& contrat,
                           long aujourdhui) {
  const ContratAidant valeurs = ContratAidant::De(contrat);
  const EtatContrat etat = etatContrat(valeurs, aujourdhui);
  std::string texte = numero(valeurs.cle) + ", " + direEtat(etat);
  texte += "\nDates : " + periode(valeurs.dates.debut, valeurs.dates.fin, etat);
  texte += "\n" + etablissement(session, contrat);
  if (const std::string libelle = nature(session, contrat); !libelle.empty()) {
    texte += "\nNature : " + libelle;
  }
  if (valeurs.finPresumee) texte += "\nFin présumée : " + data::dateAffichee(*valeurs.finPresumee);
  // The first day counts as one of the trial.
  if (const auto essai = data::entier(contrat.Vue(C::PeriodeEssai)); essai > 0) {
    texte += "\nFin de l'essai : " +
             data::dateAffichee(valeurs.dates.debut + static_cast<long>(essai) - 1);
    if (contrat.Vue(C::EssaiRenouvelable) == "1") texte += " (renouvelable)";
  }
  return texte;
}

std::string nommerPortee(const session::Session& session, const rules::Portee& portee) {
  data::CItem article;
  if (portee.convention == data::ConventionParticuliers) {
    if (!session.F_CIVILAIDE.Lire(portee.employeur, article)) return portee.employeur;
    return article(data::CivilAide::Nom) + " " + article(data::CivilAide::Prenom);
  }
  if (!session.F_ASSOCIATION.Lire(portee.association, article)) return portee.association;
  return article(data::Association::Nom);
}

}  // namespace control
