// Cmd_OK: what is checked, in its order, before a contract is written, and what follows the write.

#include "data/cles.h"
#include "data/layouts/contrat.h"
#include "data/layouts/fichiers.h"
#include "data/layouts/voisins.h"
#include "data/nombre.h"
#include "editor/editeur.h"

namespace editor {

namespace {

constexpr const char* QuestionChevauchement =
    "Souhaitez-vous annuler l'ajout ou changer les dates du contrat pour remédier à ce "
    "chevauchement ?\r\n\r\n - Pour remédier au problème, cliquer sur OUI\r\n - Sinon cliquer sur "
    "NON.";

}  // namespace

void Frm_ElementsContrat::Cmd_Ok_Click() {
  ValidationEnCours = true;
  if (!Verifier() || !AccepterDates()) return;
  EcritureVerifiee = false;
  if (!enregistrement_.Ecrire_Donnees()) return;
  const screen::Attente attente(*this);
  enregistrement_.Maj_Missions();
  if (session_.ModeCreation) {
    enregistrement_.Maj_IndexCreation();
  } else {
    enregistrement_.Maj_IndexAvenants();
  }
  Refermer();
}

bool Frm_ElementsContrat::Verifier() {
  if (!origine.Verif_Ong1()) return false;
  if (!session_.ModeCreation) return true;
  data::CItem& contrat = session_.ItemContrat;
  if (ConventionParticuliers()) {
    data::CItem employeur;
    session_.Db->OpenFile(data::fichier::ELTSPARTEMP)
        .Lire(origine.Txt_EmplEtabContrat.Text(), employeur);
    const auto debutPrev = employeur.Vue(data::EltsPartEmp::DateDebutPrev);
    if (!debutPrev.empty() && data::entier(debutPrev) < Dates().debut) {
      paie.Txt_PrevContrat.SetText("");
    }
  }
  contrat.Set(data::Contrat::Annule, "");
  contrat.Set(data::Contrat::DelaiPrevAcquis, "0");
  contrat.Set(data::Contrat::DelaiPrevRestants, "0");
  return true;
}

bool Frm_ElementsContrat::AccepterDates() {
  {
    screen::Attente attente(*this);
    Voisins = rules::VerifContratExist(*session_.Db, Portee(), Dates());
    attente.Finir();
  }
  session_.ConflitContrat = Voisins.conflit.has_value();
  if (!Voisins.conflit) return true;
  MessageBox(Voisins.conflit->texte, screen::Boutons::Ok, Voisins.conflit->icone);
  if (!session_.ModeCreation) return false;
  // Another contract without an end leaves no date to choose: the creation is given up at once.
  const bool changerLesDates = !Voisins.finContratConflit.empty() &&
                               MessageBox(QuestionChevauchement, screen::Boutons::OuiNon,
                                          screen::Icone::Information) == screen::Reponse::Oui;
  if (!changerLesDates) AbandonnerCreation();
  return false;
}

void Frm_ElementsContrat::AbandonnerCreation() {
  enregistrement_.Abandonner();
  Refermer();
}

void Frm_ElementsContrat::Refermer() {
  FermetureAutorisee = 1;
  Vider_Donnees();
  Ong2Charge = Ong3Charge = Ong4Charge = Ong5Charge = false;
  Hide();
}

}  // namespace editor
