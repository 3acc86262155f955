#pragma once
// The rows of the component's lists and of the host's: as high as the font asks for and a little
// air, a margin on both sides, and the whole text as a tooltip where it does not fit.

#include <QStyledItemDelegate>

class QFontMetrics;

namespace hote {

class LigneListe : public QStyledItemDelegate {
 public:
  using QStyledItemDelegate::QStyledItemDelegate;

  // Between the text and either side of its cell, in pixels. Captions over a list stand as far in.
  static constexpr int Marge = 8;
  static constexpr int MargeSerree = 4;
  // The property of a list that is one column of many: it has the narrow margin.
  static constexpr const char* Serree = "serree";
  static int MargeDe(const QWidget* liste);
  // The property of a list whose texts are numbers: they end in one line.
  static constexpr const char* ADroite = "aDroite";
  static int Hauteur(const QFontMetrics& mesures);

  void paint(QPainter* pinceau, const QStyleOptionViewItem& option,
             const QModelIndex& index) const override;
  QSize sizeHint(const QStyleOptionViewItem& option, const QModelIndex& index) const override;
  bool helpEvent(QHelpEvent* evenement, QAbstractItemView* vue, const QStyleOptionViewItem& option,
                 const QModelIndex& index) override;

 protected:
  // The bar at the left edge of a row that stands out.
  static void Marquer(QPainter& pinceau, const QStyleOptionViewItem& option);
};

}  // namespace hote
