#pragma once
// The window of a modal form.

#include <QDialog>

namespace hote {

// Esc asks for the same as the close box: the model decides.
class Fenetre : public QDialog {
 public:
  void reject() override { close(); }
};

}  // namespace hote
