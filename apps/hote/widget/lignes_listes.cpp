#include "widget/lignes_listes.h"

#include <QAbstractItemView>
#include <QApplication>
#include <QHelpEvent>
#include <QPainter>
#include <QToolTip>

namespace hote {

namespace {

constexpr int LargeurMarque = 3;  // pixels

QStyle& styleDe(const QStyleOptionViewItem& cellule) {
  return cellule.widget == nullptr ? *QApplication::style() : *cellule.widget->style();
}

QPalette::ColorGroup groupe(const QStyleOptionViewItem& cellule) {
  if (!cellule.state.testFlag(QStyle::State_Enabled)) return QPalette::Disabled;
  return cellule.state.testFlag(QStyle::State_Active) ? QPalette::Active : QPalette::Inactive;
}

QRect placeDuTexte(const QStyleOptionViewItem& cellule) {
  const int marge = LigneListe::MargeDe(cellule.widget);
  return cellule.rect.adjusted(marge, 0, -marge, 0);
}

}  // namespace

int LigneListe::MargeDe(const QWidget* liste) {
  return liste != nullptr && liste->property(Serree).toBool() ? MargeSerree : Marge;
}

// 22 pixels for the 14 of a usual font.
int LigneListe::Hauteur(const QFontMetrics& mesures) {
  return mesures.height() * 3 / 2 + 1;
}

void LigneListe::paint(QPainter* pinceau, const QStyleOptionViewItem& option,
                       const QModelIndex& index) const {
  QStyleOptionViewItem cellule = option;
  initStyleOption(&cellule, index);
  QStyle& style = styleDe(cellule);
  style.drawPrimitive(QStyle::PE_PanelItemViewItem, &cellule, pinceau, cellule.widget);
  const bool choisie = cellule.state.testFlag(QStyle::State_Selected);
  const QRect place = placeDuTexte(cellule);
  pinceau->save();
  pinceau->setFont(cellule.font);
  pinceau->setPen(
      cellule.palette.color(groupe(cellule), choisie ? QPalette::HighlightedText : QPalette::Text));
  pinceau->setClipRect(place, Qt::IntersectClip);
  const bool nombres = cellule.widget != nullptr && cellule.widget->property(ADroite).toBool();
  const int cote = nombres ? Qt::AlignRight
                           : static_cast<int>(cellule.displayAlignment & Qt::AlignHorizontal_Mask);
  pinceau->drawText(
      place, Qt::AlignVCenter | cote | Qt::TextSingleLine,
      cellule.fontMetrics.elidedText(cellule.text, cellule.textElideMode, place.width()));
  pinceau->restore();
  if (choisie || !cellule.state.testFlag(QStyle::State_HasFocus)) return;
  QStyleOptionFocusRect focus;
  focus.QStyleOption::operator=(cellule);
  focus.backgroundColor = cellule.palette.color(groupe(cellule), QPalette::Base);
  style.drawPrimitive(QStyle::PE_FrameFocusRect, &focus, pinceau, cellule.widget);
}

void LigneListe::Marquer(QPainter& pinceau, const QStyleOptionViewItem& option) {
  QRect barre = option.rect.adjusted(0, 1, 0, -1);
  barre.setWidth(LargeurMarque);
  const bool choisie = option.state.testFlag(QStyle::State_Selected);
  pinceau.fillRect(barre, option.palette.color(QPalette::Active, choisie ? QPalette::HighlightedText
                                                                         : QPalette::Highlight));
}

QSize LigneListe::sizeHint(const QStyleOptionViewItem& option, const QModelIndex& index) const {
  QStyleOptionViewItem cellule = option;
  initStyleOption(&cellule, index);
  return {cellule.fontMetrics.horizontalAdvance(cellule.text) + 2 * MargeDe(option.widget),
          Hauteur(option.fontMetrics)};
}

bool LigneListe::helpEvent(QHelpEvent* evenement, QAbstractItemView* vue,
                           const QStyleOptionViewItem& option, const QModelIndex& index) {
  if (evenement->type() != QEvent::ToolTip || index.data(Qt::ToolTipRole).isValid()) {
    return QStyledItemDelegate::helpEvent(evenement, vue, option, index);
  }
  // A list that elides nothing keeps what runs past its edge to itself.
  const bool tient = option.textElideMode == Qt::ElideNone ||
                     sizeHint(option, index).width() <= option.rect.width();
  QToolTip::showText(evenement->globalPos(),
                     tient ? QString() : index.data().toString().toHtmlEscaped(), vue);
  return true;
}

}  // namespace hote
