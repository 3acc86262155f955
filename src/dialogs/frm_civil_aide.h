#pragma once
// The window in which the suite's civil-state control shows a private employer.

#include "dialogs/forme_hebergee.h"

namespace dialogs {

class Frm_CivilAide : public FormeHebergee {
 public:
  Frm_CivilAide(screen::Platform& platform, std::string codeAide);

 protected:
  std::vector<Propriete> Contexte() const override;

 private:
  std::string codeAide_;
};

}  // namespace dialogs
