#pragma once
// The window in which the suite's leave control shows the notice-period leave of a contract.

#include "dialogs/forme_hebergee.h"

namespace dialogs {

class Frm_DetailCongesDelPrev : public FormeHebergee {
 public:
  struct Conges {
    std::string codeAidant;
    std::string association;
    std::string employeur;
    // The last one that payroll has processed, AAAAMM.
    std::string periode;
  };
  Frm_DetailCongesDelPrev(screen::Platform& platform, Conges conges);

 protected:
  std::vector<Propriete> Contexte() const override;

 private:
  Conges conges_;
};

}  // namespace dialogs
