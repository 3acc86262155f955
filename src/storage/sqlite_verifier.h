#pragma once
// The check of a whole data file, behind SqliteStorage::Verifier.

#include <functional>

#include "storage/sqlite.h"
#include "storage/sqlite_connexion.h"

namespace storage {

void verifierFichier(Connexion& connexion, const std::function<void(const Dommage&)>& signaler,
                     const std::function<void(long)>& avance);

}  // namespace storage
