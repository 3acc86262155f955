#include "control/ctr_contrat.h"

#include <algorithm>

#include "data/cles.h"
#include "data/jour.h"
#include "data/layouts/contrat.h"
#include "data/layouts/fichiers.h"
#include "data/layouts/voisins.h"
#include "data/nombre.h"
#include "screen/attente.h"

namespace control {

Ctr_Contrat::Ctr_Contrat(screen::Platform& platform)
    : Form(platform, "Ctr_Contrat"), session_(platform.poste), aide_(platform.aide) {
  Cbo_Association.Click = [this] { Cbo_Association_Click(); };
  Cbo_Association.Change = [this] { Cbo_Association_Change(); };
  Cmd_Recherche.Click = [this] { Cmd_Recherche_Click(); };
  Cmd_Ajouter.Click = [this] { Cmd_Ajouter_Click(); };
  Cmd_OK.Click = [this] { Cmd_Ok_Click(); };
  Cmd_Retour.Click = [this] { Cmd_Retour_Click(); };
  for (const auto& colonne : Colonnes) {
    auto& liste = this->*colonne.liste;
    liste.Click = [this, &liste] { Liste_Click(liste); };
    liste.DblClick = [this] { Appel_Contrat(); };
  }
  Bdv_Detail.Change = [this] { Bdv_Detail_Change(); };
  Mnu_Sommaire.Click = [this] { Mnu_Sommaire_Click(); };

  aide_.Preparer(session::JeuAide::Trois);
  PrendreFiltresParDefaut();
  ActiverListes(false);
  Cmd_OK.SetEnabled(false);
  Bdv_Detail.SetVisible(false);
  Mnu_Aide.SetEnabled(false);
  Mnu_Sommaire.SetEnabled(false);
}

Ctr_Contrat::~Ctr_Contrat() {
  editeur_.reset();
  aide_.Fermer();
  session_.Liberer();
}

const std::array<Ctr_Contrat::Colonne, 5> Ctr_Contrat::Colonnes{{
    {&Ctr_Contrat::Lst_DatDebContrat, &LigneContrat::debut},
    {&Ctr_Contrat::Lst_DatFinContrat, &LigneContrat::fin},
    {&Ctr_Contrat::Lst_Type, &LigneContrat::type},
    {&Ctr_Contrat::Lst_EmplEtabContrat, &LigneContrat::employeur},
    {&Ctr_Contrat::Lst_QualifContrat, &LigneContrat::convention},
}};

void Ctr_Contrat::DroitsUtilisateur(const session::Droits& droits) {
  droits_ = &droits;
  droit_ = droits.Lookup(session::DroitContrat);
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
  session_.EtatSuppAidant = W_EtatSuppAidant;
  session_.SeparateurDecimal = session_.Lib.DecimalSeparator();
  session_.SeparateurDecimalAnsi = static_cast<unsigned char>(session_.SeparateurDecimal.front());
  clesContrats_ = data::CItem();
  if (!droit_.Complet()) Cmd_Ajouter.SetVisible(false);
  if (!W_CodeContrat.empty()) Appel_Contrat();
}

void Ctr_Contrat::Affiche(std::string_view typeAct, std::string_view codeAsso,
                          std::string_view actifs) {
  auto& type = typeAct == "P" ? Opt_Autres : typeAct == "M" ? Opt_PartEmpl : Opt_TousType;
  type.SetValue(true);
  if (!codeAsso.empty()) {
    const data::CItem& associations = session_.ItemAssociations;
    for (int i = 1; !associations.Vue(i).empty(); ++i) {
      if (associations.Vue(i, 1) == codeAsso) {
        Cbo_Association.SetListIndex(i - 1);
        break;
      }
    }
  }
  auto& validite = actifs == "A" ? Opt_Actif : actifs == "H" ? Opt_Historique : Opt_TousValid;
  validite.SetValue(true);
  Cmd_Recherche_Click();
}

void Ctr_Contrat::Remplir_Association() {
  session_.ItemAssociations =
      session_.Db->Selectionner("SSELECT ASSOCIATION", "ASSOCIATION", "0 1");
  for (int i = 1; i <= session_.ItemAssociations.DCount(); ++i) {
    Cbo_Association.AddItem(session_.ItemAssociations.Vue(i, 2));
  }
  // A single entity is shown at once; the filter itself stays open, which makes no difference.
  if (Cbo_Association.ListCount() == 1 && !Cbo_Association.List(0).empty()) {
    Cbo_Association.SetText(Cbo_Association.List(0));
  }
}

void Ctr_Contrat::Afficher_Liste() {
  Cbo_Association.SetEnabled(false);
  Cdr_Validite.SetEnabled(false);
  Cdr_Type.SetEnabled(false);
  Cdr_TriContrat.SetEnabled(false);
  ActiverListes(true);
  Cmd_Recherche.SetEnabled(false);
  Cmd_OK.SetEnabled(true);
}

void Ctr_Contrat::Effacer_Donnees() {
  Cbo_Association.SetText("");
  Cbo_Association.SetEnabled(true);
  PrendreFiltresParDefaut();
  Cdr_Validite.SetEnabled(true);
  Cdr_Type.SetEnabled(true);
  Cdr_TriContrat.SetEnabled(true);
  ViderListes();
  ActiverListes(false);
  Cmd_Recherche.SetEnabled(true);
  Cmd_OK.SetEnabled(false);
  AjusterBarre();
}

void Ctr_Contrat::Recherche_Contrat() {
  const long debutPeriode =
      data::premierJour(session_.ItemPeriodesPaie1.Vue(data::PeriodesPaie::Courante)).value_or(0);
  ViderListes();
  session_.F_CIVILAIDANT.Lire(W_Code, session_.ItemCivilAidant);
  const long long dernier =
      std::min(data::entier(session_.ItemCivilAidant.Vue(data::CivilAidant::DernierNumero)),
               data::DernierNumeroPossible);

  std::vector<LigneContrat> lignes;
  std::string employeur;
  for (long numero = 1; numero <= dernier; ++numero) {
    data::CItem& contrat = session_.ItemContrat;
    if (!session_.F_CONTRAT.Lire(Etq_CodeAidant.Libelle() + data::numeroContrat(numero), contrat)) {
      continue;
    }
    if (contrat.Vue(data::Contrat::Annule) == "O") continue;
    if (!GarderValidite(contrat, debutPeriode) || !GarderType(contrat)) continue;
    LireEmployeur(contrat, employeur);
    LigneContrat ligne = FaireLigne(contrat, employeur);
    const auto rang = rangInsertion(lignes, ligne, TriChoisi());
    lignes.insert(lignes.begin() + static_cast<std::ptrdiff_t>(rang), std::move(ligne));
  }
  AfficherLignes(lignes);
}

void Ctr_Contrat::MouseDown(int bouton) {
  if (bouton != session::BoutonDroit) return;
  Mnu_Aide.SetEnabled(true);
  Mnu_Sommaire.SetEnabled(true);
  Services().modales.MontrerMenu(*this, Mnu_Aide.Nom());
}

void Ctr_Contrat::Cbo_Association_Click() {
  codeAssocFiltre_ = session_.ItemAssociations(Cbo_Association.ListIndex() + 1, 1);
}

void Ctr_Contrat::Cbo_Association_Change() {
  if (Cbo_Association.Text().empty()) codeAssocFiltre_.clear();
}

void Ctr_Contrat::Cmd_Recherche_Click() {
  Afficher_Liste();
  screen::Attente attente(*this);
  Recherche_Contrat();
  attente.Finir();
  Cmd_Ajouter.SetEnabled(!W_EtatSuppAidant);
}

// This OK opens nothing: it closes the list and goes back to the choice of filters.
void Ctr_Contrat::Cmd_Ok_Click() {
  Effacer_Donnees();
}

void Ctr_Contrat::Cmd_Retour_Click() {
  DechargerEditeur();
  W_Sortir = 1;
  Hide();
  if (Sortie) Sortie();
}

// One row of the five lists is selected as one. Only the last list moves the bar; since every click
// sets its row too, the bar follows them all.
void Ctr_Contrat::Liste_Click(const screen::ListBox& source) {
  for (const auto& colonne : Colonnes) {
    auto& liste = this->*colonne.liste;
    if (&liste != &source) liste.SetListIndex(source.ListIndex());
  }
  if (&source == &Lst_QualifContrat) Bdv_Detail.SetValue(Lst_QualifContrat.ListIndex());
}

void Ctr_Contrat::Bdv_Detail_Change() {
  if (Bdv_Detail.Value() != Lst_DatDebContrat.ListIndex()) {
    Lst_DatDebContrat.SetListIndex(Bdv_Detail.Value());
  }
}

void Ctr_Contrat::Mnu_Sommaire_Click() {
  aide_.Sommaire();
}

void Ctr_Contrat::PrendreFiltresParDefaut() {
  Opt_Actif.SetValue(true);
  Opt_TousType.SetValue(true);
  Opt_TriDecroiss.SetValue(true);
}

void Ctr_Contrat::ActiverListes(bool actives) {
  for (const auto& colonne : Colonnes) (this->*colonne.liste).SetEnabled(actives);
}

void Ctr_Contrat::ViderListes() {
  for (const auto& colonne : Colonnes) (this->*colonne.liste).Clear();
  clesContrats_.SetText("");
  // Set back while there is no row that its change could select: no row is selected after a search.
  Bdv_Detail.SetValue(0);
}

void Ctr_Contrat::AjusterBarre() {
  Bdv_Detail.SetMax(Lst_DatDebContrat.ListCount() - 1);
  Bdv_Detail.SetVisible(Lst_DatDebContrat.ListCount() > LignesVisibles);
}

bool Ctr_Contrat::GarderValidite(const data::CItem& contrat, long debutPeriode) const {
  if (!codeAssocFiltre_.empty() && contrat.Vue(data::Contrat::Association) != codeAssocFiltre_) {
    return false;
  }
  const std::string_view fin = contrat.Vue(data::Contrat::DateFin);
  if (Opt_Actif.Value()) return fin.empty() || data::entier(fin) >= debutPeriode;
  if (Opt_Historique.Value()) {
    return !fin.empty() && data::entier(fin) < Services().poste.Aujourdhui();
  }
  return true;
}

bool Ctr_Contrat::GarderType(const data::CItem& contrat) const {
  if (Opt_PartEmpl.Value()) return data::estParticulierEmployeur(contrat);
  if (Opt_Autres.Value()) return !data::estParticulierEmployeur(contrat);
  return true;
}

// The employer's name. A record that cannot be found leaves the former label in place.
void Ctr_Contrat::LireEmployeur(const data::CItem& contrat, std::string& libelle) {
  session::Session& s = session_;
  if (data::estParticulierEmployeur(contrat)) {
    if (s.F_CIVILAIDE.Lire(contrat.Vue(data::Contrat::Employeur), s.ItemCivilAide)) {
      libelle =
          s.ItemCivilAide(data::CivilAide::Nom) + " " + s.ItemCivilAide(data::CivilAide::Prenom);
    }
  } else if (s.F_ASSOCIATION.Lire(contrat.Vue(data::Contrat::Association), s.ItemAssociation)) {
    libelle = s.ItemAssociation(data::Association::Nom);
  }
}

LigneContrat Ctr_Contrat::FaireLigne(const data::CItem& contrat, const std::string& employeur) {
  session::Session& s = session_;
  s.F_CONVENTIONCOL.Lire(contrat.Vue(data::Contrat::Convention), s.ItemConventionCol);
  LigneContrat ligne;
  ligne.cle = contrat(0);
  ligne.debut = s.Lib.DateFromInternal(contrat.Vue(data::Contrat::DateDebut));
  ligne.fin = s.Lib.DateFromInternal(contrat.Vue(data::Contrat::DateFin));
  ligne.type = contrat(data::Contrat::Type);
  ligne.employeur = employeur;
  ligne.convention = s.ItemConventionCol(data::ConventionCol::Libelle);
  ligne.jourDebut = data::entier(contrat.Vue(data::Contrat::DateDebut));
  return ligne;
}

Tri Ctr_Contrat::TriChoisi() const {
  if (Opt_TriEmpl.Value()) return Tri::Employeur;
  return Opt_TriCroiss.Value() ? Tri::AncienneteCroissante : Tri::AncienneteDecroissante;
}

void Ctr_Contrat::AfficherLignes(const std::vector<LigneContrat>& lignes) {
  for (const LigneContrat& ligne : lignes) {
    for (const auto& [liste, texte] : Colonnes) (this->*liste).AddItem(ligne.*texte);
    clesContrats_.Append(ligne.cle);
  }
  AjusterBarre();
}

}  // namespace control
