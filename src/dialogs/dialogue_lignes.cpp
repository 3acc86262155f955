#include "dialogs/dialogue_lignes.h"

namespace dialogs {

namespace {

using screen::Boutons, screen::Icone, screen::Reponse;

}  // namespace

DialogueLignes::DialogueLignes(screen::Platform& platform, session::Dossier& dossier,
                               std::string nom, std::string titre)
    : DialogueContrat(platform, dossier, std::move(nom), std::move(titre), QuestionArticle) {}

void DialogueLignes::Finir() {
  enCreation_ = false;
  ligne_ = -1;
  Liberer();
}

void DialogueLignes::Cmd_Ok_Click() {
  if (!EnMain()) {
    MAJ_TabDyn();
    Sortir();
  } else if (Ranger()) {
    Finir();
  }
}

void DialogueLignes::Cmd_Annuler_Click() {
  if (!EnMain()) {
    Sortir();
    return;
  }
  if (enCreation_ && Demander(QuitterCreation, Boutons::OuiNon, Icone::Exclamation, Reponse::Non) !=
                         Reponse::Oui) {
    return;
  }
  Finir();
}

bool DialogueLignes::SuppressionConfirmee() {
  return Demander(SupprimerLigne, Boutons::OuiNon, Icone::Exclamation, Reponse::Non) ==
         Reponse::Oui;
}

}  // namespace dialogs
