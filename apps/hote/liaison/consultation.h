#pragma once
// An entry that cannot be saved does not look like one: its text stands on the window's ground, can
// be read and copied, and takes no key.

#include <QLineEdit>
#include <QPalette>

namespace hote {

template <typename Saisie>
void montrerConsultation(Saisie& saisie, QWidget& fond, bool consultation) {
  constexpr const char* Marque = "consultation";
  const bool montree = saisie.property(Marque).toBool();
  // One that takes no text by its design stays as it is.
  if (montree == consultation || (consultation && saisie.isReadOnly())) return;
  saisie.setProperty(Marque, consultation);
  saisie.setReadOnly(consultation);
  QPalette palette;
  if (consultation) palette.setColor(QPalette::Base, fond.palette().color(QPalette::Window));
  fond.setPalette(palette);
}

inline void montrerConsultation(QLineEdit& ligne, bool consultation) {
  montrerConsultation(ligne, ligne, consultation);
}

}  // namespace hote
