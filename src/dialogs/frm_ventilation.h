#pragma once
// The window in which the suite's leave-count control shows how a contract's leave was counted.

#include "dialogs/forme_hebergee.h"

namespace dialogs {

class Frm_Ventilation : public FormeHebergee {
 public:
  // Whose leave. The employer is that of the contract, or its legal entity where the person helped
  // is not the employer.
  struct Decompte {
    std::string codeAidant;
    std::string nomPrenom;
    std::string codeEmployeur;
    std::string nomEmployeur;
    // Carer code, then number.
    std::string cleContrat;
  };
  Frm_Ventilation(screen::Platform& platform, Decompte decompte);

 protected:
  std::vector<Propriete> Contexte() const override;

 private:
  Decompte decompte_;
};

}  // namespace dialogs
