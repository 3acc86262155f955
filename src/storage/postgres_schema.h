#pragma once
// The tables on the server, in a schema of their own, "contrats":
//
//   etat     one row: the version of the tables, and the signature of the indexes (see
//            storage/signature_index.h), 0 when `entree` leads to some records only
//   article  the current text of each record, in the order of file and key, with its checksum
//   ancien   the former texts, in the order of file, key and number, each with the checksum that
//            it had as a record
//   entree   the indexes: index (its place in the table of indexes), value and key
//
// Texts stand as their bytes (bytea): their order is that of the bytes, whatever the locale of the
// database. convert_from(cle, 'UTF8') shows one. All is plain SQL: no extension, function or
// trigger.

#include <cstdint>

#include "storage/postgres_lien.h"

namespace storage {

inline constexpr std::int64_t kVersionServeur = 2;

// The schema, its tables, the roles contrats_consultation (reads) and contrats_complet (writes
// too). StoreError when the schema is there already, or rights are missing; nothing is left then.
void creerSchema(Lien& lien);

// Before the base is used: its version is the present one. An older one is moved forward, by one
// station while the others wait, unless `lecture`; a newer one is a StoreError VersionInconnue.
// Returns the signature of its indexes.
std::int64_t preparerSchema(Lien& lien, bool lecture);

}  // namespace storage
