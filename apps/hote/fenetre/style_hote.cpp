#include "fenetre/style_hote.h"

#include <QIconEngine>
#include <QPointer>

namespace hote {

namespace {

// A picture of a style, read when it is first asked for.
class ImageTardive : public QIconEngine {
 public:
  ImageTardive(const QStyle* style, QStyle::StandardPixmap image) : style_(style), image_(image) {}

  void paint(QPainter* pinceau, const QRect& place, QIcon::Mode mode, QIcon::State etat) override {
    Lue().paint(pinceau, place, Qt::AlignCenter, mode, etat);
  }
  QPixmap pixmap(const QSize& taille, QIcon::Mode mode, QIcon::State etat) override {
    return Lue().pixmap(taille, mode, etat);
  }
  QSize actualSize(const QSize& taille, QIcon::Mode mode, QIcon::State etat) override {
    return Lue().actualSize(taille, mode, etat);
  }
  QList<QSize> availableSizes(QIcon::Mode mode, QIcon::State etat) override {
    return Lue().availableSizes(mode, etat);
  }
  QIconEngine* clone() const override { return new ImageTardive(*this); }

 private:
  const QIcon& Lue() {
    if (lue_.isNull() && style_ != nullptr) lue_ = style_->standardIcon(image_);
    return lue_;
  }

  QPointer<const QStyle> style_;
  QStyle::StandardPixmap image_;
  QIcon lue_;
};

}  // namespace

QIcon StyleHote::standardIcon(StandardPixmap image, const QStyleOption* option,
                              const QWidget* widget) const {
  if (image == SP_ToolBarHorizontalExtensionButton) {
    return QIcon(new ImageTardive(baseStyle(), image));
  }
  return QProxyStyle::standardIcon(image, option, widget);
}

}  // namespace hote
