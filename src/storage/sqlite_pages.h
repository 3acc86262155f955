#pragma once
// Sealed pages. SQLite finds a record by the keys of its pages: a damaged key can make it answer
// that a sound record is absent, and no check of the records that it does return would notice. So
// each page of a data file ends with a seal, the checksum of its number and content, laid when the
// page is written and verified when it is read: damage is an error before SQLite looks at it.
//
// This is a layer of SQLite's own file access (a "VFS") that passes everything through but the
// pages of the main file; the write-ahead log has checksums of its own. In memory and in the log
// the seal reads zero, and a page with a zero seal is taken unverified: so a copy of the log into
// the file by an ordinary SQLite tool, after a crash, leaves a file that still opens.
//
// It also lays the mark of the file's log (storage/sqlite_marque.h), which the seal of the first
// page leaves out and SQLite never sees; and gives the files that SQLite puts beside the main one
// that one's group, so that whoever shares the file can share them.
//
// Opened with the address parameter "prive=1", a file is read without a trace: no file is made
// beside it, no lock taken that others could meet, and the log's index stands in this process's
// memory. Nothing then keeps others from changing what is read: see storage/sqlite_instantane.h.

#include <cstdint>

struct sqlite3;
struct sqlite3_file;

namespace storage {

inline constexpr int kOctetsPage = 8192;
inline constexpr int kOctetsSceau = 8;  // the end of each page that SQLite leaves to us

// Registers the layer on first use; the name is what sqlite3_open_v2 asks for. Null when SQLite
// could not be started.
const char* nomVfsPages();

// Bytes of the file that the header of `db` announces, and those that are there; both 0 when they
// cannot be read.
struct Tailles {
  std::int64_t attendue = 0;
  std::int64_t trouvee = 0;
};
Tailles taillesFichier(sqlite3* db);

// Why the system refused this thread's last write, an errno value; 0 when it did not. SQLite itself
// does not keep it when the write ends a transaction.
int refusDuSysteme();

// The number from 1 of the last page of `db` whose seal was found broken since the last call, 0
// when there was none.
std::int64_t derniereMauvaisePage(sqlite3* db);

// Whether one page of a file opened through the layer, numbered from 1, reads back as written.
bool pageSaine(sqlite3_file* fichier, std::int64_t numero);

}  // namespace storage
