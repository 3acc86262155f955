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
  void resizeEvent(QResizeEvent* evenement) override {
    QGroupBox::resizeEvent(evenement);
    Aligner();
  }
  void changeEvent(QEvent* evenement) override {
    QGroupBox::changeEvent(evenement);
    Aligner();
  }

 private:
  // The box takes room for its frame; without one, what it holds begins under the caption.
  void Aligner() { setContentsMargins(0, contentsMargins().top(), 0, 0); }
};
