#pragma once
// The window in which the suite's absence-compensation control shows what a carer was compensated
// for under a provident contract.

#include "dialogs/forme_hebergee.h"
#include "session/dossier.h"

namespace dialogs {

class Frm_TpsIndem : public FormeHebergee {
 public:
  // `prevoyance`: the provident contract on the editor's screen.
  Frm_TpsIndem(screen::Platform& platform, const session::Dossier& dossier,
               const std::string& prevoyance);

 protected:
  std::vector<Propriete> Contexte() const override;

 private:
  const session::Session& session_;
  // HISTORINDEM key, and the period that the control begins at.
  std::string cle_;
  std::string periode_;
};

}  // namespace dialogs
