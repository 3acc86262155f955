#pragma once
// What a person gives as the data file: the name of a file, or the address of a database on a
// server, as a URI or as libpq's "host=... dbname=...".

#include <string>

namespace storage {

bool estAdresseServeur(const std::string& base);

// Shown for an address that libpq cannot read: any part of it may be a password.
constexpr const char* kAdresseIllisible = "postgresql://…";

// The address of a base on a server: its name, or name:port, or the folder where its socket stands.
// Without an account it is the one of the workstation's user.
std::string adresseServeur(const std::string& serveur, const std::string& base,
                           const std::string& compte);

// The same base to be shown and kept: an address without its passwords, as a URI. Where a password
// is needed, libpq finds it where its user has put it. A file's name comes back as it is.
std::string sansMotDePasse(const std::string& base);

}  // namespace storage
