#pragma once
// From SQLite's result codes to the store's errors, with a French text that says what failed,
// where, and what to do.

#include <string>
#include <string_view>

#include "data/store_error.h"
#include "storage/acte.h"

struct sqlite3;

namespace storage {

// For a file shorter than its header says, the two sizes, as a piece of a sentence; "" otherwise.
// While a log stands beside the file nothing can be said: the end may be in it still.
std::string finManquante(sqlite3* db, const std::string& chemin);

// The error for a result code of `db`, right after the call that gave it; `db` may be null.
// `chemin` is the data file as the user named it.
data::StoreError erreurSqlite(sqlite3* db, int code, const std::string& chemin, const Acte& acte);

// The error for a record, or a former text, whose checksum does not agree.
data::StoreError erreurControle(const std::string& chemin, const Acte& acte);

}  // namespace storage
