#include "demo/contrat.h"

#include <algorithm>

#include "data/layouts/contrat.h"
#include "data/layouts/fichiers.h"
#include "demo/generateur.h"

namespace demo {
namespace {

namespace C = data::Contrat;
namespace fichier = data::fichier;

// Payroll has been through every month of the contract up to the last one that it has closed; not
// through that of a carer who never came.
void setPeriodes(Contrat& contrat) {
  const PlanContrat& plan = contrat.plan;
  if (plan.annule) return;
  if (plan.fin != 0) contrat.bulletin = data::periodeDe(plan.fin);
  contrat.nonVenu = plan.fin == plan.debut && contrat.alea.surCent(60);
  if (contrat.nonVenu) return;
  const std::string debut = data::periodeDe(plan.debut);
  const std::string& cloturee = contrat.parametres.derniereTraitee;
  if (debut <= cloturee) {
    contrat.traitee = plan.fin != 0 ? std::min(contrat.bulletin, cloturee) : cloturee;
  }
  contrat.calculee = contrat.traitee;
  if (plan.fin == 0 && debut <= contrat.parametres.periodeCourante && contrat.alea.surCent(10)) {
    contrat.calculee = contrat.parametres.periodeCourante;
  }
}

std::vector<std::string> tirerActivites(Contrat& contrat) {
  constexpr int Nombre = static_cast<int>(std::size(Activites));
  const bool mandat = contrat.plan.particulier;
  const int premiere = mandat ? PremiereMandataire : 0;
  const int derniere = (mandat ? Nombre : PremiereMandataire) - 1;
  const int depart = static_cast<int>(contrat.alea.entre(premiere, derniere));
  const int fin = static_cast<int>(contrat.alea.entre(depart, std::min(derniere, depart + 2)));
  std::vector<std::string> codes;
  for (int i = depart; i <= fin; ++i) {
    codes.push_back(std::string(contrat.codeEntite()) + Activites[i].suffixe);
  }
  return codes;
}

// What the employer has signed; else the first contract of the agreement.
std::string prevoyanceDe(const Contrat& contrat) {
  if (contrat.plan.particulier) {
    return baseAide(contrat.parametres, contrat.plan.employeur).prevoyance;
  }
  for (const Prevoyance& prevoyance : Prevoyances) {
    if (std::string_view(prevoyance.convention) == contrat.codeConvention()) return prevoyance.code;
  }
  return "";
}

const char* tirerNature(Contrat& contrat) {
  if (contrat.plan.stage) return C::NatureStage;
  if (contrat.plan.type == 'I') {
    return !contrat.mensuel && contrat.alea.surCent(6) ? "CII" : "CDI";
  }
  if (contrat.plan.particulier || !contrat.plan.codeRemplace.empty()) return "CDD";
  const long tirage = contrat.alea.entre(1, 100);
  return tirage <= 4 ? "CUI" : tirage <= 7 ? "PRO" : tirage <= 9 ? "APP" : "CDD";
}

void setMotifCDD(Contrat& contrat) {
  const PlanContrat& plan = contrat.plan;
  data::CItem& item = contrat.item;
  if (!plan.codeRemplace.empty()) {
    item.Set(C::MotifEmbauche, "01");
    item.Set(C::AidantsRemplaces, 1, plan.codeRemplace);
    item.Set(C::AbsencesRemplacees, 1, plan.cleAbsence);
    item.Set(C::MotifRecours, "03");
    return;
  }
  const long tirage = contrat.alea.entre(1, 100);
  item.Set(C::MotifRecours, tirage <= 70 ? "01" : tirage <= 80 ? "02" : "03");
  if (tirage <= 60) {
    item.Set(C::MotifEmbauche, "02");
    item.Set(C::MotifEmbaucheTexte, 1, "Ouverture de nouveaux plans d'aide");
  } else if (tirage <= 80) {
    item.Set(C::MotifEmbaucheTexte, 1, "Renfort pendant la période des congés");
    item.Set(C::MotifEmbaucheTexte, 2, "et des ponts");
  } else {
    item.Set(C::MotifEmbauche, "03");
    item.Set(C::PersonnesRemplacees, 1, "Équipe du secteur");
  }
}

void setStage(data::CItem& item) {
  item.Set(C::StageEcole, "Lycée professionnel Jean Guéhenno");
  item.Set(C::StageSujet, "Organisation des tournées d'intervention");
  item.Set(C::StageTuteur, "Responsable de secteur");
  item.Set(C::StageService, "Secteur");
  item.Set(C::StageSeuil, "435");
}

}  // namespace

Contrat::Contrat(const Parametres& p, const BaseAidant& b, const PlanContrat& pl)
    : parametres(p),
      base(b),
      plan(pl),
      alea(p.graine, Domaine::Contrat, static_cast<std::uint64_t>(b.numero),
           static_cast<std::uint64_t>(pl.numero)),
      cle(pl.cle(b)) {
  administratif = plan.metier->emploi == Emploi::Administratif;
  mensuel = administratif || alea.surCent(plan.particulier ? 20 : 50);
  module = mensuel && !administratif;
  setPeriodes(*this);
  activites = tirerActivites(*this);
  prevoyance = prevoyanceDe(*this);
}

std::string Contrat::employeur() const {
  if (plan.particulier) return codePersonne(plan.employeur);
  // A carer belongs to one establishment of the entity, whatever the contract.
  std::vector<const char*> codes;
  for (const Etablissement& etablissement : Etablissements) {
    if (std::string_view(etablissement.code).starts_with(codeEntite())) {
      codes.push_back(etablissement.code);
    }
  }
  return codes[static_cast<std::size_t>(base.numero) % codes.size()];
}

void setOrigine(Contrat& contrat) {
  const PlanContrat& plan = contrat.plan;
  data::CItem& item = contrat.item;
  item.Set(C::Convention, contrat.codeConvention());
  item.Set(C::Association, contrat.codeEntite());
  item.Set(C::Employeur, contrat.employeur());
  item.Set(C::Type, std::string(1, plan.type));
  item.Set(C::Salaire, contrat.mensuel ? "M" : "H");
  item.Set(C::Statut, contrat.administratif ? "A" : "P");
  item.Set(C::DateDebut, texte(plan.debut));
  item.Set(C::PeriodeEssai, texte(plan.essai));
  item.Set(C::EssaiRenouvelable, plan.essaiRenouvelable ? "1" : "0");
  const std::string nature = tirerNature(contrat);
  item.Set(C::Nature, nature);
  if (nature == "CUI") {
    item.Set(C::DateConventionAidee, texte(plan.debut - contrat.alea.entre(1, 20)));
    item.Set(C::ReferenceConventionAidee, "CUI" + chiffres(contrat.alea.entre(1, 99999), 7));
  }
  if (plan.stage) setStage(item);
  if (plan.type == 'D') {
    item.Set(C::DateFinPresumee, 1, texte(plan.finPresumee));
    if (!plan.codeRemplace.empty()) item.Set(C::DureeMinimale, "1 mois");
    setMotifCDD(contrat);
  }
  if (plan.convention == 0 && !contrat.administratif && contrat.alea.surCent(60)) {
    item.Set(C::ContrepartieInterruption, texte(contrat.alea.entre(1, 3)));
  }
  item.Set(C::DateDeclaration, texte(plan.debut - 1));
  if (plan.annule) item.Set(C::Annule, C::MarqueAnnule);
  if (plan.suivant != 0) {
    item.Set(C::CongesReportesSur, contrat.base.code + chiffres(plan.suivant, 3));
  }
  if (plan.precedent != 0) {
    item.Set(C::CongesReprisDe, contrat.base.code + chiffres(plan.precedent, 3));
  }
}

void ecrireContrat(Sortie& sortie, Contrat& contrat) {
  setOrigine(contrat);
  setCaracteristiques(contrat);
  setElementsPaie(contrat);
  setConges(contrat);
  setFin(contrat);
  setSuivi(contrat);
  sortie.ecrire(fichier::CONTRAT, contrat.cle, contrat.item);
  sortie.indexer(fichier::PrefixeContrats, contrat.codeEntite(), contrat.codeConvention(),
                 contrat.cle);
  for (int avenant = 1; avenant <= contrat.avenants; ++avenant) {
    sortie.indexer(fichier::PrefixeAvenants, contrat.codeEntite(), contrat.codeConvention(),
                   contrat.cle + chiffres(avenant, 2));
  }
  ecrireBulletins(sortie, contrat);
  ecrireTempsEffectif(sortie, contrat);
}

}  // namespace demo
