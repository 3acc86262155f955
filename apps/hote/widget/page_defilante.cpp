#include "widget/page_defilante.h"

#include <QBoxLayout>
#include <QLabel>
#include <QRegularExpression>
#include <QScrollBar>

namespace hote {

namespace {

// Widths in digits: that of a page laid out whole, of which no page needs more, and the one beyond
// which fields only grow away from their labels.
constexpr int LargeurAise = 128;
constexpr int LargeurMax = 180;

}  // namespace

PageDefilante::PageDefilante(QWidget& page) {
  setFrameShape(QFrame::NoFrame);
  setFocusPolicy(Qt::NoFocus);
  setWidgetResizable(true);
  setWidget(&page);
  // The ground is the tabs' own.
  viewport()->setAutoFillBackground(false);
  page.setAutoFillBackground(false);
}

void PageDefilante::resizeEvent(QResizeEvent* evenement) {
  Disposer();
  QScrollArea::resizeEvent(evenement);
}

// A page that was sized while it was hidden keeps the layout of its former width.
void PageDefilante::showEvent(QShowEvent* evenement) {
  QScrollArea::showEvent(evenement);
  Disposer();
  widget()->layout()->invalidate();
  widget()->layout()->activate();
}

// The room without the bar, whether it shows or not: the columns would else come and go with it.
void PageDefilante::Disposer() {
  const int place = maximumViewportSize().width() - verticalScrollBar()->sizeHint().width();
  const auto chiffres = [this](int nombre) {
    return fontMetrics().horizontalAdvance(QString(nombre, '0'));
  };
  const bool etroite = place < chiffres(LargeurAise);
  widget()->setMaximumWidth(chiffres(LargeurMax));
  const auto sens = etroite ? QBoxLayout::TopToBottom : QBoxLayout::LeftToRight;
  for (auto* const colonnes :
       widget()->findChildren<QBoxLayout*>(QRegularExpression("^colonnes"))) {
    if (colonnes->direction() != sens) colonnes->setDirection(sens);
  }
  for (auto* const etiquette : widget()->findChildren<QLabel*>()) {
    if (etiquette->property("repliable").toBool()) etiquette->setWordWrap(etroite);
  }
}

}  // namespace hote
