#include "editor/suppression.h"

#include "data/layouts/voisins.h"
#include "editor/annonces.h"
#include "editor/editeur.h"
#include "editor/evenement_dsn.h"
#include "rules/traitements.h"
#include "screen/attente.h"

namespace editor {

namespace {

namespace C = data::Contrat;
using screen::Boutons, screen::Icone, screen::Reponse;

// Shows what stands in the way: true when nothing does.
bool admis(Frm_ElementsContrat& editeur, const std::optional<rules::Refus>& refus) {
  if (refus) editeur.MessageBox(refus->texte, Boutons::Ok, refus->icone);
  return !refus;
}

}  // namespace

void Suppression::Cmd_SupprimerContrat_Click() {
  if (!Admise()) return;
  if (editeur_.Demander("Etes-vous sûr de vouloir supprimer ce contrat ?", Boutons::OuiNon,
                        Icone::Exclamation, Reponse::Non) != Reponse::Oui) {
    return;
  }
  {
    data::Route route(editeur_.Session().Db->Stockage());
    AnnoncerSupprimee(editeur_, route);
    const screen::Attente attente(editeur_);
    if (!admis(editeur_,
               rules::Verif_Opposition(*editeur_.Session().Db, editeur_.ContratTraite())) ||
        !PlanningLibre()) {
      return;
    }
    Supprimer();
    const session::Dossier& dossier = editeur_.Dossier();
    editeur_.MessageBox("Le contrat " + dossier.CleContratCourant + " a été supprimé.", Boutons::Ok,
                        Icone::Exclamation);
  }
  editeur_.Supprime();
}

bool Suppression::Admise() {
  std::optional<rules::Refus> refus;
  data::Route route(editeur_.Session().Db->Stockage());
  AnnoncerSuppression(editeur_, route);
  {
    const screen::Attente attente(editeur_);
    refus = rules::Verif_SuppressionPossible(*editeur_.Session().Db, editeur_.ContratTraite());
  }
  return admis(editeur_, refus);
}

bool Suppression::PlanningLibre() {
  if (!editeur_.Session().OptionCompteur999) return true;
  const auto& lib = editeur_.Session().Lib;
  const auto refus = rules::Verif_PlanningSuppression(
      *editeur_.Session().Db, editeur_.ContratTraite(),
      {editeur_.Dates().debut, lib.LireDate(editeur_.fin.DernierJourInitial()),
       editeur_.fin.FinAffichee()});
  if (!refus) return true;
  editeur_.fin.CacherSuppression();
  return admis(editeur_, refus);
}

// The record as it is on file, whoever has written it last: what was typed and not saved goes with
// the screen.
void Suppression::Supprimer() {
  const session::Dossier& dossier = editeur_.Dossier();
  dossier.Session.Db->Stockage().EnUnBloc([&] {
    data::CItem supprime = dossier.Initial;
    dossier.Session.F_CONTRAT.Lire(dossier.CleContratCourant, supprime);
    supprime.Set(C::CongesReportesSur, "");
    supprime.Set(C::CongesReprisDe, "");
    supprime.Set(C::Annule, C::MarqueAnnule);
    Maj_EvenementDSN(dossier, dossier.CleContratCourant, supprime);
    Nettoyer_LiensConges(dossier, dossier.CleContratCourant);
    supprime.DBWriteU();
  });
}

}  // namespace editor
