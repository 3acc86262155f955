#pragma once
// The window in which the suite's parameter-table control lets the user maintain the table of
// hiring reasons. The control is another component, which the host has or has not.

#include "screen/form.h"
#include "session/session.h"

namespace dialogs {

class Frm_MotifsEmbauche : public screen::Form {
 public:
  // The control's name among those that the host has.
  static constexpr const char* NomControle = "Ctr_ParamTable";
  // What the control edits, and the right that it looks up for itself.
  static constexpr const char* Table = "MOTIFEMBAUCHE";
  static constexpr const char* Droit = "MOTIFS EMBAUCHE";
  static constexpr const char* Mode = "PARAMAUTREINTERVAIDE";
  static constexpr int Marge = 240;  // twips, window round the control

  Frm_MotifsEmbauche(screen::Platform& platform, session::Session& session);

  // Hands the control its context and starts it; the form can then be shown. False, after a
  // message, when the host does not have the control. An object is handed over by the name that the
  // session has for it: the host, which gave it, knows it.
  bool Demarrer();

  // Size of the window in twips, once the form is shown.
  int Largeur() const { return largeur_; }
  int Hauteur() const { return hauteur_; }

 protected:
  void Activate() override { AdapteExe(); }
  // Not while the control says that it cannot be left.
  bool QueryUnload() override;

 private:
  void AdapteExe();

  screen::ControleHeberge* controle_;
  int largeur_ = 0;
  int hauteur_ = 0;
};

}  // namespace dialogs
