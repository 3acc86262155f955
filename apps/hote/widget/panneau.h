#pragma once
// The plain frame of a table of several lists, one pixel wide. Under a scale of one and a half the
// lists cover sides of the style's own frame: here the layout inside keeps a margin of one.

#include <QPainter>
#include <QWidget>

class Panneau : public QWidget {
 public:
  using QWidget::QWidget;

 protected:
  void paintEvent(QPaintEvent*) override {
    QPainter pinceau(this);
    const QColor trait = palette().color(QPalette::Mid);
    for (const QRect& cote :
         {QRect(0, 0, width(), 1), QRect(0, 0, 1, height()), QRect(0, height() - 1, width(), 1),
          QRect(width() - 1, 0, 1, height())}) {
      pinceau.fillRect(cote, trait);
    }
  }
};
