#pragma once
// The number fields of the annual follow-up's edit lines.

#include <string>

#include "data/monnaie.h"
#include "screen/field.h"
#include "session/session.h"

namespace dialogs {

// The keys of a number; "-" only in front of it.
void filtrerNombre(const session::Session& session, screen::TextField& champ, bool signe);

// The number that was typed; that on file where the field still says what a column shows of it,
// which may be less than it holds.
data::Monnaie reprise(const std::string& tape, const std::string& montre, data::Monnaie tenue);

}  // namespace dialogs
