// What the mouse and the keyboard do to a bound form before its widgets see it.

#include <QAbstractButton>
#include <QAbstractSpinBox>
#include <QApplication>
#include <QInputMethodEvent>
#include <QKeyEvent>
#include <QMouseEvent>
#include <QTabBar>
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

// Tab stops once in a group of options, at the one that is on; the arrows go to the others.
bool optionPassee(const screen::Field& champ) {
  if (champ.Genre() != screen::Kind::Option) return false;
  if (static_cast<const screen::OptionButton&>(champ).Value()) return false;
  const auto& champs = champ.Forme().Fields();
  return std::any_of(champs.begin(), champs.end(), [&](const screen::Field* voisin) {
    return voisin->Genre() == screen::Kind::Option && voisin->Cadre() == champ.Cadre() &&
           voisin->Disponible() && static_cast<const screen::OptionButton*>(voisin)->Value();
  });
}

// Tab stops once in a table, at its first column; the arrows go to the others.
bool colonnePassee(const screen::Field& champ, const screen::Field* actif) {
  if (champ.Genre() != screen::Kind::Liste) return false;
  const auto colonnes = colonnesDe(champ);
  const auto premiere = std::find_if(colonnes.begin(), colonnes.end(),
                                     [](const auto* colonne) { return colonne->Disponible(); });
  if (premiere == colonnes.end()) return false;
  return *premiere != &champ || std::count(colonnes.begin(), colonnes.end(), actif) > 0;
}

// The label list of a code box whose code has its label: Txt_X and Cbo_LibX, or Cbo_X. There is
// nothing left to choose in it, and Tab goes past. nullptr for any other field.
const screen::Field* libelleRempli(const screen::Field* actif, const screen::Form& forme) {
  if (actif == nullptr || actif->Genre() != screen::Kind::Texte) return nullptr;
  const auto& code = static_cast<const screen::TextField&>(*actif);
  if (code.Text().empty()) return nullptr;
  const std::string nom = code.Nom().substr(std::string_view("Txt_").size());
  for (const char* prefixe : {"Cbo_Lib", "Cbo_"}) {
    const screen::Field* const libelle = forme.Find(prefixe + nom);
    if (libelle == nullptr || libelle->Genre() != screen::Kind::Deroulante) continue;
    return static_cast<const screen::ComboBox&>(*libelle).Text().empty() ? nullptr : libelle;
  }
  return nullptr;
}

// The wheel changes a value only where the user is.
bool moletteEgaree(const QWidget& widget) {
  for (const QWidget* w = &widget; w != nullptr && !w->isWindow(); w = w->parentWidget()) {
    const bool valeur = qobject_cast<const QComboBox*>(w) != nullptr ||
                        qobject_cast<const QAbstractSpinBox*>(w) != nullptr ||
                        qobject_cast<const QTabBar*>(w) != nullptr;
    if (valeur) return !w->hasFocus();
  }
  return false;
}

bool estActe(QEvent::Type type) {
  switch (type) {
    case QEvent::MouseButtonPress:
    case QEvent::MouseButtonDblClick:
    case QEvent::MouseMove:
    case QEvent::MouseButtonRelease:
    case QEvent::KeyPress:
    case QEvent::Shortcut:
    case QEvent::InputMethod:
    case QEvent::Wheel:
      return true;
    default:
      return false;
  }
}

}  // namespace

bool Liaison::eventFilter(QObject* objet, QEvent* evenement) {
  if (!objet->isWidgetType()) return false;
  auto& widget = *static_cast<QWidget*>(objet);
  if (evenement->type() == QEvent::Close) {
    if (&widget != &racine_ || !racine_.isWindow()) return false;
    evenement->ignore();
    Jouer([](screen::User& user) { user.Fermer(); });
    return true;
  }
  if (!estActe(evenement->type()) || !Contient(widget)) return false;
  const bool avale = Acte(widget, *evenement);
  // An event that is dropped must not go on to the widgets around this one.
  if (avale) evenement->accept();
  return avale;
}

