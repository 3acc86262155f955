#pragma once
// What the satellite dialogs share. A dialog is a local object of its caller: created, which shows
// the contract in hand; given its context; shown modally; read; dropped. It closes by its own
// buttons only: the frame's close box is refused.
//
// A DialogueContrat enters a few attributes of the contract in hand. All that it changes is the
// dossier's ItemContrat in memory, and only when the user has confirmed; storing it is the editor's
// business.

#include <string>

#include "data/citem.h"
#include "rules/verification.h"
#include "screen/form.h"
#include "session/dossier.h"

namespace dialogs {

// Asked by every screen in which lines are entered.
inline constexpr const char* QuestionArticle =
    "Voulez-vous enregistrer les modifications apportées à cet article ?";
inline constexpr const char* QuitterCreation = "Etes-vous sûr de vouloir quitter cette création ?";
inline constexpr const char* SupprimerLigne = "Etes-vous sûr de vouloir supprimer cette ligne ?";

class Dialogue : public screen::Form {
 protected:
  Dialogue(screen::Platform& platform, session::Dossier& dossier, std::string nom,
           std::string titre)
      : Form(platform, std::move(nom), std::move(titre)),
        dossier_(dossier),
        session_(dossier.Session) {}

  bool QueryUnload() override { return sortieAutorisee_; }
  // Closes, as one of the dialog's own buttons.
  void Sortir();
  // The checks in their order; the first that fails is shown and its field takes the focus.
  template <class Forme>
  bool Verifier(std::span<const rules::Verification<Forme>> verifications, Forme& forme) {
    return rules::Verifier(verifications, forme,
                           [this](const rules::Refus& refus) { Refuser(refus); });
  }

  session::Dossier& dossier_;
  session::Session& session_;

 private:
  void Refuser(const rules::Refus& refus);

  bool sortieAutorisee_ = false;
};

class DialogueContrat : public Dialogue {
 protected:
  // `question` is asked on leaving a changed screen; it outlives the dialog.
  DialogueContrat(screen::Platform& platform, session::Dossier& dossier, std::string nom,
                  std::string titre, const char* question)
      : Dialogue(platform, dossier, std::move(nom), std::move(titre)), question_(question) {}

  // The fields into that item; what the dialog does not enter stays.
  virtual void Copier_Champs(data::CItem& contrat) const = 0;

  // The fields into the contract in hand.
  void MAJ_TabDyn() { Copier_Champs(dossier_.ItemContrat); }
  // Leaves; first asks what to do with changes, when they could be kept.
  void Cmd_Retour_Click();

 private:
  bool Modifie() const;

  const char* question_;
};

}  // namespace dialogs
