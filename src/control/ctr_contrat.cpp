#include "control/ctr_contrat.h"

#include "control/lecteur_lignes.h"
#include "control/placement.h"
#include "data/layouts/contrat.h"
#include "data/layouts/fichiers.h"
#include "data/layouts/voisins.h"
#include "screen/attente.h"

namespace control {

Ctr_Contrat::Ctr_Contrat(screen::Platform& platform)
    : Form(platform, "Ctr_Contrat"), session_(platform.poste), aide_(platform.aide) {
  filtres_.Lier();
  Cmd_Recherche.Click = [this] { Cmd_Recherche_Click(); };
  Cmd_Ajouter.Click = [this] { Cmd_Ajouter_Click(); };
  Cmd_OK.Click = [this] { Cmd_Ok_Click(); };
  Cmd_Retour.Click = [this] { Cmd_Retour_Click(); };
  colonnes_.SurDoubleClic = [this](int) { Appel_Contrat(); };
  Mnu_Sommaire.Click = [this] { aide_.Sommaire(); };

  contrats_.SurChangement = [this] {
    if (SurContrats) SurContrats();
  };
  aide_.Preparer(session::JeuAide::Trois);
  filtres_.ParDefaut();
  colonnes_.Activer(false);
  Cmd_OK.SetEnabled(false);
  Mnu_Aide.SetEnabled(false);
  Mnu_Sommaire.SetEnabled(false);
}

Ctr_Contrat::~Ctr_Contrat() {
  editeur_.reset();
  aide_.Fermer();
  session_.Liberer();
}

void Ctr_Contrat::init() {
  const data::CItem compteur =
      session_.Db->OpenFile(data::fichier::COMPTEUR).Read(data::Compteur::Cle);
  session_.OptionCompteur999 = !compteur.Vue(data::Compteur::Planning).empty();
  session_.OuvrirFichiers();
  Remplir_Association();
  Etq_CodeAidant.SetLibelle(W_Code);
  Etq_NomPrenomAidant.SetLibelle(W_NomPrenom);
  if (W_EtatSuppAidant) Cmd_Ajouter.SetEnabled(false);
  session_.CodeAidant = W_Code;
  session_.NomPrenomAidant = W_NomPrenom;
  session_.EtatSuppAidant = W_EtatSuppAidant;
  rangees_.Vider();
  if (!session_.DroitComplet()) Cmd_Ajouter.SetVisible(false);
  if (!W_CodeContrat.empty()) OuvrirContrat(W_CodeContrat);
}

void Ctr_Contrat::Affiche(std::string_view typeAct, std::string_view codeAsso,
                          std::string_view actifs) {
  filtres_.Prendre(typeAct, codeAsso, actifs);
  Cmd_Recherche_Click();
}

void Ctr_Contrat::Remplir_Association() {
  filtres_.Remplir_Association();
}

void Ctr_Contrat::Afficher_Liste() {
  filtres_.Activer(false);
  colonnes_.Activer(true);
  Cmd_Recherche.SetEnabled(false);
  Cmd_OK.SetEnabled(true);
}

void Ctr_Contrat::Effacer_Donnees() {
  Cbo_Association.SetText("");
  filtres_.ParDefaut();
  filtres_.Activer(true);
  rangees_.Vider();
  colonnes_.Activer(false);
  Cmd_Recherche.SetEnabled(true);
  Cmd_OK.SetEnabled(false);
}

void Ctr_Contrat::Recherche_Contrat() {
  data::Route route(session_.Db->Stockage());
  contrats_.Annoncer(W_Code, route);
  const FiltreContrats filtre = filtres_.Filtre();
  rangees_.Vider();
  std::vector<LigneContrat> lignes;
  LecteurLignes lecteur(session_);
  contrats_.Lire(W_Code, [&](const data::CItem& contrat) {
    if (!filtre.Garde(contrat)) return;
    LigneContrat ligne = lecteur.Lire(contrat);
    const auto rang = rangInsertion(lignes, ligne, filtres_.TriChoisi());
    lignes.insert(lignes.begin() + static_cast<std::ptrdiff_t>(rang), std::move(ligne));
  });
  for (const LigneContrat& ligne : lignes) rangees_.Ajouter(ligne);
}

void Ctr_Contrat::MouseDown(int bouton) {
  if (bouton != session::BoutonDroit) return;
  Mnu_Aide.SetEnabled(true);
  Mnu_Sommaire.SetEnabled(true);
  Services().modales.MontrerMenu(*this, Mnu_Aide.Nom());
}

void Ctr_Contrat::Cmd_Recherche_Click() {
  Afficher_Liste();
  screen::Attente attente(*this);
  Recherche_Contrat();
  attente.Finir();
  Cmd_Ajouter.SetEnabled(!W_EtatSuppAidant);
  Lst_DatDebContrat.SetFocus();
}

// This OK opens nothing: it closes the list and goes back to the choice of filters.
void Ctr_Contrat::Cmd_Ok_Click() {
  Effacer_Donnees();
  Opt_Actif.SetFocus();
}

void Ctr_Contrat::Cmd_Retour_Click() {
  editeur_.reset();
  W_Sortir = 1;
  Hide();
  if (Sortie) Sortie();
}

}  // namespace control
