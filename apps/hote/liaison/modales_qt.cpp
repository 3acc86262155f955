#include <QApplication>
#include <QCursor>
#include <QEventLoop>
#include <QMenu>
#include <QPointer>
#include <QScreen>
#include <QSettings>
#include <QWindow>
#include <algorithm>

#include "liaison/bureau.h"
#include "liaison/fenetre.h"
#include "liaison/liaison.h"
#include "liaison/services_qt.h"
#include "liaison/textes_qt.h"
#include "screen/form.h"

namespace hote {

// Every event of the window is handled inside the loop, so that nothing of it is under way when it
// is deleted.
void ModalesQt::Attendre(screen::Form& form) {
  const CurseurQt::Levee levee(curseur_);
  const QPointer<QWidget> parente = bureau_.FenetreCourante();
  const std::unique_ptr<QWidget> fenetre = bureau_.Construire(form.Nom());
  bureau_.PousserTout();
  const QString cle = "fenetres/" + versQt(form.Nom());
  {
    Liaison liaison(form, *fenetre, bureau_);
    if (bureau_.SurFenetre) bureau_.SurFenetre(liaison);
    Placer(*fenetre, parente, cle);
    QEventLoop boucle;
    QObject::connect(&liaison, &Liaison::formeCachee, &boucle, &QEventLoop::quit);
    fenetre->show();
    fenetre->activateWindow();
    liaison.Pousser();
    if (form.Visible()) boucle.exec();
  }
  bureau_.Reglages().setValue(cle, fenetre->saveGeometry());
  fenetre->hide();
  if (parente) parente->activateWindow();
}

// The window belongs to the one below it on the screen, not in memory.
void ModalesQt::Placer(QWidget& fenetre, QWidget* parente, const QString& cle) {
  fenetre.setWindowModality(Qt::ApplicationModal);
  fenetre.winId();
  if (parente != nullptr && fenetre.windowHandle() != nullptr) {
    fenetre.windowHandle()->setTransientParent(parente->windowHandle());
  }
  const bool retrouvee = fenetre.restoreGeometry(bureau_.Reglages().value(cle).toByteArray());
  if (retrouvee && fenetre.windowState() != Qt::WindowNoState) return;
  const QRect ecran = fenetre.screen()->availableGeometry();
  donnerTaille(fenetre, retrouvee ? fenetre.size() : fenetre.sizeHint());
  QRect cadre = fenetre.frameGeometry();
  if (!retrouvee)
    cadre.moveCenter((parente == nullptr ? ecran : parente->frameGeometry()).center());
  // Where it is larger than the screen, its upper left corner is in sight.
  cadre.moveRight(std::min(cadre.right(), ecran.right()));
  cadre.moveBottom(std::min(cadre.bottom(), ecran.bottom()));
  cadre.moveLeft(std::max(cadre.left(), ecran.left()));
  cadre.moveTop(std::max(cadre.top(), ecran.top()));
  fenetre.move(cadre.topLeft());
}

void ModalesQt::MontrerMenu(screen::Form& form, std::string_view menu) {
  bureau_.PousserTout();
  bureau_.CompterMenu();
  QMenu popup;
  std::vector<std::pair<QAction*, screen::MenuItem*>> entrees;
  bool dedans = false;
  for (screen::Field* const champ : form.Fields()) {
    if (champ->Genre() != screen::Kind::Menu) continue;
    auto& entree = static_cast<screen::MenuItem&>(*champ);
    if (!entree.Click) dedans = entree.Nom() == menu;
    if (!dedans || !entree.Click || !entree.Visible()) continue;
    QAction* const action = popup.addAction(versQt(entree.Libelle()));
    action->setEnabled(entree.Enabled());
    entrees.emplace_back(action, &entree);
  }
  const auto vie = form.Vie();
  const QAction* const choix = popup.exec(QCursor::pos());
  if (vie.expired()) return;
  for (const auto& [action, entree] : entrees) {
    if (action == choix) screen::User(form).Cliquer(*entree);
  }
}

}  // namespace hote
