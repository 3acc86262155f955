#pragma once
// A base moved from a file to a server, or back, with its history.

#include "base/contexte.h"

namespace base {

// Copies the base BASE to COPIE, a new file or a base without records, made if there is none, and
// then compares every record and former text of the two. Nobody writes to either meanwhile: what
// differs is an Echec. A copy that fails leaves no record.
int transferer(Contexte& contexte, const Arguments& arguments);

}  // namespace base
