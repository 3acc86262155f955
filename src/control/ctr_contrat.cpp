#include "control/ctr_contrat.h"

#include "data/jour.h"
#include "data/layouts/contrat.h"
#include "data/layouts/fichiers.h"
#include "data/layouts/voisins.h"
#include "data/requete.h"
#include "screen/attente.h"

namespace control {

Ctr_Contrat::Ctr_Contrat(screen::Platform& platform)
    : Form(platform, "Ctr_Contrat"), session_(platform.poste), aide_(platform.aide) {
  Cbo_Association.Click = [this] { Cbo_Association_Click(); };
  Cbo_Association.Change = [this] {
    if (Cbo_Association.Text().empty()) codeAssocFiltre_.clear();
  };
  Cmd_Recherche.Click = [this] { Cmd_Recherche_Click(); };
  Cmd_Ajouter.Click = [this] { Cmd_Ajouter_Click(); };
  Cmd_OK.Click = [this] { Cmd_Ok_Click(); };
  Cmd_Retour.Click = [this] { Cmd_Retour_Click(); };
  lignes_.SurDoubleClic = [this](int) { Appel_Contrat(); };
  Mnu_Sommaire.Click = [this] { aide_.Sommaire(); };

  contrats_.SurChangement = [this] {
    if (SurContrats) SurContrats();
  };
  aide_.Preparer(session::JeuAide::Trois);
  PrendreFiltresParDefaut();
  lignes_.Activer(false);
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
  clesContrats_ = data::CItem();
  if (!session_.DroitComplet()) Cmd_Ajouter.SetVisible(false);
  if (!W_CodeContrat.empty()) OuvrirContrat(W_CodeContrat);
}

void Ctr_Contrat::Affiche(std::string_view typeAct, std::string_view codeAsso,
                          std::string_view actifs) {
  auto& type = typeAct == "P" ? Opt_Autres : typeAct == "M" ? Opt_PartEmpl : Opt_TousType;
  type.SetValue(true);
  for (int r = 0; r < associations_.Nombre() && !codeAsso.empty(); ++r) {
    if (associations_.A(r).code == codeAsso) Cbo_Association.SetListIndex(r);
  }
  auto& validite = actifs == "A" ? Opt_Actif : actifs == "H" ? Opt_Historique : Opt_TousValid;
  validite.SetValue(true);
  Cmd_Recherche_Click();
}

void Ctr_Contrat::Remplir_Association() {
  associations_ =
      data::ListeCodes::DeSelection(data::Requete(data::fichier::ASSOCIATION)
                                        .Lire(*session_.Db, {data::Cle, data::Association::Nom}));
  for (const auto& ligne : associations_.Lignes()) Cbo_Association.AddItem(ligne.libelle);
  // A single entity is shown at once; the filter itself stays open, which makes no difference.
  if (Cbo_Association.ListCount() == 1 && !Cbo_Association.List(0).empty()) {
    Cbo_Association.SetText(Cbo_Association.List(0));
  }
}

void Ctr_Contrat::Afficher_Liste() {
  screen::Activer({&Cbo_Association, &Cdr_Validite, &Cdr_Type, &Cdr_TriContrat}, false);
  lignes_.Activer(true);
  Cmd_Recherche.SetEnabled(false);
  Cmd_OK.SetEnabled(true);
}

void Ctr_Contrat::Effacer_Donnees() {
  Cbo_Association.SetText("");
  PrendreFiltresParDefaut();
  screen::Activer({&Cbo_Association, &Cdr_Validite, &Cdr_Type, &Cdr_TriContrat}, true);
  ViderListes();
  lignes_.Activer(false);
  Cmd_Recherche.SetEnabled(true);
  Cmd_OK.SetEnabled(false);
}

void Ctr_Contrat::Recherche_Contrat() {
  data::Route route(session_.Db->Stockage());
  contrats_.Annoncer(W_Code, route);
  const FiltreContrats filtre = Filtre();
  ViderListes();
  std::vector<LigneContrat> lignes;
  LecteurLignes lecteur(session_);
  contrats_.Lire(W_Code, [&](const data::CItem& contrat) {
    if (!filtre.Garde(contrat)) return;
    LigneContrat ligne = lecteur.Lire(contrat);
    const auto rang = rangInsertion(lignes, ligne, TriChoisi());
    lignes.insert(lignes.begin() + static_cast<std::ptrdiff_t>(rang), std::move(ligne));
  });
  for (const LigneContrat& ligne : lignes) {
    lignes_.Ajouter(ligne.Textes());
    clesContrats_.Append(ligne.cle);
  }
}

void Ctr_Contrat::MouseDown(int bouton) {
  if (bouton != session::BoutonDroit) return;
  Mnu_Aide.SetEnabled(true);
  Mnu_Sommaire.SetEnabled(true);
  Services().modales.MontrerMenu(*this, Mnu_Aide.Nom());
}

void Ctr_Contrat::Cbo_Association_Click() {
  codeAssocFiltre_ = associations_.A(Cbo_Association.ListIndex()).code;
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

void Ctr_Contrat::PrendreFiltresParDefaut() {
  Opt_Actif.SetValue(true);
  Opt_TousType.SetValue(true);
  Opt_TriDecroiss.SetValue(true);
}

void Ctr_Contrat::ViderListes() {
  lignes_.Vider();
  clesContrats_.SetText("");
}

FiltreContrats Ctr_Contrat::Filtre() const {
  FiltreContrats filtre;
  filtre.validite = Opt_Actif.Value()        ? FiltreContrats::Actifs
                    : Opt_Historique.Value() ? FiltreContrats::Historiques
                                             : FiltreContrats::TousValid;
  filtre.type = Opt_PartEmpl.Value() ? FiltreContrats::ParticuliersEmployeurs
                : Opt_Autres.Value() ? FiltreContrats::Autres
                                     : FiltreContrats::TousType;
  filtre.association = codeAssocFiltre_;
  filtre.debutPeriode = data::premierJour(session_.PeriodePaie()).value_or(0);
  filtre.aujourdhui = Services().poste.Aujourdhui();
  return filtre;
}

Tri Ctr_Contrat::TriChoisi() const {
  if (Opt_TriEmpl.Value()) return Tri::Employeur;
  return Opt_TriCroiss.Value() ? Tri::AncienneteCroissante : Tri::AncienneteDecroissante;
}

}  // namespace control
