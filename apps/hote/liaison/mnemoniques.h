#pragma once
// A letter for each button of a form: Alt and the letter press it. Buttons that can be in view
// together have different letters; the pages of tabs are never in view together.
//
// The captions are the model's and have no mark for it. A letter is chosen once, from the start of
// a word where one is free; a button whose caption changes to one without it has none meanwhile.

#include <QChar>
#include <QSet>
#include <QString>
#include <map>

namespace screen {
class Field;
class Form;
}  // namespace screen

namespace hote {

class Mnemoniques {
 public:
  // `pris`: letters that the window around the form has for itself.
  Mnemoniques(const screen::Form& forme, const QSet<QChar>& pris);

  // The caption of the button as the toolkit wants it: with "&" before its letter.
  QString Libelle(const screen::Field& bouton) const;

 private:
  std::map<const screen::Field*, QChar> lettres_;
};

}  // namespace hote
