#include "dialogs/dialogue.h"

namespace dialogs {

void Dialogue::Sortir() {
  sortieAutorisee_ = true;
  Close();
}

void Dialogue::Refuser(const rules::Refus& refus) {
  MessageBox(refus.texte, screen::Boutons::Ok, refus.icone);
  if (screen::Field* const champ = Find(refus.champ)) champ->SetFocus();
}

bool DialogueContrat::Modifie() const {
  data::CItem ecrit = dossier_.ItemContrat;
  Copier_Champs(ecrit);
  return ecrit.Text() != dossier_.ItemContrat.Text();
}

void DialogueContrat::Cmd_Retour_Click() {
  if (session_.DroitComplet() && Modifie()) {
    Services().curseur.Bip();
    const auto reponse =
        MessageBox(question_, screen::Boutons::OuiNonAnnuler, screen::Icone::Exclamation);
    if (reponse == screen::Reponse::Annuler) return;
    if (reponse == screen::Reponse::Oui) MAJ_TabDyn();
  }
  Sortir();
}

}  // namespace dialogs