// True when the act is dealt with, or dropped, and must not reach the widget.
bool Liaison::Acte(QWidget& widget, QEvent& evenement) {
  switch (evenement.type()) {
    case QEvent::MouseButtonPress:
    case QEvent::MouseButtonDblClick: {
      const auto& souris = static_cast<QMouseEvent&>(evenement);
      const bool avale = Souris(widget, souris);
      boutonAvale_ = avale ? souris.button() : Qt::NoButton;
      return avale;
    }
    case QEvent::MouseMove:
      return (static_cast<QMouseEvent&>(evenement).buttons() & boutonAvale_) != 0;
    case QEvent::MouseButtonRelease:
      return static_cast<QMouseEvent&>(evenement).button() == boutonAvale_;
    case QEvent::KeyPress:
      return QApplication::focusWidget() == &widget &&
             Clavier(widget, static_cast<QKeyEvent&>(evenement));
    case QEvent::Shortcut:
      return Raccourci(widget, static_cast<QShortcutEvent&>(evenement));
    case QEvent::InputMethod:
      return Composer(widget, static_cast<QInputMethodEvent&>(evenement));
    case QEvent::Wheel:
      return !Ouverte() || moletteEgaree(widget);
    default:
      return false;
  }
}

bool Liaison::Ouverte() const {
  return forme_.Visible() && forme_.Enabled();
}

// After the focus change that is waiting: whether the act that made it, or comes after it, counts.
bool Liaison::Recevable(const QPointer<QWidget>& widget) {
  return Drainer() && widget && Ouverte();
}

bool Liaison::Souris(QWidget& widget, const QMouseEvent& evenement) {
  if (!Recevable(&widget)) return true;
  Lien* const lien = LienDe(&widget);
  if (lien != nullptr && lien->Pression(widget, evenement)) return true;
  // A widget beside the form's fields may have a menu of its own.
  const bool menuPropre = widget.contextMenuPolicy() != Qt::DefaultContextMenu;
  if (evenement.button() != Qt::RightButton || menuPropre || !surface(lien)) return false;
  Jouer([](screen::User& user) { user.ClicDroit(); });
  return true;
}

bool Liaison::Clavier(QWidget& widget, QKeyEvent& evenement) {
  if (!Recevable(&widget)) return true;
  if (appelleUnAcces(evenement)) return true;
  const bool controle = evenement.modifiers().testFlag(Qt::ControlModifier);
  const bool arriere =
      evenement.key() == Qt::Key_Backtab || evenement.modifiers().testFlag(Qt::ShiftModifier);
  if (evenement.key() == Qt::Key_Tab || evenement.key() == Qt::Key_Backtab) {
    return controle ? ChangerOnglet(arriere ? -1 : 1) : Tabuler(arriere);
  }
  // Esc belongs to the field as long as it has something to put back.
  if (evenement.key() != Qt::Key_Escape && Commander(evenement)) return true;
  if (Lien* const lien = LienDe(&widget); lien != nullptr && lien->Touche(evenement)) return true;
  return evenement.key() == Qt::Key_Escape && Commander(evenement);
}

// The keys of the buttons that every form has under the same names.
bool Liaison::Commander(const QKeyEvent& evenement) {
  static const struct {
    int cle;
    Qt::KeyboardModifiers avec;
    const char* bouton;
  } Commandes[] = {
      {Qt::Key_Return, Qt::ControlModifier, "Cmd_OK"},
      {Qt::Key_Enter, Qt::ControlModifier | Qt::KeypadModifier, "Cmd_OK"},
      {Qt::Key_Return, Qt::ControlModifier, "Cmd_Ok"},
      {Qt::Key_Enter, Qt::ControlModifier | Qt::KeypadModifier, "Cmd_Ok"},
      {Qt::Key_F5, Qt::NoModifier, "Cmd_Recherche"},
      {Qt::Key_Insert, Qt::NoModifier, "Cmd_Ajouter"},
      {Qt::Key_Escape, Qt::NoModifier, "Cmd_Retour"},
      {Qt::Key_Escape, Qt::NoModifier, "Cmd_Sortir"},
      {Qt::Key_Escape, Qt::NoModifier, "Cmd_Annuler"},
  };
  for (const auto& commande : Commandes) {
    if (commande.cle != evenement.key() || commande.avec != evenement.modifiers()) continue;
    // The host that embeds a form decides when it goes.
    if (commande.cle == Qt::Key_Escape && !racine_.isWindow()) continue;
    screen::Field* const bouton = forme_.Find(commande.bouton);
    if (bouton == nullptr || !bouton->Disponible()) continue;
    if (evenement.isAutoRepeat()) return true;
    if (commande.cle == Qt::Key_Escape) {
      Partir(*bouton);
    } else {
      Jouer([&](screen::User& user) {
        Conclure();
        user.Cliquer(*bouton);
      });
    }
    return true;
  }
  return false;
}

