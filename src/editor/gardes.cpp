#include "editor/gardes.h"

#include "data/jour.h"
#include "data/layouts/fichiers.h"
#include "data/layouts/voisins.h"
#include "data/nombre.h"
#include "editor/editeur.h"
#include "rules/ecarts_contrat.h"
#include "screen/attente.h"

namespace editor {

namespace {

namespace C = data::Contrat;

constexpr const char* QuestionChevauchement =
    "Souhaitez-vous annuler l'ajout ou changer les dates du contrat pour remédier à ce "
    "chevauchement ?\r\n\r\n - Pour remédier au problème, cliquer sur OUI\r\n - Sinon cliquer sur "
    "NON.";

// Who wrote the contract last, and when, as the store has noted it: "" where it has not.
std::string dernierAuteur(const session::Dossier& dossier) {
  const auto anciens =
      dossier.Session.Db->Stockage().Historique(data::fichier::CONTRAT, dossier.CleContratCourant);
  return anciens.empty()
             ? ""
             : rules::auteurLisible(anciens.back().utilisateur, anciens.back().horodatage);
}

}  // namespace

const Gardes::Garde Gardes::Confirmation[5] = {&Gardes::Onglets, &Gardes::Preparation,
                                               &Gardes::Heures, &Gardes::AutresContrats,
                                               &Gardes::CoherencePlanning};
// The planning is written by its guard: who decides about the contract is asked before.
const Gardes::Garde Gardes::Ecriture[6] = {&Gardes::Modification,  &Gardes::DateFinModifiee,
                                           &Gardes::Ecrivables,    &Gardes::CopieSimple,
                                           &Gardes::ArticleChange, &Gardes::ImpactPlanning};
const Gardes::Garde Gardes::Depart[6] = {&Gardes::HeuresEnQuittant, &Gardes::Modification,
                                         &Gardes::DateFin,          &Gardes::CopieVerifiee,
                                         &Gardes::ArticleChange,    &Gardes::ImpactPlanning};

Avis Gardes::Passer(std::span<const Garde> chaine) {
  for (const Garde garde : chaine) {
    if (const Avis avis = (this->*garde)(); avis != Avis::Passe) return avis;
  }
  return Avis::Passe;
}

Avis Gardes::Onglets() {
  for (Onglet* const onglet : editeur_.Onglets()) {
    if (!onglet->Verif()) return Avis::Reste;
  }
  return Avis::Passe;
}

Avis Gardes::Preparation() {
  session::Dossier& dossier = editeur_.Dossier();
  if (!dossier.ModeCreation) return Avis::Passe;
  if (editeur_.origine.Particuliers()) {
    data::CItem employeur;
    dossier.Session.Db->OpenFile(data::fichier::ELTSPARTEMP)
        .Lire(editeur_.origine.Employeur(), employeur);
    const auto debutPrev = employeur.Vue(data::EltsPartEmp::DateDebutPrev);
    if (!debutPrev.empty() && data::entier(debutPrev) < editeur_.Dates().debut) {
      editeur_.paie.Cotisations().QuitterPrevoyance();
    }
  }
  dossier.ItemContrat.Set(C::Annule, "");
  dossier.ItemContrat.Set(C::DelaiPrevAcquis, "0");
  dossier.ItemContrat.Set(C::DelaiPrevRestants, "0");
  return Avis::Passe;
}

Avis Gardes::Heures() {
  return editeur_.caracteristiques.Verif_NbHeures() ? Avis::Passe : Avis::Abandonne;
}

Avis Gardes::HeuresEnQuittant() {
  return editeur_.caracteristiques.Verif_NbHeures() ? Avis::Passe : Avis::Reste;
}

Avis Gardes::AutresContrats() {
  rules::Voisinage voisins;
  {
    screen::Attente attente(editeur_);
    voisins = rules::VerifContratExist(*editeur_.Session().Db, editeur_.Portee(), editeur_.Dates());
    attente.Finir();
  }
  return Chevauchement(voisins);
}

Avis Gardes::Chevauchement(const rules::Voisinage& voisins) {
  if (!voisins.conflit) return Avis::Passe;
  editeur_.MessageBox(voisins.conflit->texte, screen::Boutons::Ok, voisins.conflit->icone);
  if (!editeur_.Dossier().ModeCreation) return Avis::Reste;
  const bool changerLesDates =
      !voisins.finContratConflit.empty() &&
      editeur_.Demander(QuestionChevauchement, screen::Boutons::OuiNon, screen::Icone::Information,
                        screen::Reponse::Oui) == screen::Reponse::Oui;
  return changerLesDates ? Avis::Reste : Avis::Abandonne;
}

// Verif_ModificationPossible, for the end that is shown: the month of its last payslip counts where
// it is the earlier one.
Avis Gardes::Modification() {
  const auto fin = editeur_.fin.FinAffichee();
  if (editeur_.Dossier().ModeCreation || !fin) return Avis::Passe;
  std::string mois = data::periodeDe(*fin);
  const std::string& bulletin = editeur_.fin.DernierBulletin();
  if (!bulletin.empty() && bulletin < mois) mois = bulletin;
  const auto refus =
      rules::Verif_ModificationPossible(*editeur_.Session().Db, editeur_.ContratTraite(), mois);
  if (!refus) return Avis::Passe;
  editeur_.MessageBox(refus->texte, screen::Boutons::Ok, refus->icone);
  return Avis::Reste;
}

Avis Gardes::DateFinModifiee() {
  const auto fin = editeur_.fin.DateFin();
  const std::string finEcran = fin ? std::to_string(*fin) : "";
  return finEcran == editeur_.Dossier().ItemContrat.Vue(C::DateFin) ? Avis::Passe : DateFin();
}

// Verif_SuppDateFin. A start that is no date is the first tab's to refuse, which checks next.
Avis Gardes::DateFin() {
  if (!editeur_.origine.Debut()) return Avis::Passe;
  std::optional<rules::Refus> refus;
  {
    screen::Attente attente(editeur_);
    refus = rules::Verif_SuppDateFin(*editeur_.Session().Db, editeur_.Portee(), editeur_.Dates());
    attente.Finir();
  }
  if (!refus) return Avis::Passe;
  editeur_.MessageBox(refus->texte, screen::Boutons::Ok, refus->icone);
  editeur_.fin.RefuserDateFin();
  return Avis::Reste;
}

Avis Gardes::CoherencePlanning() {
  if (!editeur_.Dossier().ModeCreation || !editeur_.Session().OptionCompteur999) {
    return Avis::Passe;
  }
  return planning_.Coherence() ? Avis::Passe : Avis::Reste;
}

Avis Gardes::ImpactPlanning() {
  return planning_.Verif_ImpactPlanning() ? Avis::Passe : Avis::Reste;
}

Avis Gardes::Ecrivables() {
  for (Onglet* const onglet : editeur_.Onglets()) {
    if (!onglet->Ecrivable()) return Avis::Reste;
  }
  return Avis::Passe;
}

Avis Gardes::Copie(bool verifiee) {
  for (Onglet* const onglet : editeur_.Onglets()) {
    if (!onglet->Ecrire(verifiee)) return Avis::Reste;
  }
  return Avis::Passe;
}

Avis Gardes::ArticleChange() {
  const session::Dossier& dossier = editeur_.Dossier();
  if (dossier.ModeCreation) return Avis::Passe;
  data::CItem surFichier;
  dossier.Session.F_CONTRAT.Lire(dossier.CleContratCourant, surFichier);
  return Remplacement(surFichier);
}

// Another contract may stand in its place since: it does not come back by a save.
bool Gardes::SupprimeAilleurs(const data::CItem& surFichier) {
  const session::Dossier& dossier = editeur_.Dossier();
  const bool supprime =
      surFichier.Text().empty() || (surFichier.Vue(C::Annule) == C::MarqueAnnule &&
                                    dossier.SurFichier.Vue(C::Annule) != C::MarqueAnnule);
  if (supprime) {
    editeur_.MessageBox("Le contrat " + dossier.NumeroContrat() +
                            " a été supprimé par un autre poste pendant votre saisie, qui n'est "
                            "pas enregistrée.",
                        screen::Boutons::Ok, screen::Icone::Exclamation);
  }
  return supprime;
}

Avis Gardes::Remplacement(const data::CItem& surFichier) {
  session::Dossier& dossier = editeur_.Dossier();
  if (surFichier.Text() == dossier.SurFichier.Text()) return Avis::Passe;
  if (SupprimeAilleurs(surFichier)) return Avis::Abandonne;
  const auto ecarts = rules::ecartsContrat(dossier.Session.Lib, surFichier, dossier.ItemContrat);
  auto tranche = screen::Tranche::Remplacer;
  if (!ecarts.empty()) {
    const screen::Conflit conflit{"le contrat " + dossier.NumeroContrat(), dernierAuteur(dossier),
                                  ecarts};
    data::Route::Interrompre();
    tranche = editeur_.Services().conflits.Trancher(conflit);
  }
  if (tranche == screen::Tranche::Garder) return Avis::Abandonne;
  if (tranche == screen::Tranche::Revenir) return Avis::Reste;
  dossier.SurFichier = surFichier;
  return Avis::Passe;
}

}  // namespace editor
