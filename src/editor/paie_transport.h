#pragma once
// The zone of public transport for which the carer's travel pass is refunded.

#include <vector>

#include "session/zones.h"

namespace editor {

class Frm_ElementsContrat;

class PaieTransport {
 public:
  PaieTransport(Frm_ElementsContrat& editeur, screen::Frame& page);

  // Reads the zones for the contract in hand; the list is filled when it drops down.
  void Preparer();
  std::vector<session::Zone> Zones();

 private:
  void Cbo_CartOrangContrat_DropDown();
  void Cbo_CartOrangContrat_LostFocus();

  Frm_ElementsContrat& editeur_;
  screen::Frame& page_;
  screen::Label Etq_CartOrangContrat{page_, "Etq_CartOrangContrat", "Zone carte orange"};
  screen::ComboBox Cbo_CartOrangContrat{page_, "Cbo_CartOrangContrat", true, 60};
  // TABLES item.
  data::ListeCodes zonesTransport_;
};

}  // namespace editor
