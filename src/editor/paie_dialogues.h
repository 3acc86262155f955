#pragma once
// The dialogs that the third tab opens: entry headings, payslip comments, remote time-tracking and
// absence compensation.

#include "editor/paie_activites.h"
#include "editor/paie_cotisations.h"

namespace editor {

class PaieDialogues {
 public:
  PaieDialogues(Frm_ElementsContrat& editeur, screen::Frame& page, const PaieActivites& activites,
                const PaieCotisations& cotisations);

  // Remote time-tracking is in use in the entity of the contract.
  void SelonTelegestion(bool utilisee);

 private:
  void Cmd_RubSaisie_Click();
  void Cmd_Telegestion_Click();

  Frm_ElementsContrat& editeur_;
  screen::Frame& page_;
  const PaieActivites& activites_;
  const PaieCotisations& cotisations_;

  screen::Button Cmd_RubSaisie{page_, "Cmd_RubSaisie", "Rubriques de saisie"};
  screen::Button Cmd_Comment{page_, "Cmd_Comment", "Commentaires sur bulletin"};
  screen::Button Cmd_Telegestion{page_, "Cmd_Telegestion", "Droits télégestion"};
  screen::Button Cmd_TpsIndem{page_, "Cmd_TpsIndem", "Temps d'indemnisation"};
};

}  // namespace editor
