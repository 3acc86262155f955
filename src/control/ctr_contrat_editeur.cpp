// The two ways into the contract editor, and what the list does when it returns.

#include "control/ctr_contrat.h"
#include "data/cles.h"
#include "screen/attente.h"

namespace control {

void Ctr_Contrat::Appel_Contrat() {
  OuvrirContrat(colonnes_.Ligne() < 0 ? W_CodeContrat : rangees_.Choisie());
}

void Ctr_Contrat::OuvrirContrat(const std::string& cle) {
  contrats_.Assurer(W_Code);
  const editor::Frm_ElementsContrat& editeur =
      Editeur([&](editor::Frm_ElementsContrat& e) { e.Ouvrir(cle); });
  editeur_->ShowModal();
  screen::Attente retour(*this);
  contrats_.Noter(cle);
  if (rangees_.Actualiser(cle)) Annoncer(cle, "supprimé");
  if (editeur.Enregistre()) Annoncer(cle, "enregistré");
  retour.Finir();
}

void Ctr_Contrat::Cmd_Ajouter_Click() {
  contrats_.Assurer(W_Code);
  editor::Frm_ElementsContrat& editeur = Editeur([](editor::Frm_ElementsContrat& e) { e.Creer(); });
  editeur.ShowModal();
  screen::Attente retour(*this);
  const std::string& cle = editeur.Dossier().CleContratCourant;
  if (editeur.Cree() && rangees_.AjouterEnTete(cle)) {
    if (!Lst_DatDebContrat.Enabled()) Afficher_Liste();
    colonnes_.Choisir(0);
  }
  if (editeur.Enregistre()) {
    Annoncer(cle, "enregistré");
    contrats_.Noter(cle);
  }
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

}  // namespace control
