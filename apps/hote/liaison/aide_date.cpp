#include "liaison/aide_date.h"

#include <QCalendarWidget>
#include <QKeyEvent>
#include <QLineEdit>
#include <QScreen>
#include <QTextCharFormat>
#include <QVBoxLayout>
#include <algorithm>

#include "data/jour.h"
#include "liaison/textes_qt.h"

namespace hote {

namespace {

std::optional<long> jourDuTexte(const QString& texte) {
  return data::lireDateAffichee(versModele(texte.trimmed()));
}

QDate dateQt(long jour) {
  const data::Date date = data::dateDe(jour);
  return {date.annee, date.mois, date.jour};
}

long versJour(const QDate& date) {
  return data::jourDe({date.year(), date.month(), date.day()}).value_or(0);
}

QString afficher(long jour) {
  return versQt(data::dateAffichee(jour));
}

// Where the screen has no room below the field, above it.
QPoint placeDe(const QLineEdit& ligne, const QSize& taille) {
  const QRect ecran = ligne.screen()->availableGeometry();
  QPoint place = ligne.mapToGlobal(QPoint(0, ligne.height()));
  if (place.y() + taille.height() > ecran.bottom()) {
    place.setY(ligne.mapToGlobal(QPoint()).y() - taille.height());
  }
  place.setX(std::max(ecran.left(), std::min(place.x(), ecran.right() - taille.width())));
  place.setY(std::max(ecran.top(), place.y()));
  return place;
}

}  // namespace

std::optional<QString> dateParTouche(const QKeyEvent& evenement, const QString& texte,
                                     long aujourdhui) {
  const Qt::KeyboardModifiers modifs =
      evenement.modifiers() & ~(Qt::KeypadModifier | Qt::ShiftModifier);
  if (modifs == Qt::ControlModifier && evenement.key() == Qt::Key_Semicolon) {
    return afficher(aujourdhui);
  }
  const int pas = evenement.text() == "+" ? 1 : evenement.text() == "-" ? -1 : 0;
  const auto jour = jourDuTexte(texte);
  if (modifs != Qt::NoModifier || pas == 0 || !jour) return std::nullopt;
  return afficher(*jour + pas);
}

bool ouvreCalendrier(const QKeyEvent& evenement) {
  const bool seule = evenement.modifiers() == Qt::NoModifier;
  const bool alt = evenement.modifiers() == Qt::AltModifier;
  return (seule && evenement.key() == Qt::Key_F4) || (alt && evenement.key() == Qt::Key_Down);
}

void montrerCalendrier(QLineEdit& ligne, long aujourdhui,
                       const std::function<void(const QString&)>& choisir) {
  auto* const fenetre = new QFrame(&ligne, Qt::Popup);
  fenetre->setAttribute(Qt::WA_DeleteOnClose);
  fenetre->setObjectName("calendrier");
  fenetre->setFrameShape(QFrame::StyledPanel);
  auto* const calendrier = new QCalendarWidget;
  calendrier->setLocale(QLocale(QLocale::French, QLocale::France));
  calendrier->setFirstDayOfWeek(Qt::Monday);
  calendrier->setVerticalHeaderFormat(QCalendarWidget::ISOWeekNumbers);
  calendrier->setGridVisible(true);
  // The toolkit's red does not read on a dark ground.
  QTextCharFormat semaine;
  semaine.setForeground(calendrier->palette().brush(QPalette::PlaceholderText));
  for (const Qt::DayOfWeek jour : {Qt::Saturday, Qt::Sunday}) {
    calendrier->setWeekdayTextFormat(jour, semaine);
  }
  calendrier->setSelectedDate(dateQt(jourDuTexte(ligne.text()).value_or(aujourdhui)));
  auto* const disposition = new QVBoxLayout(fenetre);
  disposition->setContentsMargins(2, 2, 2, 2);
  disposition->addWidget(calendrier);
  const auto prendre = [fenetre, choisir](const QDate& date) {
    fenetre->close();
    choisir(afficher(versJour(date)));
  };
  QObject::connect(calendrier, &QCalendarWidget::clicked, &ligne, prendre);
  // Enter; a click has closed the window already.
  QObject::connect(calendrier, &QCalendarWidget::activated, &ligne,
                   [fenetre, prendre](const QDate& date) {
                     if (fenetre->isVisible()) prendre(date);
                   });
  fenetre->move(placeDe(ligne, fenetre->sizeHint()));
  fenetre->show();
  calendrier->setFocus();
}

}  // namespace hote
