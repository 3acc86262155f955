#pragma once
// What follows from the dates of a contract, beside the entries where they are typed: how long a
// fixed term lasts, and the last day of the trial.

class QWidget;

namespace hote {

// Under `racine`, the editor's window. Once for a widget.
void habillerOrigine(QWidget& racine);

}  // namespace hote
