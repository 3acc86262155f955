#pragma once
// The binder: shows a form of the screen model in a tree of widgets, field and widget being tied by
// their names, and hands what the user does to the model through screen::User alone.
//
//   Liaison liaison(forme, racine, bureau);      // the widgets show the form from now on
//
// The model is the only source of events. After each act of the user, and before each box, modal
// show and focus change, its whole state is pushed to the widgets; what widgets signal meanwhile is
// no act. A focus change of the toolkit is only recorded, and delivered (Drainer) before anything
// else that the user does. When the model kept the focus, or a box came up, the press, key or click
// that moved it is dropped, as is all that the user does to a form that is disabled or hidden.
//
// The form and the root widget outlive the binder. An error that rises from a handler is shown by
// the desk and goes no further.

#include <QHash>
#include <QObject>
#include <QPointer>
#include <QStringList>
#include <functional>
#include <map>
#include <memory>
#include <vector>

#include "liaison/mnemoniques.h"
#include "screen/user.h"

class QButtonGroup;
class QInputMethodEvent;
class QKeyEvent;
class QMouseEvent;
class QShortcutEvent;
class QAbstractButton;
class QWidget;

namespace hote {

class Bureau;
class Lien;

// The options of one frame, which exclude each other wherever their widgets stand.
class GroupeOptions {
 public:
  explicit GroupeOptions(QObject* parent);
  void Ajouter(QAbstractButton& option);
  // Leaves none of the group on.
  void Eteindre(QAbstractButton& option);

 private:
  QButtonGroup* groupe_;
};

// Set on a widget of a form's window that is none of the form's, with all that stands in it: what a
// hosted control shows.
inline constexpr const char* ProprieteHebergee = "hebergee";

class Liaison : public QObject {
  Q_OBJECT

 public:
  Liaison(screen::Form& forme, QWidget& racine, Bureau& bureau);
  ~Liaison() override;

  screen::Form& Forme() const { return forme_; }
  QWidget& Racine() const { return racine_; }

  // An act of the user, after the focus change that is waiting. False, and nothing done, when that
  // change was refused or brought up a box; also during a push.
  bool Jouer(const std::function<void(screen::User&)>& acte);
  // Delivers the focus change that is waiting. False when the act that made it must be dropped.
  bool Drainer();
  // A focus that has come into a part of the window by itself is no act of the user's.
  void OublierFocus(const QWidget& partie);
  // The model's state to the widgets, the focus included.
  void Pousser();
  // The title of a window shows that what is typed is not stored yet.
  void Marquer(bool aEnregistrer);
  // An act of the user is under way: the binder must not be deleted.
  bool Occupee() const { return occupation_ > 0; }

  // The form has an OK that is hidden: nothing that is typed in it can be saved.
  bool Consultation() const;

  GroupeOptions& Groupe(const screen::Frame* cadre);
  // The caption of a button, with its letter marked.
  QString LibelleBouton(const screen::Field& bouton) const { return mnemoniques_.Libelle(bouton); }

  // What does not match, in words: fields without a widget or with one of another kind, widgets
  // named as a field without one.
  QStringList Ecarts() const;

  bool eventFilter(QObject* objet, QEvent* evenement) override;

 signals:
  // The form is no longer visible.
  void formeCachee();
  // The widgets show what the model says now.
  void poussee();

 private:
  void Lier();
  void LierListes();
  Lien* LienDe(const QWidget* widget) const;
  bool Contient(const QWidget& widget) const;
  void NoterFocus(QWidget* arrivee);
  void Attendre(Lien& lien);
  void PousserTitre();
  void PousserFocus();
  // After a box the text that it was about is there to be typed over.
  void Selectionner(unsigned long interruptions);
  void Apres();

  bool Ouverte() const;
  bool Acte(QWidget& widget, QEvent& evenement);
  bool Recevable(const QPointer<QWidget>& widget);
  bool Souris(QWidget& widget, const QMouseEvent& evenement);
  bool Clavier(QWidget& widget, QKeyEvent& evenement);
  bool Tabuler(bool arriere);
  // What the user has typed in the field that he leaves by an act of his counts first.
  void Conclure();
  bool PasserAHote(bool arriere);
  bool ChangerOnglet(int sens);
  bool Commander(const QKeyEvent& evenement);
  void Partir(screen::Field& bouton);
  bool Raccourci(QWidget& widget, const QShortcutEvent& evenement);
  bool Composer(QWidget& widget, const QInputMethodEvent& evenement);

  screen::Form& forme_;
  QWidget& racine_;
  Bureau& bureau_;
  screen::User user_;
  Mnemoniques mnemoniques_;
  std::vector<std::unique_ptr<Lien>> liens_;
  QHash<const QWidget*, Lien*> parWidget_;
  std::map<const screen::Field*, Lien*> parChamp_;
  std::map<const screen::Frame*, GroupeOptions> groupes_;
  // The field that the toolkit has moved the keyboard to and the model does not know of yet.
  Lien* enAttente_ = nullptr;
  int poussees_ = 0;
  int occupation_ = 0;
  bool composition_ = false;
  bool aEnregistrer_ = false;
  // The button whose press was dropped: its drag and its release go the same way.
  Qt::MouseButton boutonAvale_ = Qt::NoButton;
};

}  // namespace hote
