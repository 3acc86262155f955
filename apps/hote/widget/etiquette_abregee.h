#pragma once
// A label that takes what room is left and ends its text with an ellipsis where that is too little.

#include <QLabel>
#include <QPainter>
#include <QStyle>

class EtiquetteAbregee : public QLabel {
 public:
  using QLabel::QLabel;

 protected:
  void paintEvent(QPaintEvent*) override {
    QPainter pinceau(this);
    const QRect place = contentsRect();
    style()->drawItemText(
        &pinceau, place, static_cast<int>(alignment()) | Qt::TextSingleLine, palette(), isEnabled(),
        fontMetrics().elidedText(text(), Qt::ElideRight, place.width()), foregroundRole());
  }
};
