#pragma once
// What the satellite dialogs share. A dialog is a local object of its caller: created, which shows
// the contract in hand; given its context; shown modally; read; dropped. It closes by its own
// buttons only: the frame's close box is refused.
//
// A DialogueContrat enters a few attributes of the contract in hand. All that it changes is
// Session::ItemContrat in memory, and only when the user has confirmed; storing it is the editor's
// business.

#include <span>
#include <string>

#include "data/citem.h"
#include "screen/form.h"
#include "session/droits.h"
#include "session/session.h"

namespace dialogs {

class Dialogue : public screen::Form {
 protected:
  Dialogue(screen::Platform& platform, session::Session& session, std::string nom,
           std::string titre)
      : Form(platform, std::move(nom), std::move(titre)), session_(session) {}

  bool QueryUnload() override { return sortieAutorisee_; }
  // Closes, as one of the dialog's own buttons.
  void Sortir();

  session::Session& session_;

 private:
  bool sortieAutorisee_ = false;
};

class DialogueContrat : public Dialogue {
 public:
  // Before `init`. Without it, or without the full right, nothing can be confirmed.
  void DroitsUtilisateur(const session::Droits& droits);

 protected:
  // `attributs`: those of the contract that this dialog enters. `question` is asked on leaving a
  // changed screen. Both outlive the dialog.
  DialogueContrat(screen::Platform& platform, session::Session& session, std::string nom,
                  std::string titre, std::span<const int> attributs, const char* question)
      : Dialogue(platform, session, std::move(nom), std::move(titre)),
        attributs_(attributs),
        question_(question) {}

  // Sets the dialog's attributs in `item`, all empty before, from the fields.
  virtual void Copier_Champs(data::CItem& item) const = 0;

  bool DroitComplet() const { return droit_.Complet(); }
  // The fields into the contract in hand.
  void MAJ_TabDyn();
  // Leaves; first asks what to do with changes, when they could be kept.
  void Cmd_Retour_Click();

 private:
  void Verif_TabDyn();
  bool Modifie();

  std::span<const int> attributs_;
  const char* question_;
  session::Droit droit_;
  // What the fields would write, to be compared with the contract.
  data::CItem itemSauvegarde_;
};

}  // namespace dialogs
