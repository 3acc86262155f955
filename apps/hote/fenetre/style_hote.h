#pragma once
// The style of the platform, without what its widgets load before anybody sees it.

#include <QProxyStyle>

namespace hote {

class StyleHote : public QProxyStyle {
 public:
  // The arrow of a menu bar that is too narrow is asked for by every menu bar, and its file has all
  // readers of pictures loaded: it is read when it is first drawn.
  QIcon standardIcon(StandardPixmap image, const QStyleOption* option,
                     const QWidget* widget) const override;
};

}  // namespace hote
