// The two ways into the contract editor, and what the list does when it returns.

#include "control/ctr_contrat.h"
#include "control/lecteur_lignes.h"
#include "data/cles.h"
#include "data/layouts/contrat.h"
#include "screen/attente.h"

namespace control {

void Ctr_Contrat::Appel_Contrat() {
  const int ligne = lignes_.Ligne();
  OuvrirContrat(ligne < 0 ? W_CodeContrat : clesContrats_(ligne + 1));
}

void Ctr_Contrat::OuvrirContrat(const std::string& cle) {
  contrats_.Assurer(W_Code);
  const editor::Frm_ElementsContrat& editeur =
      Editeur([&](editor::Frm_ElementsContrat& e) { e.Ouvrir(cle); });
  editeur_->ShowModal();
  screen::Attente retour(*this);
  contrats_.Noter(cle);
  ActualiserLigne(cle);
  if (editeur.Enregistre()) Annoncer(cle, "enregistré");
  retour.Finir();
}

void Ctr_Contrat::Cmd_Ajouter_Click() {
  contrats_.Assurer(W_Code);
  editor::Frm_ElementsContrat& editeur = Editeur([](editor::Frm_ElementsContrat& e) { e.Creer(); });
  editeur.ShowModal();
  screen::Attente retour(*this);
  if (editeur.Cree()) AjouterLigneEnTete(editeur.Dossier().CleContratCourant);
  if (editeur.Enregistre()) Annoncer(editeur.Dossier().CleContratCourant, "enregistré");
  if (editeur.Enregistre()) contrats_.Noter(editeur.Dossier().CleContratCourant);
  retour.Finir();
  Lst_DatDebContrat.SetFocus();
}

// An editor that could not be filled is let go of: the next one must not show half of this
// contract.
editor::Frm_ElementsContrat& Ctr_Contrat::Editeur(
    const std::function<void(editor::Frm_ElementsContrat&)>& preparer) {
  screen::Attente chargement(*this);
  if (!editeur_) {
    editeur_ = std::make_unique<editor::Frm_ElementsContrat>(Services(), session_);
  }
  try {
    preparer(*editeur_);
  } catch (...) {
    editeur_.reset();
    throw;
  }
  chargement.Finir();
  return *editeur_;
}

std::optional<ContratAidant> Ctr_Contrat::EnMain() const {
  if (editeur_ == nullptr || !editeur_->Visible()) return std::nullopt;
  const auto& origine = editeur_->origine;
  ContratAidant contrat;
  contrat.cle = editeur_->Dossier().CleContratCourant;
  contrat.portee = editeur_->Portee();
  contrat.dates = editeur_->Dates();
  if (origine.Genre().Determine()) contrat.finPresumee = origine.FinPresumee();
  return contrat;
}

void Ctr_Contrat::Annoncer(const std::string& cle, const char* sort) const {
  if (!SurAvis || cle.size() < data::LongueurCodeAidant) return;
  SurAvis("Contrat " + cle.substr(data::LongueurCodeAidant) + " " + sort);
}

// The dates of the row that was opened, from the record as it stands now; employer and agreement
// wait for the next search. A contract that was cancelled meanwhile leaves the list.
void Ctr_Contrat::ActualiserLigne(const std::string& cle) {
  const int ligne = lignes_.Ligne();
  data::CItem contrat;
  // A contract that was not opened from its row has none to update.
  if (ligne < 0 || clesContrats_.Vue(ligne + 1) != cle || !session_.F_CONTRAT.Lire(cle, contrat)) {
    return;
  }
  if (contrat.Vue(data::Contrat::Annule) == data::Contrat::MarqueAnnule) {
    lignes_.Retirer(ligne);
    clesContrats_.Delete(ligne + 1);
    Annoncer(cle, "supprimé");
    return;
  }
  lignes_.Remplacer(ligne, {session_.Lib.DateFromInternal(contrat.Vue(data::Contrat::DateDebut)),
                            session_.Lib.DateFromInternal(contrat.Vue(data::Contrat::DateFin))});
}

// A contract just created stands on top, whatever the sort, until the next search.
void Ctr_Contrat::AjouterLigneEnTete(const std::string& cle) {
  data::CItem contrat;
  if (!session_.F_CONTRAT.Lire(cle, contrat)) return;
  lignes_.Inserer(0, LecteurLignes(session_).Lire(contrat).Textes());
  clesContrats_.Insert(1, cle);
  if (!Lst_DatDebContrat.Enabled()) Afficher_Liste();
  lignes_.Choisir(0);
}

}  // namespace control
