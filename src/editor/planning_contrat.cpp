#include "editor/planning_contrat.h"

#include "dialogs/frm_anomalies_ajoutgraph.h"
#include "editor/annonces.h"
#include "editor/editeur.h"
#include "screen/attente.h"

namespace editor {

namespace {

using screen::Boutons, screen::Icone;

}  // namespace

bool PlanningContrat::Coherence() {
  std::string texte;
  {
    const screen::Attente attente(editeur_);
    texte = rules::Verif_CoherencePlanning(*editeur_.Session().Db, Contrat(), true);
  }
  return texte.empty() || Demander(texte).acceptee;
}

bool PlanningContrat::Concerne() const {
  const session::Dossier& dossier = editeur_.Dossier();
  if (dossier.ModeCreation || !editeur_.Session().OptionCompteur999) return false;
  return std::to_string(editeur_.Dates().debut) != dossier.Initial.Vue(data::Contrat::DateDebut) ||
         editeur_.fin.DernierJour() != editeur_.fin.DernierJourInitial();
}

bool PlanningContrat::Verif_ImpactPlanning() {
  if (!Concerne()) return true;
  const auto ancien = editeur_.Session().Lib.LireDate(editeur_.fin.DernierJourInitial());
  rules::ContratPlanifie contrat;
  std::string anomalies;
  std::vector<rules::Incidence> incidences;
  {
    const screen::Attente attente(editeur_);
    data::Db& db = *editeur_.Session().Db;
    contrat = Contrat();
    const auto nouveau = contrat.dernierJour;
    if (ancien != nouveau) {
      const bool avance = !nouveau || !ancien || *nouveau < *ancien;
      anomalies = rules::Verif_CoherencePlanning(db, contrat, avance);
    }
    if (contrat.termine && ancien && nouveau && *nouveau < *ancien) {
      incidences = rules::incidences(db, contrat);
    }
  }
  if (!incidences.empty() && !Raccourcir(contrat, incidences, anomalies)) return false;
  return anomalies.empty() || Demander(anomalies).acceptee;
}

bool PlanningContrat::Raccourcir(const rules::ContratPlanifie& contrat,
                                 const std::vector<rules::Incidence>& incidences,
                                 std::string& anomalies) {
  data::Db& db = *editeur_.Session().Db;
  data::Route route(db.Stockage());
  AnnoncerIncidences(incidences, route);
  const Reponse reponse = Demander(rules::rapportIncidences(db, contrat, incidences, anomalies));
  if (!reponse.acceptee) return false;
  anomalies.clear();
  Appliquer(contrat, reponse.appliquer ? incidences : std::vector<rules::Incidence>());
  return true;
}

// Without incidences the planning stays as it is, and its work is without contract.
void PlanningContrat::Appliquer(const rules::ContratPlanifie& contrat,
                                const std::vector<rules::Incidence>& incidences) {
  rules::MiseAJourPlanning maj(
      *editeur_.Session().Db, contrat,
      editeur_.Session().Lib.LireDate(editeur_.fin.DernierJourInitial()).value_or(0),
      editeur_.Session().Poste.NomUtilisateur());
  {
    const screen::Attente attente(editeur_);
    if (incidences.empty()) {
      if (contrat.determine) maj.LaisserSansContrat();
      return;
    }
    try {
      maj.Appliquer(incidences);
    } catch (const data::StoreError&) {
      editeur_.MessageBox(
          "La mise à jour du planning a été interrompue : " + std::to_string(maj.Faites()) +
              " intervention(s) sur " + std::to_string(incidences.size()) +
              " ont été traitées et le restent. Le contrat n'a pas été enregistré : enregistrez-le "
              "de nouveau pour traiter les autres.",
          Boutons::Ok, Icone::Exclamation);
      throw;
    }
  }
  if (maj.Remplacements().empty()) return;
  std::string texte = "La mise à jour a eu des incidences sur les remplacements suivants : ";
  for (const auto& ligne : maj.Remplacements()) texte += ligne + "\r\n";
  editeur_.MessageBox(texte, Boutons::Ok, Icone::Exclamation);
}

PlanningContrat::Reponse PlanningContrat::Demander(const std::string& texte) {
  const auto nomme = editeur_.origine.Codes().Nomme();
  dialogs::Frm_AnomaliesAjoutgraph rapport(
      editeur_.Services(), editeur_.Dossier(),
      {texte, editeur_.origine.Genre().Determine(), nomme.code + " " + nomme.libelle});
  rapport.ShowModal();
  return {rapport.AnomaliesAcceptees, rapport.PlanningAApplier};
}

rules::ContratPlanifie PlanningContrat::Contrat() const {
  if (!editeur_.paie.Charge()) editeur_.paie.Afficher();
  const auto portee = editeur_.Portee();
  const auto dates = editeur_.Dates();
  const auto voisins = rules::VerifContratExist(*editeur_.Session().Db, portee, dates);
  rules::ContratPlanifie contrat;
  contrat.codeAidant = portee.codeAidant;
  contrat.convention = portee.convention;
  contrat.association = portee.association;
  contrat.employeur = portee.employeur;
  contrat.determine = editeur_.origine.Genre().Determine();
  contrat.debut = dates.debut;
  contrat.termine = editeur_.fin.FinAffichee().has_value();
  contrat.dernierJour = editeur_.Session().Lib.LireDate(editeur_.fin.DernierJour());
  contrat.derniereFinAvant = voisins.derniereFinAvant;
  contrat.prochainDebutApres = voisins.prochainDebutApres;
  const PaieActivites& activites = editeur_.paie.Activites();
  contrat.typeActivite = activites.Type();
  contrat.activitesOffertes = activites.Offertes();
  for (const auto& activite : activites.Activites()) contrat.activites.push_back(activite.libelle);
  return contrat;
}

}  // namespace editor
