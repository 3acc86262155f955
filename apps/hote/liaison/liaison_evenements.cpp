// What the mouse and the keyboard do to a bound form before its widgets see it.

#include <QAbstractButton>
#include <QAbstractSpinBox>
#include <QApplication>
#include <QInputMethodEvent>
#include <QKeyEvent>
#include <QMouseEvent>
#include <algorithm>

#include "liaison/combo_deroulante.h"
#include "liaison/liaison.h"
#include "liaison/lien.h"

namespace hote {

namespace {

// Where a press of the right button counts as one on the form's surface.
bool surface(const Lien* lien) {
  if (lien == nullptr) return true;
  const screen::Kind genre = lien->Champ().Genre();
  return genre == screen::Kind::Cadre || genre == screen::Kind::Etiquette ||
         genre == screen::Kind::Image;
}

// The wheel changes a value only where the user is.
bool moletteEgaree(const QWidget& widget) {
  for (const QWidget* w = &widget; w != nullptr && !w->isWindow(); w = w->parentWidget()) {
    const bool valeur = qobject_cast<const QComboBox*>(w) != nullptr ||
                        qobject_cast<const QAbstractSpinBox*>(w) != nullptr;
    if (valeur) return !w->hasFocus();
  }
  return false;
}

}  // namespace

bool Liaison::eventFilter(QObject* objet, QEvent* evenement) {
  if (!objet->isWidgetType()) return false;
  auto& widget = *static_cast<QWidget*>(objet);
  switch (evenement->type()) {
    case QEvent::MouseButtonPress:
    case QEvent::MouseButtonDblClick:
      return Contient(widget) && Souris(widget, *static_cast<QMouseEvent*>(evenement));
    case QEvent::KeyPress:
      return Contient(widget) && QApplication::focusWidget() == &widget &&
             Clavier(widget, *static_cast<QKeyEvent*>(evenement));
    case QEvent::Shortcut:
      return Contient(widget) && Raccourci(widget);
    case QEvent::InputMethod:
      return !composition_ && Contient(widget) &&
             Composer(widget, *static_cast<QInputMethodEvent*>(evenement));
    case QEvent::Wheel:
      return Contient(widget) && moletteEgaree(widget);
    case QEvent::Close:
      if (&widget != &racine_ || !racine_.isWindow()) return false;
      evenement->ignore();
      Jouer([](screen::User& user) { user.Fermer(); });
      return true;
    default:
      return false;
  }
}

bool Liaison::Souris(QWidget& widget, const QMouseEvent& evenement) {
  const QPointer<QWidget> la(&widget);
  if (!Drainer() || !la) return true;
  Lien* const lien = LienDe(&widget);
  if (lien != nullptr) lien->AvantPression();
  if (evenement.button() != Qt::RightButton || !surface(lien)) return false;
  Jouer([](screen::User& user) { user.ClicDroit(); });
  return true;
}

bool Liaison::Clavier(QWidget& widget, QKeyEvent& evenement) {
  const QPointer<QWidget> la(&widget);
  if (!Drainer() || !la) return true;
  const bool controle = evenement.modifiers().testFlag(Qt::ControlModifier);
  const bool arriere =
      evenement.key() == Qt::Key_Backtab || evenement.modifiers().testFlag(Qt::ShiftModifier);
  if (evenement.key() == Qt::Key_Tab || evenement.key() == Qt::Key_Backtab) {
    return controle ? ChangerOnglet(arriere ? -1 : 1) : Tabuler(arriere);
  }
  Lien* const lien = LienDe(&widget);
  return lien != nullptr && lien->Touche(evenement);
}

// The order is the model's. At either end of an embedded form the keyboard goes on to the host's
// own widgets.
bool Liaison::Tabuler(bool arriere) {
  std::vector<screen::Field*> ordre = forme_.Fields();
  if (arriere) std::reverse(ordre.begin(), ordre.end());
  const auto actif = std::find(ordre.begin(), ordre.end(), forme_.Active());
  const auto debut = actif == ordre.end() ? ordre.begin() : actif + 1;
  const auto prenable = [](const screen::Field* champ) {
    return champ->Focalisable() && champ->Disponible();
  };
  auto suivant = std::find_if(debut, ordre.end(), prenable);
  if (suivant == ordre.end()) {
    if (!racine_.isWindow()) return false;
    suivant = std::find_if(ordre.begin(), ordre.end(), prenable);
    if (suivant == ordre.end()) return true;
  }
  screen::Field& cible = **suivant;
  Jouer([&](screen::User& user) { user.Focus(cible); });
  return true;
}

bool Liaison::ChangerOnglet(int sens) {
  for (screen::Field* const champ : forme_.Fields()) {
    if (champ->Genre() != screen::Kind::Onglets) continue;
    auto& onglets = static_cast<screen::TabStrip&>(*champ);
    const int nombre = static_cast<int>(onglets.Onglets().size());
    const int cible = (onglets.Tab() + sens + nombre) % nombre;
    Jouer([&](screen::User& user) { user.Onglet(onglets, cible); });
    return true;
  }
  return false;
}

// An access key does not move the focus by itself, as a click does.
bool Liaison::Raccourci(QWidget& widget) {
  Lien* const lien = LienDe(&widget);
  auto* const bouton = qobject_cast<QAbstractButton*>(&widget);
  if (lien == nullptr || bouton == nullptr) return false;
  Jouer([&](screen::User& user) { user.Cliquer(lien->Champ()); });
  return true;
}

// Dead keys and composed characters come this way, not as keys.
bool Liaison::Composer(QWidget& widget, const QInputMethodEvent& evenement) {
  const QString texte = evenement.commitString();
  if (texte.isEmpty()) return false;
  const QPointer<QWidget> la(&widget);
  if (!Drainer() || !la) return true;
  Lien* const lien = LienDe(&widget);
  if (lien == nullptr) return false;
  const QString garde = lien->Filtrer(texte);
  if (garde == texte) return false;
  if (!la) return true;
  QInputMethodEvent filtre(evenement.preeditString(), evenement.attributes());
  filtre.setCommitString(garde, evenement.replacementStart(), evenement.replacementLength());
  composition_ = true;
  QCoreApplication::sendEvent(&widget, &filtre);
  composition_ = false;
  return true;
}

}  // namespace hote
