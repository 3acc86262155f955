#pragma once
// What the host window shows on its right side while no carer is open: the program's name and what
// to do next.

#include <QWidget>

class QIcon;
class QLabel;

namespace hote {

class Accueil : public QWidget {
 public:
  explicit Accueil(QWidget* parent = nullptr);

  void Dire(const QString& conseil);
  // Shows the program's icon in the room that is kept for it. On a machine that cannot draw its
  // format the room goes.
  void PoserIcone(const QIcon& icone);

 private:
  QLabel* icone_;
  QLabel* conseil_;
};

}  // namespace hote
