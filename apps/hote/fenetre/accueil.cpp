#include "fenetre/accueil.h"

#include <QIcon>
#include <QLabel>
#include <QVBoxLayout>

namespace hote {

namespace {

constexpr int TailleIcone = 64;  // pixels
constexpr double AgrandissementTitre = 1.6;

}  // namespace

Accueil::Accueil(QWidget* parent) : QWidget(parent), icone_(new QLabel), conseil_(new QLabel) {
  icone_->setFixedHeight(TailleIcone);
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
  disposition->addWidget(icone_, 0, Qt::AlignHCenter);
  disposition->addWidget(titre, 0, Qt::AlignHCenter);
  disposition->addWidget(conseil_);
  disposition->addStretch(3);
}

void Accueil::Dire(const QString& conseil) {
  conseil_->setText(conseil);
}

void Accueil::PoserIcone(const QIcon& icone) {
  const QPixmap image = icone.pixmap(TailleIcone);
  icone_->setPixmap(image);
  icone_->setVisible(!image.isNull());
}

}  // namespace hote
