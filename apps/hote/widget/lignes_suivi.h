#pragma once
// The rows of the annual follow-up: numbers right-aligned with their commas in line, a negative one
// told from the others by its sign and its weight, and the month that is being paid marked at the
// left of its row.

class QString;
class QWidget;

namespace hote {

// A number of a column as it is drawn: the sign next to the digits, and blanks of a digit's width
// in place of the decimals that it lacks of `decimales`. Any other text as it is.
QString nombreAligne(const QString& texte, int decimales);

// Draws so the lists of both tabs under `racine` and feeds their charts. Once for a widget.
void habillerSuivi(QWidget& racine);

}  // namespace hote
