#pragma once
// The window of the suite's leave-period control, for whichever screen comes to open it.

#include "dialogs/forme_hebergee.h"

namespace dialogs {

class Frm_PeriodeConges : public FormeHebergee {
 public:
  explicit Frm_PeriodeConges(screen::Platform& platform);

 protected:
  std::vector<Propriete> Contexte() const override;
};

}  // namespace dialogs
