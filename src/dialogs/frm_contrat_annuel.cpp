#include "dialogs/frm_contrat_annuel.h"

#include "data/layouts/voisins.h"
#include "rules/suivi_annuel_mois.h"
#include "rules/suivi_annuel_nombre.h"

namespace dialogs {

namespace {

using screen::Boutons, screen::Icone, screen::Reponse;
namespace C = data::Contrat;

enum NumeroOnglet { EnRemunere, EnTempsEffectif };

// Agreements whose follow-up opens on the effective time.
constexpr std::string_view OuvreEnTempsEffectif = "T";

}  // namespace

Frm_ContratAnnuel::Frm_ContratAnnuel(screen::Platform& platform, session::Dossier& dossier,
                                     const EmployeurSuivi& employeur)
    : Dialogue(platform, dossier, "Frm_ContratAnnuel", "Suivi du Contrat"), aide_(platform.aide) {
  Etq_CodeAidant.SetLibelle(session_.CodeAidant);
  Etq_NomAidant.SetLibelle(session_.NomPrenomAidant);
  Etq_PeriodePaie.SetLibelle(rules::etiquetteMois(session_.PeriodePaie()));
  screen::Montrer({&Cmd_Ajouter, &Cmd_Supprimer, &Cmd_OK}, session_.DroitComplet());
  Opt_EnCours.SetValue(true);
  Remplir_Periode(employeur);
  Lier();
  init();
  dossier_.SuiviModifie = false;
}

void Frm_ContratAnnuel::Lier() {
  Ong_SuivContrat.Click = [this](int) { Afficher(); };
  Opt_EnCours.Click = [this] { Afficher(); };
  Opt_Precedent.Click = [this] { Afficher(); };
  Cmd_Ajouter.Click = [this] { Cmd_Ajouter_Click(); };
  Cmd_Supprimer.Click = [this] { Cmd_Supprimer_Click(); };
  Cmd_OK.Click = [this] { Cmd_Ok_Click(); };
  Cmd_Annuler.Click = [this] { Cmd_Annuler_Click(); };
  Cmd_Retour.Click = [this] { Cmd_Retour_Click(); };
  Mnu_Sommaire.Click = [this] { aide_.Sommaire(); };
  remunere.SurDescente = tempsEffectif.SurDescente = [this] { Prendre(LigneEnMain::Modification); };
}

void Frm_ContratAnnuel::Remplir_Periode(const EmployeurSuivi& employeur) {
  rules::ExerciceSuivi exercice;
  exercice.periodeTraitee = dossier_.ItemContrat(C::PeriodeTraitee);
  exercice.periodePaie = session_.PeriodePaie();
  exercice.parCloture = employeur.convention == data::ConventionParticuliers;
  if (exercice.parCloture) {
    exercice.moisCloture = MoisCloture(employeur.entite + employeur.employeur);
  } else {
    data::CItem association;
    session_.F_ASSOCIATION.Lire(employeur.entite, association);
    exercice.decembre = data::entier(association.Vue(data::Association::ExerciceDecembre)) != 0;
  }
  remunere.Remplir_Periode(rules::moisOfferts(exercice));
}

std::string Frm_ContratAnnuel::MoisCloture(const std::string& etablissement) const {
  data::CItem article;
  session_.F_ETABLISSEMENT.Lire(etablissement, article);
  return article(data::Etablissement::MoisCloture);
}

void Frm_ContratAnnuel::init() {
  tteDisponible_ = !dossier_.Particuliers();
  if (tteDisponible_) {
    data::CItem convention;
    session_.F_CONVENTIONCOL.Lire(dossier_.ItemContrat(C::Convention), convention);
    tempsEffectif.Ouvrir(rules::anneeSuivi(dossier_.ItemContrat,
                                           MoisCloture(dossier_.ItemContrat(C::Employeur)),
                                           session_.PeriodePaie()));
    // A tab that is chosen shows itself.
    if (convention.Vue(data::ConventionCol::SuiviTte) == OuvreEnTempsEffectif) {
      return Ong_SuivContrat.SetTab(EnTempsEffectif);
    }
  }
  Afficher();
}

void Frm_ContratAnnuel::MouseDown(int bouton) {
  if (bouton == session::BoutonDroit) Services().modales.MontrerMenu(*this, Mnu_Aide.Nom());
}

// What is shown, and what can be done.

PageSuivi& Frm_ContratAnnuel::Montree() {
  if (Ong_SuivContrat.Tab() == EnTempsEffectif) return tempsEffectif;
  return remunere;
}

rules::Annee Frm_ContratAnnuel::Annee() const {
  return Opt_Precedent.Value() ? rules::Annee::Precedente : rules::Annee::EnCours;
}

void Frm_ContratAnnuel::Afficher() {
  Montree().Afficher(Annee());
  Prendre(LigneEnMain::Aucune);
}

void Frm_ContratAnnuel::Prendre(LigneEnMain enMain) {
  enMain_ = enMain;
  const bool enCours = Annee() == rules::Annee::EnCours;
  const bool libre = enMain == LigneEnMain::Aucune;
  Montree().Activer(enMain, enCours && session_.DroitComplet());
  Ong_SuivContrat.SetEnabled(libre && tteDisponible_);
  screen::Activer({&Opt_EnCours, &Opt_Precedent, &Cmd_Retour}, libre);
  Cmd_Ajouter.SetEnabled(libre && enCours);
  Cmd_Supprimer.SetEnabled(enMain != LigneEnMain::Creation && enCours);
  Cmd_OK.SetEnabled(enCours);
  Cmd_Annuler.SetEnabled(!libre);
}

bool Frm_ContratAnnuel::Confirmer(const char* question) {
  return Demander(question, Boutons::OuiNon, Icone::Exclamation, Reponse::Non) == Reponse::Oui;
}

// Acts on a line.

void Frm_ContratAnnuel::Cmd_Ajouter_Click() {
  Montree().Vider_Texte();
  Prendre(LigneEnMain::Creation);
  Montree().Commencer();
}

void Frm_ContratAnnuel::Cmd_Supprimer_Click() {
  if (enMain_ == LigneEnMain::Modification) {
    if (!Confirmer(SupprimerLigne)) return;
    Montree().SupprimerLigne();
  } else if (Montree().Nombre() > 0) {
    if (!Confirmer("Etes-vous sûr de vouloir supprimer ce suivi de contrat ?")) return;
    Montree().SupprimerTout();
  }
  Prendre(LigneEnMain::Aucune);
}

void Frm_ContratAnnuel::Cmd_Ok_Click() {
  if (enMain_ == LigneEnMain::Aucune) {
    Enregistrer();
    Quitter();
  } else if (Montree().Confirmer(enMain_)) {
    Prendre(LigneEnMain::Aucune);
  }
}

void Frm_ContratAnnuel::Cmd_Annuler_Click() {
  if (enMain_ == LigneEnMain::Creation && !Confirmer(QuitterCreation)) {
    return;
  }
  Montree().Vider_Texte();
  Prendre(LigneEnMain::Aucune);
}

// Ways out.

void Frm_ContratAnnuel::Cmd_Retour_Click() {
  if (session_.DroitComplet() && (remunere.Modifiee() || tempsEffectif.Modifiee())) {
    Services().curseur.Bip();
    const Reponse reponse = MessageBox(QuestionArticle, Boutons::OuiNonAnnuler, Icone::Exclamation);
    if (reponse == Reponse::Annuler) return;
    if (reponse == Reponse::Oui) Enregistrer();
  }
  Quitter();
}

void Frm_ContratAnnuel::Enregistrer() {
  remunere.Enregistrer();
  tempsEffectif.Enregistrer();
}

// What an earlier visit has left to be stored counts as well.
void Frm_ContratAnnuel::Quitter() {
  dossier_.SuiviModifie = !dossier_.ItemAidantTte.Vue(0).empty();
  Sortir();
}

}  // namespace dialogs
