#pragma once
// What the forms' looks owe to the user's palette and font, which a .ui file cannot know. A .ui
// file states its wishes in dynamic properties:
//
//   caracteres     width in digits: exact for an entry, the least one for a list, button or label
//   caracteresMin  the least width of an entry that takes the room there is
//   caracteresMax  the largest width of a list or a combo, in digits
//   rangees        the least height of a list, in rows
//   date           an entry of a date: it has the keys of dates and a calendar (the binder)
//   toutes         a list that takes only its rows: the text of the row for none (the binder)
//   colonne        labels of one form with the same word here are as wide as the widest of them
//   chasseFixe     true for a text whose columns are made of blanks: letters of one width
//
// Nothing here is a colour or a size of its own: the host's style, palette and font decide.

#include <QColor>
#include <initializer_list>

class QWidget;

namespace hote {

// Contrast of small text on its ground from which it reads well, as accessibility rules count it.
constexpr double ContrasteLisible = 4.5;

// 1 for equal colours to 21 for black on white.
double contraste(const QColor& a, const QColor& b);
// `texte` faded towards the first of `fonds` as far as it reads well on all of them; `texte` itself
// where it does not do so unfaded.
QColor attenuer(const QColor& texte, std::initializer_list<QColor> fonds);

// Gives the form in `racine` its widths, its rows and readable disabled texts, and keeps them when
// the palette or the font of `racine` changes. Before the form is bound; once for a widget.
void appliquerApparence(QWidget& racine);

}  // namespace hote