// Whoever stays after all goes on where he was, not on the button that the key stands for.
void Liaison::Partir(screen::Field& bouton) {
  screen::Field* const avant = forme_.Active();
  const QPointer<Liaison> la(this);
  Jouer([&](screen::User& user) { user.Cliquer(bouton); });
  const bool reste = la && forme_.Visible() && forme_.Active() == &bouton;
  if (!reste || avant == nullptr || !avant->Disponible()) return;
  Jouer([&](screen::User& user) { user.Focus(*avant); });
}

// The order is the model's.
bool Liaison::Tabuler(bool arriere) {
  std::vector<screen::Field*> ordre = forme_.Fields();
  if (arriere) std::reverse(ordre.begin(), ordre.end());
  const auto actif = std::find(ordre.begin(), ordre.end(), forme_.Active());
  const auto debut = actif == ordre.end() ? ordre.begin() : actif + 1;
  const screen::Field* const libelle = arriere ? nullptr : libelleRempli(forme_.Active(), forme_);
  const auto prenable = [this, libelle](const screen::Field* champ) {
    return champ->Focalisable() && champ->Disponible() && champ != libelle &&
           !optionPassee(*champ) && !colonnePassee(*champ, forme_.Active());
  };
  auto suivant = std::find_if(debut, ordre.end(), prenable);
  if (suivant == ordre.end()) {
    if (PasserAHote(arriere)) return true;
    suivant = std::find_if(ordre.begin(), ordre.end(), prenable);
    if (suivant == ordre.end()) return true;
  }
  screen::Field& cible = **suivant;
  const screen::Field* const quitte = forme_.Active();
  Jouer([&](screen::User& user) {
    Conclure();
    user.Focus(cible);
    // A short code has been completed on leaving, and has found its label then.
    if (!arriere && forme_.Active() == &cible && libelleRempli(quitte, forme_) == &cible) {
      user.Quitter();
    }
  });
  return true;
}

// From either end of an embedded form the keyboard goes on to the host's own widgets. False when
// there is none.
bool Liaison::PasserAHote(bool arriere) {
  const auto apres = [&](const QWidget& w) {
    return arriere ? w.previousInFocusChain() : w.nextInFocusChain();
  };
  for (QWidget* w = apres(racine_); w != &racine_; w = apres(*w)) {
    const bool prenable = !Contient(*w) && w->focusProxy() == nullptr &&
                          (w->focusPolicy() & Qt::TabFocus) != 0 && w->isEnabled() &&
                          w->isVisible();
    if (!prenable) continue;
    w->setFocus(arriere ? Qt::BacktabFocusReason : Qt::TabFocusReason);
    return true;
  }
  return false;
}

bool Liaison::ChangerOnglet(int sens) {
  for (screen::Field* const champ : forme_.Fields()) {
    if (champ->Genre() != screen::Kind::Onglets) continue;
    auto& onglets = static_cast<screen::TabStrip&>(*champ);
    const int nombre = static_cast<int>(onglets.Onglets().size());
    const int cible = (onglets.Tab() + sens + nombre) % nombre;
    Jouer([&](screen::User& user) {
      Conclure();
      user.Onglet(onglets, cible);
      // Into the page: that is what one goes there for.
      if (forme_.Active() == &onglets) user.Quitter();
    });
    return true;
  }
  return false;
}

// An access key does not move the focus by itself, as a click does. One that several widgets share
// only moves it, from one to the next.
bool Liaison::Raccourci(QWidget& widget, const QShortcutEvent& evenement) {
  if (!Recevable(&widget)) return true;
  Lien* const lien = LienDe(&widget);
  auto* const bouton = qobject_cast<QAbstractButton*>(&widget);
  if (lien == nullptr || bouton == nullptr || evenement.isAmbiguous()) return false;
  Jouer([&](screen::User& user) {
    Conclure();
    user.Cliquer(lien->Champ());
  });
  return true;
}

// Dead keys and composed characters come this way, not as keys.
bool Liaison::Composer(QWidget& widget, const QInputMethodEvent& evenement) {
  const QString& texte = evenement.commitString();
  if (composition_ || texte.isEmpty()) return false;
  const QPointer<QWidget> la(&widget);
  if (!Recevable(la)) return true;
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
