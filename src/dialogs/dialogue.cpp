#include "dialogs/dialogue.h"

#include <algorithm>

namespace dialogs {

void Dialogue::Sortir() {
  sortieAutorisee_ = true;
  Close();
}

void DialogueContrat::DroitsUtilisateur(const session::Droits& droits) {
  droit_ = droits.Lookup(session::DroitContrat);
}

void DialogueContrat::Verif_TabDyn() {
  for (const int a : attributs_) itemSauvegarde_.Set(a, "");
  Copier_Champs(itemSauvegarde_);
}

bool DialogueContrat::Modifie() {
  Verif_TabDyn();
  return std::any_of(attributs_.begin(), attributs_.end(), [this](int a) {
    return itemSauvegarde_.Vue(a) != session_.ItemContrat.Vue(a);
  });
}

void DialogueContrat::MAJ_TabDyn() {
  Verif_TabDyn();
  for (const int a : attributs_) session_.ItemContrat.Set(a, itemSauvegarde_.Vue(a));
}

void DialogueContrat::Cmd_Retour_Click() {
  if (DroitComplet() && Modifie()) {
    Services().curseur.Bip();
    const auto reponse =
        MessageBox(question_, screen::Boutons::OuiNonAnnuler, screen::Icone::Exclamation);
    if (reponse == screen::Reponse::Annuler) return;
    if (reponse == screen::Reponse::Oui) MAJ_TabDyn();
  }
  Sortir();
}

}  // namespace dialogs
