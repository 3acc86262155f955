#pragma once
// What every screen does with its date and number fields, tied to a field in one line of the
// form's constructor.

#include "screen/field.h"
#include "session/session.h"

namespace session {

// The text of a refused date.
inline constexpr const char* ErreurDate = "Erreur de saisie dans la date, veuillez la ressaisir.";

// The LostFocus of a date field: puts the typed date in displayed form. A text that is no date
// keeps the focus, without a message. True when the field may be left.
bool QuitterDate(Session& session, screen::TextField& champ);
// Lets only the keys of a number through; the minus sign when `moins`.
void FiltrerNombre(Session& session, screen::TextField& champ, bool moins);
// The LostFocus of a number field: puts a filled field in its fixed-width form, `avant` digits
// before the separator and `apres` after. A text that does not fit keeps the focus.
bool QuitterNombre(Session& session, screen::TextField& champ, int avant, int apres, bool signe);

// The check of a typed decimal: shows its message, gives the field the focus and sets
// ErreurZoneNum. True when the text passes.
bool ZoneNumCarac(Session& session, screen::TextField& champ, int& avant, int apres);

}  // namespace session
