#pragma once
// The window in which the suite's parameter-table control lets the user maintain the table of
// hiring reasons.

#include "dialogs/forme_hebergee.h"

namespace dialogs {

class Frm_MotifsEmbauche : public FormeHebergee {
 public:
  static constexpr int Marge = 240;  // twips, window round the control

  explicit Frm_MotifsEmbauche(screen::Platform& platform);

  // Size of the window in twips, once the form is shown.
  int Largeur() const { return largeur_; }
  int Hauteur() const { return hauteur_; }

 protected:
  std::vector<Propriete> Contexte() const override;
  void Activate() override { AdapteExe(); }

 private:
  void AdapteExe();

  int largeur_ = 0;
  int hauteur_ = 0;
};

}  // namespace dialogs
