// The two ways into the contract editor, and what the list does when it returns.

#include "control/ctr_contrat.h"
#include "data/cles.h"
#include "data/layouts/contrat.h"
#include "screen/attente.h"
#include "session/pendant.h"

namespace control {

void Ctr_Contrat::Appel_Contrat() {
  session::Session& s = session_;
  s.ConflitContrat = false;
  s.CleContratCourant =
      W_CodeContrat.empty() ? clesContrats_(Lst_DatDebContrat.ListIndex() + 1, 1) : W_CodeContrat;
  s.ItemContrat = data::CItem();
  s.F_CONTRAT.Lire(s.CleContratCourant, s.ItemContrat);
  s.TexteContratInitial = s.ItemContrat.Text();
  s.DateFinInitiale = s.ItemContrat(data::Contrat::DateFin);
  s.ModeCreation = false;
  OuvrirEditeur(&Ctr_Contrat::PreparerOuverture).ShowModal();
  screen::Attente retour(*this);
  ActualiserLigne();
  s.ItemContrat = data::CItem();
  retour.Finir();
}

// An editor that could not be filled is let go of: the next one must not show half of this
// contract.
void Ctr_Contrat::DechargerEditeur() {
  editeur_.reset();
  session_.CombosRemplis = false;
}

editor::Frm_ElementsContrat& Ctr_Contrat::OuvrirEditeur(Preparation preparer) {
  screen::Attente chargement(*this);
  try {
    (this->*preparer)(ChargerEditeur());
  } catch (...) {
    DechargerEditeur();
    throw;
  }
  chargement.Finir();
  return *editeur_;
}

void Ctr_Contrat::PreparerOuverture(editor::Frm_ElementsContrat& editeur) {
  const session::Pendant enChargement(session_.ChargementContrat);
  editeur.DroitsUtilisateur(*droits_);
  if (editeur.origine.Txt_DatDebContrat.Text().empty()) editeur.origine.Afficher_Ong1();
  PreparerEditeur(editeur);
  editeur.caracteristiques.Cmd_AjoutAvenant.SetVisible(true);
  editeur.caracteristiques.Cmd_AjoutAvenant.SetEnabled(true);
  editeur.DroitsUtilisateur(*droits_);
  editeur.InitElementContrat();
  editeur.init();
}

void Ctr_Contrat::Cmd_Ajouter_Click() {
  session::Session& s = session_;
  s.CreationAbandonnee = false;
  s.ItemContrat = data::CItem();
  s.TexteContratInitial = s.ItemContrat.Text();
  s.DateFinInitiale = s.ItemContrat(data::Contrat::DateFin);
  const session::Pendant enCreation(s.ModeCreation);
  OuvrirEditeur(&Ctr_Contrat::PreparerCreation).ShowModal();
  screen::Attente retour(*this);
  if (!s.CreationAbandonnee && !s.ConflitContrat) AjouterLigneEnTete();
  s.ConflitContrat = false;
  retour.Finir();
}

void Ctr_Contrat::PreparerCreation(editor::Frm_ElementsContrat& editeur) {
  editeur.caracteristiques.Cmd_SuiviAnnuel.SetEnabled(false);
  editeur.origine.Cbo_LibEmplEtabContrat.Clear();
  PreparerEditeur(editeur);
  editeur.Afficher_Donnees();
  if (!session_.CombosRemplis) editeur.Remplir_CombosElement();
  editeur.DroitsUtilisateur(*droits_);
  editeur.init();
}

editor::Frm_ElementsContrat& Ctr_Contrat::ChargerEditeur() {
  if (!editeur_) {
    editeur_ = std::make_unique<editor::Frm_ElementsContrat>(Services(), session_);
  }
  return *editeur_;
}

void Ctr_Contrat::PreparerEditeur(editor::Frm_ElementsContrat& editeur) {
  editeur.Etq_Aidant.SetLibelle("Aidant : " + W_Code + " " + W_NomPrenom);
  editeur.Etq_CodeAidant.SetLibelle(W_Code);
  editeur.Etq_NomPrenomAidant.SetLibelle(W_NomPrenom);
  editeur.Ong_Contrat.SetTab(editor::Origine);
}

// The dates of the row that was opened, from the record as it stands now; employer and agreement
// wait for the next search. A contract that was cancelled meanwhile leaves the list.
void Ctr_Contrat::ActualiserLigne() {
  session::Session& s = session_;
  const int ligne = Lst_DatFinContrat.ListIndex();
  s.ItemContrat = data::CItem();
  // An opening through W_CodeContrat has no row of its own.
  if (!s.F_CONTRAT.Lire(s.CleContratCourant, s.ItemContrat) ||
      clesContrats_.Vue(ligne + 1) != s.CleContratCourant) {
    return;
  }
  if (s.ItemContrat.Vue(data::Contrat::Annule) == "O") {
    for (const auto& colonne : Colonnes) (this->*colonne.liste).RemoveItem(ligne);
    clesContrats_.Delete(ligne + 1);
    AjusterBarre();
    return;
  }
  Lst_DatFinContrat.SetList(ligne,
                            s.Lib.DateFromInternal(s.ItemContrat.Vue(data::Contrat::DateFin)));
  Lst_DatDebContrat.SetList(ligne,
                            s.Lib.DateFromInternal(s.ItemContrat.Vue(data::Contrat::DateDebut)));
}

// A contract just created stands on top, whatever the sort, until the next search.
void Ctr_Contrat::AjouterLigneEnTete() {
  session::Session& s = session_;
  s.F_CIVILAIDANT.Lire(W_Code, s.ItemCivilAidant);
  s.ItemContrat = data::CItem();
  if (!s.F_CONTRAT.Lire(s.CleContratCourant, s.ItemContrat)) return;
  std::string employeur;
  LireEmployeur(s.ItemContrat, employeur);
  const LigneContrat ligne = FaireLigne(s.ItemContrat, employeur);
  for (const auto& [liste, texte] : Colonnes) (this->*liste).InsertItem(0, ligne.*texte);
  clesContrats_.Insert(1, ligne.cle);
  if (!Lst_DatDebContrat.Enabled()) Afficher_Liste();
  AjusterBarre();
}

}  // namespace control
