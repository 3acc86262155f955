#include "liaison/combo_deroulante.h"

#include <QKeyEvent>
#include <QLineEdit>
#include <QStyleOptionFrame>
#include <QStylePainter>

void ComboDeroulante::Figer(bool figee) {
  if (figee == figee_) return;
  figee_ = figee;
  setAttribute(Qt::WA_Hover, !figee);
  update();
}

void ComboDeroulante::showPopup() {
  if (figee_) return;
  refusee_ = false;
  emit aboutToShowPopup();
  if (!refusee_) QComboBox::showPopup();
}

// A line of text, in the frame of an entry whose text stands on the window's ground.
void ComboDeroulante::paintEvent(QPaintEvent* evenement) {
  if (!figee_) return QComboBox::paintEvent(evenement);
  QStylePainter pinceau(this);
  QStyleOptionFrame cadre;
  cadre.initFrom(this);
  cadre.lineWidth = style()->pixelMetric(QStyle::PM_DefaultFrameWidth, &cadre, this);
  cadre.state |= QStyle::State_Sunken | QStyle::State_ReadOnly;
  cadre.palette.setColor(QPalette::Base, palette().color(QPalette::Window));
  pinceau.drawPrimitive(QStyle::PE_PanelLineEdit, cadre);
  if (isEditable()) return;
  QStyleOptionComboBox option;
  initStyleOption(&option);
  const QRect place =
      style()->subControlRect(QStyle::CC_ComboBox, &option, QStyle::SC_ComboBoxEditField, this);
  const QString texte = currentIndex() < 0 ? placeholderText() : currentText();
  pinceau.setPen(palette().color(QPalette::Text));
  pinceau.drawText(place.adjusted(1, 0, -1, 0), Qt::AlignLeft | Qt::AlignVCenter,
                   fontMetrics().elidedText(texte, Qt::ElideRight, place.width() - 2));
}

// The text can still be walked through and copied.
void ComboDeroulante::keyPressEvent(QKeyEvent* evenement) {
  if (!figee_) return QComboBox::keyPressEvent(evenement);
  evenement->ignore();
  if (lineEdit() != nullptr) lineEdit()->event(evenement);
}

void ComboDeroulante::wheelEvent(QWheelEvent* evenement) {
  if (!figee_) QComboBox::wheelEvent(evenement);
}
