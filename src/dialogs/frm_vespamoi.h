#pragma once
// The window in which the suite's settings control of the remote time-tracking service VESPARIO
// works on the rights of one carer.

#include <vector>

#include "dialogs/forme_hebergee.h"

namespace dialogs {

// What the control takes over, as it stands on the editor's screen.
struct ContexteTelegestion {
  std::string association;
  std::string employeur;
  std::string nomEmployeur;
  std::string codeAidant;
  std::string nomAidant;
  bool particuliers = false;
  std::vector<std::string> activites;  // codes
};

class Frm_VESPAMOI : public FormeHebergee {
 public:
  Frm_VESPAMOI(screen::Platform& platform, ContexteTelegestion contexte);

 protected:
  std::vector<Propriete> Contexte() const override;

 private:
  ContexteTelegestion contexte_;
};

}  // namespace dialogs
