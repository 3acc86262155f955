#pragma once
// A drop-down that says when its rows are about to be shown, so that they can be filled late. The
// forms use it for every drop-down.

#include <QComboBox>

class ComboDeroulante : public QComboBox {
  Q_OBJECT

 public:
  explicit ComboDeroulante(QWidget* parent = nullptr) : QComboBox(parent) {}
  // Called from aboutToShowPopup: the rows stay hidden this time.
  void RefuserOuverture() { refusee_ = true; }
  void showPopup() override;

 signals:
  void aboutToShowPopup();

 private:
  bool refusee_ = false;
};
