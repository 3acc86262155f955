#include "fenetre/accueil.h"

#include <QIcon>
#include <QLabel>
#include <QVBoxLayout>

namespace hote {

namespace {

constexpr int TailleIcone = 64;  // pixels
constexpr double AgrandissementTitre = 1.6;

// No row at all on a machine that cannot draw the icon's format.
void poserIcone(QVBoxLayout& disposition) {
  const QPixmap image = QIcon(":/paquet/contrat-hote.svg").pixmap(TailleIcone);
  if (image.isNull()) return;
  auto* const icone = new QLabel;
  icone->setPixmap(image);
  disposition.addWidget(icone, 0, Qt::AlignHCenter);
}

}  // namespace

Accueil::Accueil(QWidget* parent) : QWidget(parent), conseil_(new QLabel) {
  auto* const titre = new QLabel("Contrats de travail");
  QFont grande = titre->font();
  grande.setPointSizeF(grande.pointSizeF() * AgrandissementTitre);
  titre->setFont(grande);
  conseil_->setTextFormat(Qt::PlainText);
  conseil_->setAlignment(Qt::AlignHCenter);
  conseil_->setWordWrap(true);
  auto* const disposition = new QVBoxLayout(this);
  disposition->setContentsMargins(24, 24, 24, 24);
  disposition->setSpacing(12);
  // A little above the middle, where the eye looks for it.
  disposition->addStretch(2);
  poserIcone(*disposition);
  disposition->addWidget(titre, 0, Qt::AlignHCenter);
  disposition->addWidget(conseil_);
  disposition->addStretch(3);
}

void Accueil::Dire(const QString& conseil) {
  conseil_->setText(conseil);
}

}  // namespace hote
