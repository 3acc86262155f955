#include "editor/onglet_fin.h"

#include "data/jour.h"
#include "data/layouts/fichiers.h"
#include "data/layouts/voisins.h"
#include "data/nombre.h"
#include "editor/editeur.h"
#include "rules/preavis.h"
#include "session/saisie.h"

namespace editor {

namespace {

namespace C = data::Contrat;

constexpr const char* NotificationAvantDebut =
    "Erreur la date de notification de licenciement / démission ne peut être inférieure à la date "
    "de début du contrat, veuillez la ressaisir.";
constexpr const char* FinSansNotification =
    "Ce contrat a une date de fin, sans date de notification : rien n'en est affiché ici et rien "
    "n'en change tant qu'une notification n'est pas saisie. Fin au ";

}  // namespace

OngletFin::OngletFin(Frm_ElementsContrat& editeur)
    : Onglet(editeur, FinContrat, "Cdr_Ong5"),
      zones_(session::reunir({dates_.Zones(),
                              motif_.Zones(),
                              {session::jour(Txt_DatNotifContrat, C::DateNotification),
                               session::texte(Txt_NonVersContrat, C::MotifNonVersement),
                               session::texte(Txt_ObsFinContrat_0, C::ObservationsFin, 1),
                               session::texte(Txt_ObsFinContrat_1, C::ObservationsFin, 2)}})) {
  Txt_DatNotifContrat.Change = sourdine_.SiAudible([this] { OuvrirSuite(); });
  Txt_DatNotifContrat.LostFocus = [this] { Txt_DatNotifContrat_LostFocus(); };
  dates_.SurSaisie = [this] { OuvrirSuite(); };
  dates_.SurFin = [this] { FinQuittee(); };
  Cmd_SupprimerContrat.Click = [this] { suppression_.Cmd_SupprimerContrat_Click(); };
  motif_.SurMotif = [this] { CalculPreavis(); };
  Vider_Ong();
}

// Display.

void OngletFin::Afficher_Ong5() {
  const auto& origine = editeur_.origine;
  zones_.Oublier();
  if (Creation()) {
    retraite_.Vider();
  } else {
    retraite_.Afficher(origine.Entite(), origine.Particuliers(), Contrat()(C::OrganismeRetraite));
    if (!Contrat().Vue(C::DateNotification).empty()) AfficherFin();
  }
  notificationVue_ = Txt_DatNotifContrat.Text();
  initiale_.Retenir(notificationVue_, DernierJour());
}

void OngletFin::AfficherFin() {
  const data::CItem& contrat = Contrat();
  zones_.Montrer(Session().Lib, contrat);
  motif_.Afficher(contrat);
  // The number 1 alone stands for the bonus.
  Cac_PrecaLibContrat.SetValue(data::entier(contrat.Vue(C::PrimePrecarite)) == 1 ? 1 : 0);
  preavis_.Montrer(contrat);
  bulletin_.Montrer(contrat(C::DernierBulletin));
  motif_.Activer(true);
  ActiverFin(true);
  if (const auto fin = FinAffichee()) bulletin_.Borner(editeur_.origine.Debut(), *fin);
  Cmd_SupprimerContrat.SetVisible(dates_.DateFin() == editeur_.origine.DateDebut());
}

void OngletFin::SelonDroits(bool complet) {
  if (!complet) Cmd_SupprimerContrat.SetVisible(false);
}

void OngletFin::Vider_Ong() {
  initiale_.Oublier();
  notificationVue_.clear();
  motif_.Vider();
  preavis_.Vider();
  bulletin_.Vider();
  Cac_PrecaLibContrat.SetValue(0);
  Cmd_SupprimerContrat.SetVisible(false);
  motif_.Activer(false);
  ActiverFin(false);
  dates_.OuvrirFin(false);
}

void OngletFin::SelonType(bool determine) {
  screen::Activer({&Etq_DatNotifContrat, &Txt_DatNotifContrat}, true);
  dates_.Eclairer();
  Cac_PrecaLibContrat.SetEnabled(determine);
  Cac_PrecaLibContrat.SetValue(determine ? 1 : 0);
}

// A private employer whose leave is provisioned is billed before the contract may end: refuses the
// tab while the month's invoice is missing.
bool OngletFin::Admettre() {
  const auto& origine = editeur_.origine;
  const std::string periode = Contrat()(C::DernierCalcul);
  if (periode.empty() || !origine.Particuliers() || !editeur_.paie.Paiement().ProvisionFacturee())
    return true;
  data::CItem employeur;
  Session().Db->OpenFile(data::fichier::ELTSPARTEMP).Lire(origine.Employeur(), employeur);
  if (employeur.Vue(data::EltsPartEmp::DerniereFacture) == periode) return true;
  data::CItem calcul;
  if (!Session().F_DETAILCALCUL.Lire(Dossier().CleContratCourant + periode, calcul) ||
      calcul.Vue(data::DetailCalcul::Facturation) != "P") {
    return true;
  }
  Message(
      "Vous ne pouvez pas accéder à l'onglet fin de contrat tant que vous n'avez pas fait la "
      "facture du mois de " +
          data::moisAnnee(periode),
      screen::Icone::Exclamation);
  return false;
}

void OngletFin::Entrer() {
  const auto fin = initiale_.Contrat().Vue(C::DateFin);
  if (Txt_DatNotifContrat.Text().empty() && !fin.empty()) {
    editeur_.Services().indications.Montrer(
        Txt_DatNotifContrat, FinSansNotification + Session().Lib.DateFromInternal(fin) + ".");
  }
}

// Dates.

// What follows a complete date can be gone to at once, by a click or the next Tab.
void OngletFin::OuvrirSuite() {
  if (dates_.Jour(Txt_DatNotifContrat)) {
    motif_.Activer(true);
    dates_.OuvrirFin(!Session().EtatSuppAidant);
  }
  if (FinAffichee()) ActiverFin(true);
}

// A notification left as it was found computes nothing anew: an end that was agreed on otherwise
// stays.
void OngletFin::Txt_DatNotifContrat_LostFocus() {
  if (!session::QuitterDate(Session(), Txt_DatNotifContrat)) return;
  if (apres(editeur_.origine.Debut(), dates_.Jour(Txt_DatNotifContrat))) {
    Message(NotificationAvantDebut, screen::Icone::Exclamation);
    Txt_DatNotifContrat.SetFocus();
    return;
  }
  if (Txt_DatNotifContrat.Text() == notificationVue_) return;
  notificationVue_ = Txt_DatNotifContrat.Text();
  if (notificationVue_.empty()) {
    motif_.Quitter();
    dates_.Poser("");
    dates_.OuvrirFin(false);
    return;
  }
  motif_.Cbo_MotifFinContrat_DropDown();
  motif_.Activer(true);
  dates_.OuvrirFin(!Session().EtatSuppAidant);
  CalculPreavis();
}

// The last payslip is that of the end each time that the end is left; a tab that shows what it
// showed at first keeps the one that was chosen.
void OngletFin::FinQuittee() {
  const auto fin = FinAffichee();
  const bool intact = initiale_.Intact(Txt_DatNotifContrat.Text());
  Cmd_SupprimerContrat.SetVisible(fin && !Creation() && Session().DroitComplet() &&
                                  dates_.DateFin() == editeur_.origine.DateDebut());
  ActiverFin(fin.has_value());
  if (fin) {
    bulletin_.Borner(editeur_.origine.Debut(), *fin);
    if (!intact) bulletin_.MontrerFin();
  } else {
    dates_.ViderJours();
    bulletin_.Vider();
  }
  if (editeur_.origine.Particuliers()) retraite_.Choisir("", true);
}

void OngletFin::ActiverFin(bool active) {
  dates_.OuvrirFin(!Session().EtatSuppAidant && (active || !Txt_DatNotifContrat.Text().empty()));
  dates_.Activer(active);
  screen::Activer(
      {&Etq_NonVersContrat, &Txt_NonVersContrat, &Txt_ObsFinContrat_0, &Txt_ObsFinContrat_1},
      active);
  Cac_PrecaLibContrat.SetEnabled(active);
  bulletin_.Activer(active);
  preavis_.Activer(active);
}

// Notice.

void OngletFin::CalculPreavis() {
  const std::string motif = motif_.Code();
  const auto notification = dates_.Jour(Txt_DatNotifContrat);
  if (!rules::motifAvecPreavis(motif) || !notification) {
    preavis_.OublierPaye();
    dates_.ViderFin();
    return;
  }
  const data::CItem& contrat = Contrat();
  const int avenant = std::max(contrat.DCount(C::Avenant), 1);
  data::CItem grille, infos;
  Session().F_GRILLESCC.Lire(contrat(C::Grille, avenant), grille);
  Session().F_INFOSAIDANT.Lire(Session().CodeAidant, infos);
  const long depart = editeur_.caracteristiques.DepartAnciennete().value_or(*notification);
  const rules::SituationPreavis situation{
      editeur_.origine.Convention(),
      rules::lettreGrille(grille.Vue(data::GrillesCC::Categorie)),
      rules::estCadre(contrat.Vue(C::CodePCS, avenant)),
      rules::estHandicape(infos, *notification),
      rules::ancienneteEntre(depart, *notification),
      motif};
  const rules::DureePreavis duree = rules::dureePreavis(situation);
  if (duree.Aucune()) return;
  dates_.Poser(data::dateAffichee(rules::finPreavis(*notification, duree)));
  preavis_.Payer(Txt_DatNotifContrat.Text(), dates_.DateFin(),
                 "Préavis calculé : " + dureeEcrite(duree) + ", ancienneté depuis le " +
                     data::dateAffichee(depart) +
                     (situation.handicape ? ", travailleur handicapé." : "."));
  bulletin_.MontrerFin();
  bulletin_.RevenirAu(*notification);
}

}  // namespace editor
