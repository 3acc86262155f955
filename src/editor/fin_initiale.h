#pragma once
// The end of the contract as the last tab showed it at the opening. A tab that still shows it
// leaves the contract as it was, also what it does not show: an end without a notification.

#include <string>

#include "data/citem.h"
#include "screen/field.h"

namespace editor {

class Frm_ElementsContrat;

class FinInitiale {
 public:
  FinInitiale(Frm_ElementsContrat& editeur, const screen::Frame& page)
      : editeur_(editeur), page_(page) {}

  // What the tab shows now, with its notification and its last day worked.
  void Retenir(const std::string& notification, const std::string& dernierJour);
  void Oublier() { notification_.clear(); }

  // The contract at the opening.
  const data::CItem& Contrat() const { return contrat_; }
  const std::string& DernierJour() const { return dernierJour_; }
  // The tab shows what it showed at first. `notification`: as it is displayed now; when there is
  // none, what else is shown counts for nothing.
  bool Intact(const std::string& notification) const;

 private:
  // What the user sees of the tab, as one text.
  std::string Empreinte() const;

  Frm_ElementsContrat& editeur_;
  const screen::Frame& page_;
  data::CItem contrat_;
  std::string notification_;
  std::string dernierJour_;
  std::string empreinte_;
};

}  // namespace editor
