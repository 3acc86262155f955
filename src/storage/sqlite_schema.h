#pragma once
// The data file as a file: its creation, its tables, and what is checked before it is used. Every
// function refuses by a StoreError that names the file as it was given.
//
//   article  the current text of each record, in the order of file and key
//   ancien   the former texts, in the order of file, key and number
//
// Both carry the checksum of all their other columns (see storage/controle.h). The tables of the
// indexes stand in storage/index_sqlite.h.

#include <memory>
#include <string>

#include "storage/sqlite.h"
#include "storage/sqlite_connexion.h"

namespace storage {

// Written in the file's header: what tells our files from other SQLite files, and the version of
// the tables above.
inline constexpr std::int64_t kApplication = 0x43545254;  // "CTRT"
inline constexpr std::int64_t kVersion = 2;
inline constexpr std::int64_t kVersionSansIndex = 1;  // the same without indexes

// Of an existing data file, to read and write.
std::unique_ptr<Connexion> ouvrirFichier(const std::string& chemin, const SqliteOptions& options);

// Of an existing data file, to read only. Who may write takes part like a writer, so that the last
// to leave leaves one whole file; who may not, or finds the disk full, reads without a trace.
std::unique_ptr<Connexion> ouvrirFichierEnLecture(const std::string& chemin,
                                                  const SqliteOptions& options);

// Of a new data file without records. Refuses a path that exists; leaves nothing when it fails.
std::unique_ptr<Connexion> creerFichier(const std::string& chemin, const SqliteOptions& options);

// An empty file of our page size at that new path, to be filled by a copy; `nom` is what errors
// call it.
std::unique_ptr<Connexion> creerVide(const std::string& chemin, const std::string& nom);
// Of a file, sound or not, that another will replace: nothing of it is read. StoreError
// LectureSeule when it or its folder cannot be written.
std::unique_ptr<Connexion> pourRemplacer(const std::string& chemin);

}  // namespace storage
