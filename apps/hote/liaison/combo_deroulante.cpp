#include "liaison/combo_deroulante.h"

void ComboDeroulante::showPopup() {
  refusee_ = false;
  emit aboutToShowPopup();
  if (!refusee_) QComboBox::showPopup();
}
