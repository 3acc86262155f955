#pragma once
// A dialog that lists lines of the contract in hand and enters one of them at a time: a further
// one, or the one that was clicked twice. While one is in hand, OK keeps it and Annuler gives it
// up; otherwise both leave the dialog.

#include "dialogs/dialogue.h"

namespace dialogs {

class DialogueLignes : public DialogueContrat {
 protected:
  DialogueLignes(screen::Platform& platform, session::Dossier& dossier, std::string nom,
                 std::string titre);

  // The line in hand goes into the lists. False, after a message, when it cannot be kept.
  virtual bool Ranger() = 0;
  // No line in hand any more: shows so.
  virtual void Liberer() = 0;

  bool EnMain() const { return enCreation_ || ligne_ >= 0; }
  void Finir();
  void Cmd_Ok_Click();
  void Cmd_Annuler_Click();
  // The user, asked, lets the line in hand go.
  bool SuppressionConfirmee();

  bool enCreation_ = false;
  // The row that is being modified, -1 for none.
  int ligne_ = -1;
};

}  // namespace dialogs
