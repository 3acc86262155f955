#pragma once
// Network folders. Programs on one machine agree on a data file by locks and by memory that they
// share, which no network folder carries from one machine to another: two stations would each write
// over the other's work. So a file on such a folder is refused.

#include <istream>
#include <string>

namespace storage {

// The kind of network file system ("nfs4", "cifs"…) that a path stands on, "" for a local one.
// `montages` is the system's table of mounts, one line a mount; the path need not exist, its folder
// then counts.
std::string systemeReseau(const std::string& chemin, std::istream& montages);

// A data::StoreError that says what to do instead, when `chemin` stands on a network folder.
void refuserReseau(const std::string& chemin, std::istream& montages);
// The same by this machine's own table.
void refuserReseau(const std::string& chemin);

}  // namespace storage
