// The start that every window of this toolkit pays: an empty one, as large as the host's first.
// With a word as argument, a menu and a label show it: the least that opens the toolkit's fonts.

#include <QApplication>
#include <QLabel>
#include <QMainWindow>
#include <QMenuBar>

int main(int argc, char** argv) {
  QApplication application(argc, argv);
  QMainWindow fenetre;
  if (argc > 1) {
    fenetre.menuBar()->addMenu(argv[1]);
    fenetre.setCentralWidget(new QLabel(argv[1]));
  }
  fenetre.resize(1280, 720);
  fenetre.show();
  return QApplication::exec();
}
