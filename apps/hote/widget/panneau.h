#pragma once
// A plain frame one pixel wide, all four sides of which show at every scale: the style's own loses
// sides where a screen pixel and a half make one of ours. The layout inside keeps a margin of one.

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
