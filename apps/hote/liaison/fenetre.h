#pragma once
// The windows of the host's screens: those of modal forms, and how large one begins.

#include <QDialog>
#include <QScreen>

namespace hote {

// The first size of a window: what it asks for, as far as the screen has room for it and its title.
inline void donnerTaille(QWidget& fenetre, const QSize& voulue) {
  constexpr int HauteurTitre = 40;  // pixels
  fenetre.resize(voulue.boundedTo(fenetre.screen()->availableSize() - QSize(0, HauteurTitre)));
}

// Esc asks for the same as the close box: the model decides.
class Fenetre : public QDialog {
 public:
  void reject() override { close(); }
};

}  // namespace hote
