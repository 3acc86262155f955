#pragma once
// The window in which the suite's parameter-table control lets the user add a professional
// qualification. Whoever opened it reads the table again afterwards.

#include "dialogs/forme_param_table.h"

namespace dialogs {

class Frm_QualifPro : public FormeParamTable {
 public:
  explicit Frm_QualifPro(screen::Platform& platform);

 protected:
  std::vector<Propriete> Contexte() const override;
};

}  // namespace dialogs
