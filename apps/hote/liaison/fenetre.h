#pragma once
// The windows of the host's screens: those of modal forms, and how large one begins.

#include <QDialog>
#include <QScreen>

namespace hote {

// The size of a window: what it asks for, as far as the screen has room for it and for the frame
// that it gets when it is shown, in pixels.
inline void donnerTaille(QWidget& fenetre, const QSize& voulue) {
  constexpr QSize Cadre{8, 40};
  fenetre.resize(voulue.boundedTo(fenetre.screen()->availableSize() - Cadre));
}

// Esc asks for the same as the close box: the model decides.
class Fenetre : public QDialog {
 public:
  void reject() override { close(); }
};

}  // namespace hote
