#include "editor/editeur.h"

#include <algorithm>

#include "data/layouts/voisins.h"
#include "editor/annonces.h"
#include "editor/etat_enregistre.h"
#include "screen/attente.h"

namespace editor {

namespace {

using screen::Boutons, screen::Icone, screen::Reponse;
namespace C = data::Contrat;

// Values of attribute 38 of an entity that uses remote time-tracking.
constexpr std::string_view ServicesTelegestion[] = {"06", "VESPARIO"};

// The entity whose settings hold for a contract not created yet.
constexpr const char* PremiereEntite = "001";

// Which contract this is, and what can be done to it.
std::string titre(const session::Dossier& dossier, bool droitComplet) {
  if (dossier.ModeCreation) return "Nouveau contrat (création)";
  return "Contrat " + dossier.NumeroContrat() + (droitComplet ? "" : " (consultation)");
}

// The contract's entity uses remote time-tracking.
bool utiliseTelegestion(const session::Dossier& dossier) {
  data::CItem association;
  dossier.Session.F_ASSOCIATION.Lire(
      dossier.ModeCreation ? PremiereEntite : dossier.ItemContrat(C::Association), association);
  const auto service = association.Vue(data::Association::Telegestion);
  const auto* const fin = std::end(ServicesTelegestion);
  return std::find(std::begin(ServicesTelegestion), fin, service) != fin;
}

}  // namespace

Frm_ElementsContrat::Frm_ElementsContrat(screen::Platform& platform, session::Session& session)
    : Form(platform, "Frm_ElementsContrat", "Contrat de travail"),
      session_(session),
      aide_(platform.aide) {
  dossier_.emplace(session_);
  Ong_Contrat.Click = [this](int ancien) { Ong_Contrat_Click(ancien); };
  Cmd_OK.Click = [this] { Confirmer(); };
  Cmd_Retour.Click = [this] { Cmd_Retour_Click(); };
  Cmd_ImpContrat.Click = [this] { impression_.Contrat(); };
  Cmd_DPAE.Click = [this] { impression_.Declaration(); };
  Mnu_Sommaire.Click = [this] { aide_.Sommaire(); };
  screen::Activer({&Mnu_Aide, &Mnu_Sommaire}, false);
}

// Opening.

void Frm_ElementsContrat::Ouvrir(const std::string& cle) {
  Commencer();
  dossier_->CleContratCourant = cle;
  session_.F_CONTRAT.Lire(cle, dossier_->ItemContrat);
  dossier_->Initial = dossier_->SurFichier = dossier_->ItemContrat;
  conges.AfficherLiens();
  origine.Afficher();
  fin.Afficher();
  Presenter();
}

// A new contract counts as loaded everywhere.
void Frm_ElementsContrat::Creer() {
  Commencer();
  dossier_->ModeCreation = true;
  conges.AfficherLiens();
  for (Onglet* const onglet : onglets_) onglet->Afficher();
  Presenter();
}

void Frm_ElementsContrat::Commencer() {
  dossier_.emplace(session_);
  sortieAccordee_ = cree_ = enregistre_ = false;
  if (!combosRemplis_) origine.Remplir_Combos();
  combosRemplis_ = true;
  for (Onglet* const onglet : onglets_) onglet->Vider();
  Ong_Contrat.SetTab(Origine);
  Etq_Aidant.SetLibelle("Aidant : " + session_.CodeAidant + " " + session_.NomPrenomAidant);
  Etq_CodeAidant.SetLibelle(session_.CodeAidant);
  Etq_NomPrenomAidant.SetLibelle(session_.NomPrenomAidant);
}

// The title, and what the rights, the settings of the contract's entity and its agreement show.
void Frm_ElementsContrat::Presenter() {
  const bool complet = session_.DroitComplet();
  SetTitre(titre(*dossier_, complet));
  Cmd_OK.SetVisible(complet);
  for (Onglet* const onglet : onglets_) onglet->SelonDroits(complet);
  paie.SelonTelegestion(utiliseTelegestion(*dossier_));
  Cmd_DPAE.SetVisible(!dossier_->ModeCreation);
  Cmd_DPAE.SetLibelle(dossier_->Particuliers() ? "D.E.F." : "DPAE");
}

void Frm_ElementsContrat::Activate() {
  origine.Commencer();
}

void Frm_ElementsContrat::MouseDown(int bouton) {
  if (bouton != session::BoutonDroit) return;
  screen::Activer({&Mnu_Aide, &Mnu_Sommaire}, true);
  Services().modales.MontrerMenu(*this, Mnu_Aide.Nom());
}

// Tabs.

void Frm_ElementsContrat::AnnoncerConvention() {
  const std::string convention = origine.Convention();
  for (Onglet* const onglet : onglets_) onglet->SelonConvention(convention);
}

void Frm_ElementsContrat::Ong_Contrat_Click(int ancien) {
  if (!origine.DateDebut().empty()) origine.Txt_DatDebContrat_LostFocus();
  const int choisi = Ong_Contrat.Tab();
  // The end of a contract looks at how it is paid.
  if (choisi == FinContrat && !paie.Charge()) paie.Afficher();
  Onglet& onglet = *onglets_[static_cast<std::size_t>(choisi)];
  if (!onglet.Admettre()) {
    Ong_Contrat.SetTab(ancien);
  } else {
    if (onglet.AReafficher()) onglet.Afficher();
    onglet.Entrer();
  }
  if (!origine.Genre().Administratif() || origine.Particuliers()) return;
  paie.MontrerParts();
  caracteristiques.AccordModulation().Ouvrir(false);
}

void Frm_ElementsContrat::ReserverSaisie(bool saisie) {
  screen::Activer({&Ong_Contrat, &Cmd_OK, &Cmd_Retour}, !saisie);
}

rules::Portee Frm_ElementsContrat::Portee() const {
  return {session_.CodeAidant, dossier_->NumeroContrat(), origine.Convention(), origine.Entite(),
          origine.Employeur()};
}

rules::Dates Frm_ElementsContrat::Dates() const {
  return {origine.Debut().value_or(0), fin.DateFin()};
}

rules::ContratTraite Frm_ElementsContrat::ContratTraite() const {
  return {dossier_->CleContratCourant,
          origine.Convention(),
          origine.Entite(),
          origine.Employeur(),
          origine.Genre().Administratif(),
          paie.Activites().Type()};
}

// Ways out.

bool Frm_ElementsContrat::Confirmer(bool contratImprime) {
  data::Route route(session_.Db->Stockage());
  AnnoncerGardes(*this, route);
  Avis avis = gardes_.AvantConfirmation();
  if (avis == Avis::Passe) {
    DireCeQuiReste(*dossier_, [&] { avis = enregistrement_.Ecrire_Donnees(); });
  }
  if (avis == Avis::Reste) return false;
  if (avis == Avis::Passe) {
    const screen::Attente attente(*this);
    DireCeQuiReste(*dossier_, [&] {
      enregistrement_.Maj_Missions();
      enregistrement_.Maj_Index(contratImprime);
    });
    cree_ = dossier_->ModeCreation;
    enregistre_ = true;
  } else {
    enregistrement_.Abandonner();
  }
  Refermer();
  return avis == Avis::Passe;
}

void Frm_ElementsContrat::Cmd_Retour_Click() {
  if (dossier_->ModeCreation) {
    QuitterCreation();
    return;
  }
  {
    screen::Attente attente(*this);
    for (Onglet* const onglet : onglets_) onglet->Ecrire(false);
    attente.Finir();
  }
  if (!session_.DroitComplet() || ProposerEnregistrement()) Refermer();
}

void Frm_ElementsContrat::QuitterCreation() {
  if (session_.DroitComplet() &&
      Demander("Etes-vous sûr de vouloir quitter cette création ?", Boutons::OuiNon,
               Icone::Exclamation, Reponse::Non) != Reponse::Oui) {
    return;
  }
  enregistrement_.Abandonner();
  Refermer();
}

bool Frm_ElementsContrat::ProposerEnregistrement() {
  if (!dossier_->Modifie()) return !paie.Paiement().RibManquant("paiment");
  Services().curseur.Bip();
  switch (MessageBox("Voulez-vous enregistrer les modifications apportées à cet article ?",
                     Boutons::OuiNonAnnuler, Icone::Exclamation)) {
    case Reponse::Oui: {
      data::Route route(session_.Db->Stockage());
      AnnoncerGardes(*this, route);
      if (const Avis avis = gardes_.EnQuittant(); avis != Avis::Passe) {
        return avis == Avis::Abandonne;
      }
      screen::Attente attente(*this);
      Avis avis = Avis::Passe;
      DireCeQuiReste(*dossier_, [&] {
        avis = enregistrement_.Ecrire_Existant();
        if (avis != Avis::Passe) return;
        if (!enregistrement_.Relire()) avis = Avis::Reste;
        if (avis == Avis::Passe) enregistrement_.Maj_Index();
      });
      if (avis != Avis::Passe) return avis == Avis::Abandonne;
      enregistre_ = true;
      attente.Finir();
      return true;
    }
    case Reponse::Non:
      return !paie.Paiement().ModeChange() || !paie.Paiement().RibManquant("paiment");
    default:
      return false;
  }
}

void Frm_ElementsContrat::Supprime() {
  combosRemplis_ = false;
  Refermer();
}

void Frm_ElementsContrat::Refermer() {
  sortieAccordee_ = true;
  for (Onglet* const onglet : onglets_) onglet->Vider();
  Hide();
}

}  // namespace editor
