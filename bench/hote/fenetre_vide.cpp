// The start that every window of this toolkit pays: an empty one, as large as the host's first.

#include <QApplication>
#include <QMainWindow>

int main(int argc, char** argv) {
  QApplication application(argc, argv);
  QMainWindow fenetre;
  fenetre.resize(1280, 720);
  fenetre.show();
  return QApplication::exec();
}
