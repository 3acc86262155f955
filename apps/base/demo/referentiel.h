#pragma once
// The records that do not depend on persons: entities, agreements, code tables, headings, settings.

#include "demo/sortie.h"

namespace demo {

void ecrireReferentiel(Sortie& sortie, const Parametres& parametres);

}  // namespace demo
