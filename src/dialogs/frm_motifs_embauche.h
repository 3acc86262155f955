#pragma once
// The window in which the suite's parameter-table control lets the user maintain the table of
// hiring reasons.

#include "dialogs/forme_param_table.h"

namespace dialogs {

class Frm_MotifsEmbauche : public FormeParamTable {
 public:
  explicit Frm_MotifsEmbauche(screen::Platform& platform);

 private:
  void AdapteExe() override;
};

}  // namespace dialogs
