#pragma once
// A clerk who plays a row of steps on the window in front, whichever loop runs, and takes a picture
// after those that name one. A step leads into an editor or a box and goes on there.

#include <QEventLoop>
#include <QObject>
#include <QString>
#include <functional>
#include <string>
#include <vector>

class QMainWindow;

namespace hote {

class Album;

class Joueur : public QObject {
 public:
  struct Pas;
  using Acte = void (Joueur::*)(const Pas&);
  struct Pas {
    // Of the picture that shows what the step has led to, "" for none.
    const char* image;
    Acte acte;
    // The object name of a widget in the window in front, "" for the one that has the keyboard.
    const char* widget = "";
    std::string texte = {};
    // For what no key and no click does.
    std::function<void()> faire = {};
  };

  Joueur(Album& album, QMainWindow& fenetre) : album_(album), fenetre_(fenetre) {}

  // Returns when the last step is done, which leaves no window open that the steps have opened. One
  // that cannot be done ends the program with a word: nobody is there to leave what is open.
  void Jouer(std::vector<Pas> pas);

  // The text by keys into the widget, over what it holds; \t, \n and \x1b are Tab, Enter and Esc.
  void Saisir(const Pas& pas);
  // A key by its English name: "Ctrl+Return".
  void Touche(const Pas& pas);
  void Cliquer(const Pas& pas);
  // The button of the box in front whose caption is `texte`.
  void Repondre(const Pas& pas);
  // The page of that rank of the tabs.
  void Onglet(const Pas& pas);
  // The tooltip of the list's first row.
  void Bulle(const Pas& pas);
  void Faire(const Pas& pas);

 private:
  void Avancer();
  void Photographier(const QString& nom);
  QWidget& Devant() const;
  QWidget& Trouver(const Pas& pas) const;

  Album& album_;
  QMainWindow& fenetre_;
  std::vector<Pas> pas_{};
  std::size_t rang_ = 0;
  int attentes_ = 0;
  QEventLoop boucle_{};
};

}  // namespace hote
