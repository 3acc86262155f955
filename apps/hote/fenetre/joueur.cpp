#include "fenetre/joueur.h"

#include <QAbstractButton>
#include <QApplication>
#include <QHelpEvent>
#include <QKeyEvent>
#include <QLineEdit>
#include <QListWidget>
#include <QMainWindow>
#include <QMessageBox>
#include <QPointer>
#include <QTabBar>
#include <QTabWidget>
#include <QTimer>
#include <cstdlib>
#include <stdexcept>
#include <utility>

#include "fenetre/album.h"

namespace hote {

namespace {

// Between two steps, in milliseconds: what the first one brought is shown by then.
constexpr int Pause = 40;
// Pauses that a window may take to get the keyboard.
constexpr int AttentesMax = 25;

void presser(int cle, Qt::KeyboardModifiers avec, const QString& texte) {
  QWidget* const popup = QApplication::activePopupWidget();
  QWidget* cible = popup == nullptr                  ? QApplication::focusWidget()
                   : popup->focusWidget() == nullptr ? popup
                                                     : popup->focusWidget();
  if (cible == nullptr) cible = QApplication::activeModalWidget();
  if (cible == nullptr) throw std::runtime_error("le clavier n'est nulle part");
  const QPointer<QWidget> la(cible);
  QKeyEvent appui(QEvent::KeyPress, cle, avec, texte);
  QCoreApplication::sendEvent(cible, &appui);
  QKeyEvent lacher(QEvent::KeyRelease, cle, avec, texte);
  if (la) QCoreApplication::sendEvent(cible, &lacher);
}

void taper(QChar caractere) {
  static const std::pair<char, int> Touches[] = {
      {'\t', Qt::Key_Tab}, {'\n', Qt::Key_Return}, {'\x1b', Qt::Key_Escape}};
  for (const auto& [signe, cle] : Touches) {
    if (caractere == QLatin1Char(signe)) return presser(cle, {}, "");
  }
  presser(caractere.toUpper().unicode(), {}, caractere);
}

}  // namespace

void Joueur::Jouer(std::vector<Pas> pas) {
  pas_ = std::move(pas);
  rang_ = 0;
  QTimer::singleShot(Pause, this, [this] { Avancer(); });
  boucle_.exec();
}

// The next step is due before this one begins: it may not return until a window is left.
void Joueur::Avancer() {
  // A window has the keyboard a moment after it is shown.
  if (!Devant().isActiveWindow() && ++attentes_ < AttentesMax) {
    QTimer::singleShot(Pause, this, [this] { Avancer(); });
    return;
  }
  attentes_ = 0;
  // A display without a window manager gives it to nobody.
  if (!Devant().isActiveWindow()) QApplication::setActiveWindow(&Devant());
  const std::size_t rang = rang_++;
  try {
    if (rang > 0 && *pas_[rang - 1].image != '\0') Photographier(pas_[rang - 1].image);
    if (rang == pas_.size()) return boucle_.quit();
    QTimer::singleShot(Pause, this, [this] { Avancer(); });
    (this->*pas_[rang].acte)(pas_[rang]);
  } catch (const std::exception& erreur) {
    const Pas& pas = pas_[rang];
    qCritical("%s %s : %s. Devant : %s", pas.widget, pas.texte.c_str(), erreur.what(),
              qPrintable(Devant().windowTitle()));
    std::_Exit(EXIT_FAILURE);  // windows stand open that wait for answers
  }
}

void Joueur::Photographier(const QString& nom) {
  QWidget& devant = Devant();
  const bool boite = qobject_cast<QMessageBox*>(&devant) != nullptr;
  if (&devant != &fenetre_ && !boite && album_.Taille().isValid() &&
      devant.objectName().startsWith("Frm_Elements")) {
    devant.resize(album_.Taille());
  }
  album_.Prendre(devant, nom);
}

QWidget& Joueur::Devant() const {
  QWidget* const modale = QApplication::activeModalWidget();
  return modale == nullptr ? static_cast<QWidget&>(fenetre_) : *modale;
}

QWidget& Joueur::Trouver(const Pas& pas) const {
  auto* const widget = Devant().findChild<QWidget*>(pas.widget);
  if (widget == nullptr || !widget->isVisible() || !widget->isEnabled()) {
    throw std::runtime_error("ce champ ne se prend pas");
  }
  return *widget;
}

void Joueur::Saisir(const Pas& pas) {
  if (*pas.widget != '\0') {
    QWidget& champ = Trouver(pas);
    champ.setFocus();
    auto* ligne = qobject_cast<QLineEdit*>(&champ);
    if (ligne == nullptr) ligne = champ.findChild<QLineEdit*>();
    if (ligne != nullptr) ligne->selectAll();
  }
  for (const QChar caractere : versQt(pas.texte)) taper(caractere);
}

void Joueur::Touche(const Pas& pas) {
  if (*pas.widget != '\0') Trouver(pas).setFocus();
  const QKeyCombination touche = QKeySequence(versQt(pas.texte))[0];
  presser(touche.key(), touche.keyboardModifiers(), "");
}

void Joueur::Cliquer(const Pas& pas) {
  if (QWidget* const popup = QApplication::activePopupWidget()) popup->close();
  dynamic_cast<QAbstractButton&>(Trouver(pas)).click();
}

void Joueur::Repondre(const Pas& pas) {
  for (auto* const bouton : Devant().findChildren<QAbstractButton*>()) {
    if (bouton->text().remove('&') == versQt(pas.texte)) return bouton->click();
  }
  throw std::runtime_error("cette réponse n'est pas offerte");
}

void Joueur::Onglet(const Pas& pas) {
  auto& onglets = dynamic_cast<QTabWidget&>(Trouver(pas));
  onglets.tabBar()->setFocus();
  onglets.setCurrentIndex(std::stoi(pas.texte) - 1);
}

void Joueur::Bulle(const Pas& pas) {
  auto& liste = dynamic_cast<QListWidget&>(Trouver(pas));
  const QPoint place = liste.visualItemRect(liste.item(0)).center();
  QHelpEvent demande(QEvent::ToolTip, place, liste.viewport()->mapToGlobal(place));
  QCoreApplication::sendEvent(liste.viewport(), &demande);
}

void Joueur::Faire(const Pas& pas) {
  pas.faire();
}

}  // namespace hote
