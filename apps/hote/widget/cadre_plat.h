#pragma once
// A group box without its frame: a caption over what it holds. For groups of one field, and for
// those that stand in another group, where frame in frame is heavy.

#include <QGroupBox>
#include <QStyleOptionGroupBox>
#include <QStylePainter>

class CadrePlat : public QGroupBox {
 public:
  using QGroupBox::QGroupBox;

 protected:
  void paintEvent(QPaintEvent*) override {
    QStylePainter pinceau(this);
    QStyleOptionGroupBox option;
    initStyleOption(&option);
    option.subControls = QStyle::SC_GroupBoxLabel;
    pinceau.drawComplexControl(QStyle::CC_GroupBox, option);
  }
  // The box takes room for its frame; without one, what it holds begins under the caption.
  bool event(QEvent* evenement) override {
    if (evenement->type() == QEvent::ContentsRectChange) {
      setContentsMargins(0, contentsMargins().top(), 0, 0);
    }
    return QGroupBox::event(evenement);
  }
  // The room for the frame does not hang on the size: to take it anew here, in the midst of a
  // layout, leaves the page with the width of a frame that is not there.
  void resizeEvent(QResizeEvent* evenement) override { QWidget::resizeEvent(evenement); }
};
