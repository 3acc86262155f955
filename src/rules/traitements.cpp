#include "rules/traitements.h"

#include <vector>

#include "data/cles.h"
#include "data/layouts/fichiers.h"
#include "data/layouts/voisins.h"
#include "data/requete.h"

namespace rules {

namespace {

namespace fichier = data::fichier;
using data::citer, data::citerDebut, data::citerFin;
using data::Cle, data::Requete;

constexpr const char* Mandat = "M";

bool trouve(data::Db& db, const data::Requete& requete) {
  return !requete.Lire(db, {Cle}).Vide();
}

bool particulier(const ContratTraite& contrat) {
  return contrat.convention == data::ConventionParticuliers;
}

// The files of its results whose keys go on with the month; those of the interventions have "000"
// between.
std::vector<std::string_view> fichiersMensuels(const ContratTraite& contrat) {
  std::vector<std::string_view> fichiers{fichier::DETAILCALCUL};
  if (particulier(contrat)) fichiers.push_back(fichier::DETAILMANDAT);
  if (contrat.administratif) fichiers.push_back(fichier::DETAILADMIN);
  if (contrat.typeActivite == "P") fichiers.push_back(fichier::DETAILPREST);
  return fichiers;
}

bool parInterventions(const ContratTraite& contrat) {
  return contrat.typeActivite != "P";
}

}  // namespace

std::vector<std::string_view> fichiersTraites(const ContratTraite& contrat) {
  std::vector<std::string_view> fichiers = fichiersMensuels(contrat);
  if (parInterventions(contrat)) fichiers.push_back(fichier::DETAILINTER);
  return fichiers;
}

std::optional<Refus> Verif_SuppressionPossible(data::Db& db, const ContratTraite& contrat) {
  for (const auto nom : fichiersTraites(contrat)) {
    if (trouve(db, Requete(nom).Avec(Cle, "=", citerDebut(contrat.cle)))) {
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
  for (const auto nom : fichiersMensuels(contrat)) {
    if (trouve(db, Requete(nom)
                       .Avec(Cle, ">", citer(contrat.cle + mois))
                       .Et("=", citerDebut(contrat.cle)))) {
      return refus;
    }
  }
  if (parInterventions(contrat) && trouve(db, Requete(fichier::DETAILINTER)
                                                  .Avec(Cle, "=", citerDebut(contrat.cle))
                                                  .Et(">", citerFin(mois)))) {
    return refus;
  }
  return std::nullopt;
}

std::optional<Refus> Verif_Opposition(data::Db& db, const ContratTraite& contrat) {
  if (!trouve(db, Requete(fichier::OPPOSITION).Avec(Cle, "=", citerDebut(contrat.cle)))) {
    return std::nullopt;
  }
  return Refus{"Il existe une opposition sur ce contrat, impossible de supprimer ce contrat."};
}

std::optional<Refus> Verif_PlanningSuppression(data::Db& db, const ContratTraite& contrat,
                                               const JoursPlanifies& jours) {
  const std::string aidant = contrat.cle.substr(0, data::LongueurCodeAidant);
  // The activities of the entity are those whose codes begin with its own.
  Requete interventions(fichier::TPSDETAILSINTERV, "SELECT");
  if (particulier(contrat)) {
    interventions.Avec(Cle, "=", citerDebut(aidant + contrat.employeur))
        .Avec("TypeActDetailInterv", "=", citer(Mandat));
  } else {
    interventions.Avec(Cle, "=", citerDebut(aidant))
        .Avec("TypeActDetailInterv", "=", citer(contrat.typeActivite))
        .Avec("CodeActInterv", "=", citerDebut(contrat.association));
  }
  using data::TpsDetailsInterv::DateFin;
  if (jours.dernierJour) {
    interventions.Avec("DateDebInterv", "<=", citer(std::to_string(*jours.dernierJour)))
        .Avec(DateFin, ">=", citer(std::to_string(jours.fin.value_or(*jours.dernierJour))));
  } else {
    interventions.Avec(DateFin, ">=", citer(std::to_string(jours.debut))).Ou("=", citer(""));
  }
  if (trouve(db, interventions)) {
    return Refus{
        "Impossible de supprimer ce contrat car des interventions ont été saisies dans le menu "
        "Planning.\r\n"};
  }
  if (trouve(db, Requete(fichier::TPSMOI, "SELECT")
                     .Avec(data::TpsMoi::Contrat, "=", citer(contrat.cle)))) {
    return Refus{
        "Impossible de supprimer ce contrat car de la Main d'Oeuvre Indirecte a été saisie dans le "
        "menu Planning.\r\n"};
  }
  return std::nullopt;
}

}  // namespace rules
