#include "poste.h"

#include <sys/time.h>
#include <time.h>

#include <QApplication>
#include <QSettings>
#include <QTest>
#include <stdexcept>

#include "mesures.h"

namespace bench {

double tempsProcesseur() {
  timespec temps{};
  clock_gettime(CLOCK_PROCESS_CPUTIME_ID, &temps);
  return static_cast<double>(temps.tv_sec) * 1e9 + static_cast<double>(temps.tv_nsec);
}

// Twice: what the first round handles may ask for a paint.
void traiterTout() {
  QCoreApplication::processEvents();
  QCoreApplication::processEvents();
}

Peintures::Peintures(QWidget& widget) {
  widget.installEventFilter(this);
  for (QWidget* const enfant : widget.findChildren<QWidget*>()) enfant->installEventFilter(this);
}

bool Peintures::eventFilter(QObject*, QEvent* evenement) {
  if (evenement->type() == QEvent::Paint) ++nombre_;
  return false;
}

PosteEcran::PosteEcran(Base& base, const std::string& aidant)
    : bureau(&poste(),
             std::make_unique<QSettings>(dossier.filePath("reglages.ini"), QSettings::IniFormat)) {
  ecran = new ContratWidget(bureau, &fenetre);
  fenetre.setCentralWidget(ecran);
  fenetre.resize(1280, 720);
  fenetre.show();
  fenetre.activateWindow();
  if (!QTest::qWaitForWindowActive(&fenetre)) throw std::runtime_error("no active window");
  ecran->TheDatabase(*base.db);
  ecran->TheClient(client);
  ecran->DroitsUtilisateur(droits);
  ecran->W_Code = aidant;
  ecran->init();
  traiterTout();
}

QWidget& PosteEcran::Widget(const char* nom) {
  auto* const widget = ecran->findChild<QWidget*>(nom);
  if (widget == nullptr) throw std::runtime_error(std::string("no widget ") + nom);
  return *widget;
}

}  // namespace bench
