#include "rules/traitements.h"

#include <vector>

#include "data/cles.h"
#include "data/layouts/fichiers.h"
#include "data/question.h"

namespace rules {

namespace {

using data::citer, data::citerDebut, data::citerFin;

bool trouve(data::Db& db, std::string_view fichier, const std::string& question) {
  return !db.Selectionner(question, fichier, "0").Vide();
}

bool particulier(const ContratTraite& contrat) {
  return contrat.convention == data::ConventionParticuliers;
}

// The files of its results whose keys go on with the month; those of the interventions have "000"
// between.
std::vector<std::string_view> fichiersMensuels(const ContratTraite& contrat) {
  std::vector<std::string_view> fichiers{data::fichier::DETAILCALCUL};
  if (particulier(contrat)) fichiers.push_back(data::fichier::DETAILMANDAT);
  if (contrat.administratif) fichiers.push_back(data::fichier::DETAILADMIN);
  if (contrat.typeActivite == "P") fichiers.push_back(data::fichier::DETAILPREST);
  return fichiers;
}

bool parInterventions(const ContratTraite& contrat) {
  return contrat.typeActivite != "P";
}

}  // namespace

std::vector<std::string_view> fichiersTraites(const ContratTraite& contrat) {
  std::vector<std::string_view> fichiers = fichiersMensuels(contrat);
  if (parInterventions(contrat)) fichiers.push_back(data::fichier::DETAILINTER);
  return fichiers;
}

std::optional<Refus> Verif_SuppressionPossible(data::Db& db, const ContratTraite& contrat) {
  for (const auto fichier : fichiersTraites(contrat)) {
    if (trouve(db, fichier,
               "SSELECT " + std::string(fichier) + " AVEC 0 = " + citerDebut(contrat.cle))) {
      return Refus{
          "Suppression impossible du contrat car des traitements ont été effectués sur celui-ci."};
    }
  }
  return std::nullopt;
}

std::optional<Refus> Verif_ModificationPossible(data::Db& db, const ContratTraite& contrat,
                                                const std::string& mois) {
  const Refus refus{
      "Date de fin du contrat non compatible car des traitements ont été effectués après "
      "celle-ci."};
  for (const auto fichier : fichiersMensuels(contrat)) {
    if (trouve(db, fichier,
               "SSELECT " + std::string(fichier) + " AVEC 0 > " + citer(contrat.cle + mois) +
                   " AND = " + citerDebut(contrat.cle))) {
      return refus;
    }
  }
  if (parInterventions(contrat) &&
      trouve(
          db, "DETAILINTER",
          "SSELECT DETAILINTER AVEC 0 = " + citerDebut(contrat.cle) + " AND > " + citerFin(mois))) {
    return refus;
  }
  return std::nullopt;
}

std::optional<Refus> Verif_Opposition(data::Db& db, const ContratTraite& contrat) {
  if (!trouve(db, "OPPOSITION", "SSELECT OPPOSITION AVEC 0 = " + citerDebut(contrat.cle))) {
    return std::nullopt;
  }
  return Refus{"Il existe une opposition sur ce contrat, impossible de supprimer ce contrat."};
}

std::optional<Refus> Verif_PlanningSuppression(data::Db& db, const ContratTraite& contrat,
                                               const JoursPlanifies& jours) {
  const std::string aidant = contrat.cle.substr(0, data::LongueurCodeAidant);
  // The activities of the entity are those whose codes begin with its own.
  std::string question =
      "SELECT TPSDETAILSINTERV AVEC @ID = " +
      (particulier(contrat)
           ? citerDebut(aidant + contrat.employeur) + " AND AVEC TypeActDetailInterv = \"M\""
           : citerDebut(aidant) + " AND AVEC TypeActDetailInterv = " + citer(contrat.typeActivite) +
                 " AND AVEC CodeActInterv = " + citerDebut(contrat.association));
  if (jours.dernierJour) {
    question += " AND AVEC DateDebInterv <= " + citer(std::to_string(*jours.dernierJour)) +
                " AND AVEC 1 >= " + citer(std::to_string(jours.fin.value_or(*jours.dernierJour)));
  } else {
    question += " AND AVEC 1 >= " + citer(std::to_string(jours.debut)) + " OR = \"\"";
  }
  if (trouve(db, "TPSDETAILSINTERV", question)) {
    return Refus{
        "Impossible de supprimer ce contrat car des interventions ont été saisies dans le menu "
        "Planning.\r\n"};
  }
  if (trouve(db, "TPSMOI", "SELECT TPSMOI AVEC 4 = " + citer(contrat.cle))) {
    return Refus{
        "Impossible de supprimer ce contrat car de la Main d'Oeuvre Indirecte a été saisie dans le "
        "menu Planning.\r\n"};
  }
  return std::nullopt;
}

}  // namespace rules
