#pragma once
// The plain frame of a table of several lists, one pixel wide; two, in the colour of what is
// selected, while one of the lists has the keyboard: a table without a selected row, or without any
// row, shows no other sign of it. Under a scale of one and a half the lists cover sides of the
// style's own frame: here the layout inside keeps a margin of two.

#include <QApplication>
#include <QPainter>
#include <QWidget>

class Panneau : public QWidget {
 public:
  explicit Panneau(QWidget* parent = nullptr) : QWidget(parent) {
    const auto suivre = [this](QWidget*, const QWidget* arrivee) {
      const bool dedans = arrivee != nullptr && isAncestorOf(arrivee);
      if (dedans == clavier_) return;
      clavier_ = dedans;
      update();
    };
    suivi_ = connect(qApp, &QApplication::focusChanged, this, suivre);
  }
  // Its lists go after it, and the keyboard with them: nothing is followed any more.
  ~Panneau() override { disconnect(suivi_); }
  Panneau(const Panneau&) = delete;
  Panneau& operator=(const Panneau&) = delete;

 protected:
  void paintEvent(QPaintEvent*) override {
    QPainter pinceau(this);
    const int trait = clavier_ ? 2 : 1;
    const QColor couleur = palette().color(clavier_ ? QPalette::Highlight : QPalette::Mid);
    for (const QRect& cote :
         {QRect(0, 0, width(), trait), QRect(0, 0, trait, height()),
          QRect(0, height() - trait, width(), trait), QRect(width() - trait, 0, trait, height())}) {
      pinceau.fillRect(cote, couleur);
    }
  }

 private:
  QMetaObject::Connection suivi_{};
  bool clavier_ = false;
};
