#pragma once
// What cannot be saved does not look like an entry: its value stands on the window's ground, can be
// read, and copied where it is a text, and takes no key and no click.

#include <QAbstractButton>
#include <QLineEdit>
#include <QPalette>

namespace hote {

// Set on the widget of a field that chooses what is shown: it stays at work where nothing can be
// saved.
inline constexpr const char* ProprieteConsultable = "consultable";

// False when `widget` looks so already. Else its ground is what it has to be.
inline bool changerFond(QWidget& widget, QWidget& fond, bool consultation) {
  constexpr const char* Marque = "consultation";
  if (widget.property(Marque).toBool() == consultation) return false;
  widget.setProperty(Marque, consultation);
  QPalette palette;
  if (consultation) palette.setColor(QPalette::Base, fond.palette().color(QPalette::Window));
  fond.setPalette(palette);
  return true;
}

template <typename Saisie>
void montrerConsultation(Saisie& saisie, QWidget& fond, bool consultation) {
  // One that takes no text by its design stays as it is.
  const bool montree = saisie.property("consultation").toBool();
  if (!montree && consultation && saisie.isReadOnly()) return;
  if (changerFond(saisie, fond, consultation)) saisie.setReadOnly(consultation);
}

inline void montrerConsultation(QLineEdit& ligne, bool consultation) {
  montrerConsultation(ligne, ligne, consultation);
}

// It does not light up under the mouse either.
inline void montrerConsultation(QAbstractButton& bouton, bool consultation) {
  if (changerFond(bouton, bouton, consultation)) bouton.setAttribute(Qt::WA_Hover, !consultation);
}

}  // namespace hote
