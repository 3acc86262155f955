#pragma once
// A whole data file copied while others work on it, and a copy put back in its place.

#include <string>

#include "storage/sqlite.h"

namespace storage {

// Copies all that is written in `source` at one moment into the new file `copie`, reads the copy
// through, and gives it that name only then. Others go on working. `copie` may stand in a network
// folder. StoreError when the name is taken, when the source or the copy does not read back as it
// was written, or when the disk is full; nothing of the copy is left then.
void copierFichier(const std::string& source, const std::string& copie,
                   const SqliteOptions& options = {});

// Puts the content of `copie`, which stays, under the name `base`. What stood there is kept, with
// its log, under another name, which is returned, "" when nothing stood there. StoreError Occupe
// while a program has the file open; nothing has changed then, nor after any other StoreError.
std::string restaurerFichier(const std::string& base, const std::string& copie,
                             const SqliteOptions& options = {});

}  // namespace storage
