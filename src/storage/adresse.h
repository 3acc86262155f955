#pragma once
// What a person gives as the data file: the name of a file, or the address of a database on a
// server, as a URI or as libpq's "host=... dbname=...".

#include <string>

namespace storage {

bool estAdresseServeur(const std::string& base);

// The same base to be shown and kept: an address without its passwords, as a URI. Where a password
// is needed, libpq finds it where its user has put it. A file's name comes back as it is.
std::string sansMotDePasse(const std::string& base);

}  // namespace storage
