#pragma once
// A drop-down that says when its rows are about to be shown, so that they can be filled late, and
// that can be there to be read only. The forms use it for every drop-down.

#include <QComboBox>

class ComboDeroulante : public QComboBox {
  Q_OBJECT

 public:
  explicit ComboDeroulante(QWidget* parent = nullptr) : QComboBox(parent) {}
  // Called from aboutToShowPopup: the rows stay hidden this time.
  void RefuserOuverture() { refusee_ = true; }
  // Shows its text without a button and keeps it, whatever the keyboard, wheel and mouse do.
  void Figer(bool figee);
  void showPopup() override;

 signals:
  void aboutToShowPopup();

 protected:
  void paintEvent(QPaintEvent* evenement) override;
  void keyPressEvent(QKeyEvent* evenement) override;
  void wheelEvent(QWheelEvent* evenement) override;

 private:
  bool refusee_ = false;
  bool figee_ = false;
};
