#pragma once
// One field tied to its widget. A link shows what the model says (Pousser) and turns what the user
// does into acts of the binder; it decides nothing itself.

#include <QObject>
#include <QWidget>
#include <memory>
#include <vector>

#include "screen/field.h"
#include "screen/user.h"

class QKeyEvent;
class QMouseEvent;

namespace hote {

class Liaison;

class Lien : public QObject {
 public:
  Lien(Liaison& liaison, screen::Field& champ, QWidget& widget)
      : liaison_(liaison), champ_(champ), widget_(widget) {}

  screen::Field& Champ() const { return champ_; }
  QWidget& Widget() const { return widget_; }

  // The model's state to the widget. The binder guards the signals that this raises.
  void Pousser();
  // The widget that takes the keyboard.
  virtual QWidget& CibleFocus() { return widget_; }
  // A key for the focused widget. True when it is dealt with and must not reach the widget.
  virtual bool Touche(QKeyEvent& /*evenement*/) { return false; }
  // The user leaves the field: what was only proposed to him is taken.
  virtual void Conclure(screen::User& /*user*/) {}
  // A text that an input method is about to insert, as the field lets it through.
  virtual QString Filtrer(const QString& texte) { return texte; }
  // The mouse goes down in `ou`, the widget or a part of it. True when that is no act here and must
  // not reach the widget.
  virtual bool Pression(const QWidget& /*ou*/, const QMouseEvent& /*evenement*/) { return false; }

 protected:
  virtual void PousserEtat() {}
  virtual void PousserDisponibilite();
  Liaison& Binder() const { return liaison_; }
  // Nothing that the field would take can be saved: it is there to be read.
  bool Fige() const;

 private:
  Liaison& liaison_;
  screen::Field& champ_;
  QWidget& widget_;
};

// The link that suits the field's kind; nullptr when the widget is of another kind.
std::unique_ptr<Lien> creerLien(Liaison& liaison, screen::Field& champ, QWidget& widget);

// The makers of the kinds, by family.
std::unique_ptr<Lien> creerLienSaisie(Liaison& liaison, screen::Field& champ, QWidget& widget);
std::unique_ptr<Lien> creerLienLignes(Liaison& liaison, screen::Field& champ, QWidget& widget);
std::unique_ptr<Lien> creerLienBouton(Liaison& liaison, screen::Field& champ, QWidget& widget);

// The lists of the table that `champ`, a list or a bar, belongs to, in their order: those that
// stand in one frame with a bar. Empty for what is part of no table.
std::vector<screen::Field*> colonnesDe(const screen::Field& champ);

// The key as the model counts keys: a character, Entree or Retour; 0 for any other. Esc is the
// window's, once it has put back what the field held.
char32_t toucheDe(const QKeyEvent& evenement);
// A letter with Alt alone asks for an access key: where nothing has it, it is no text either.
bool appelleUnAcces(const QKeyEvent& evenement);
// Shows `filtre`, the field's KeyPress, a key typed in it. What is left of it; 0 when it is
// dropped. `horsSelection`: what the widget's text holds beside its selection.
char32_t filtrerTouche(Liaison& liaison, screen::Field& champ, const screen::KeyHandler& filtre,
                       char32_t touche, const QString& horsSelection);
// The text of an input method, key by key through KeyPress.
QString filtrerTexte(Liaison& liaison, screen::Field& champ, const screen::KeyHandler& filtre,
                     const QString& texte, const QString& horsSelection);

}  // namespace hote
