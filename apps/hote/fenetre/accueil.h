#pragma once
// What the host window shows on its right side while no carer is open: the program's name and what
// to do next.

#include <QWidget>

class QLabel;

namespace hote {

class Accueil : public QWidget {
 public:
  explicit Accueil(QWidget* parent = nullptr);

  void Dire(const QString& conseil);

 private:
  QLabel* conseil_;
};

}  // namespace hote
