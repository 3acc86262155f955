#pragma once
// What a failed save has left, told behind the store's own words: a contract that stands is never
// said not to be stored, and its user learns that saving again completes it.

#include <functional>

#include "session/dossier.h"

namespace editor {

// Runs the writes of a save. A StoreError rises with a sentence more, found by reading the file;
// as it is when that cannot be read either.
void DireCeQuiReste(const session::Dossier& dossier, const std::function<void()>& ecritures);

}  // namespace editor
