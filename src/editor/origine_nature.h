#pragma once
// The nature of the contract on the first tab, and the traineeship that one of them needs: offered
// are the natures that can still be chosen, and the one that the contract on file has already.

#include <string>
#include <vector>

#include "session/zones.h"

namespace editor {

class Frm_ElementsContrat;

class NatureOrigine {
 public:
  NatureOrigine(Frm_ElementsContrat& editeur, screen::Frame& page);

  // Reads the natures for the contract in hand; the list is filled when it drops down.
  void Preparer();
  // Clears what belongs to one contract.
  void Vider() { Cmd_Stage.SetVisible(false); }
  std::vector<session::Zone> Zones();
  const std::string& Libelle() const { return Cbo_NatureContrat.Text(); }

  // The nature needs a traineeship agreement.
  bool StageRequis() const;
  void MontrerStage();
  void Cmd_Stage_Click();
  // Only a trainee has a traineeship: it leaves the contract in hand when the nature is another,
  // and comes back with the nature.
  void EcrireStage();
  void RendreStage();

 private:
  void Cbo_NatureContrat_DropDown();
  void Cbo_NatureContrat_LostFocus();

  Frm_ElementsContrat& editeur_;
  screen::Frame& page_;

  screen::Label Etq_NatureContrat{page_, "Etq_NatureContrat", "Nature"};
  screen::ComboBox Cbo_NatureContrat{page_, "Cbo_NatureContrat", true, 60};
  screen::Button Cmd_Stage{page_, "Cmd_Stage", "Détails convention stage"};

  // The natures of TABLES; the mark "O" of those that can be chosen.
  data::ListeCodes natures_;
  // The traineeship that a copy of the screen took away.
  data::CItem stageAvant_;
};

}  // namespace editor
