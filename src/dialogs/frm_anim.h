#pragma once
// What stands on the screen while long work is under way, for whichever screen comes to show it: a
// picture that moves from the load on, and a word. Whoever shows it hides it; the user cannot.

#include "screen/animation.h"
#include "screen/form.h"

namespace dialogs {

class Frm_Anim : public screen::Form {
 public:
  explicit Frm_Anim(screen::Platform& platform) : Form(platform, "Frm_Anim") {
    Ani_Attente.Demarrer();
  }

  screen::Label Etq_Attente{*this, "Etq_Attente", "Veuillez patienter..."};
  screen::Animation Ani_Attente{*this, "Ani_Attente"};

 protected:
  bool QueryUnload() override { return false; }
};

}  // namespace dialogs
