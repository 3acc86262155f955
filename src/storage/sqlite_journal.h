#pragma once
// The log beside a data file: whose it is, and its setting aside when it is another file's.

#include <optional>
#include <string>

#include "storage/sqlite_connexion.h"
#include "storage/sqlite_marque.h"

namespace storage {

// The salts of the log at that path; nothing when there is none, or one without writes.
std::optional<Sels> selsDuJournal(const std::string& journal);

// Whether the log beside the file was written over another file. Before SQLite reads through
// `connexion`, or at any time after.
bool journalEtranger(const Connexion& connexion);

// Gives the log a name that says what it is, and takes its index away. The new name, "" when that
// failed.
std::string ecarterJournal(const std::string& journal);

// Before SQLite reads through `connexion`, which can write: sets a log of another file aside, and
// says so in the connection's notice. StoreError Occupe when a program has the file open still
// after `attenteMs`, EntreeSortie when the log cannot be renamed.
void ecarterJournalEtranger(Connexion& connexion, int attenteMs);

// Nobody else has the file open, and nobody can open it, while the object lives. Before SQLite
// reads through `connexion`, which can write.
class Exclusivite {
 public:
  // Tenue tells whether it was had within `attenteMs`.
  Exclusivite(const Connexion& connexion, int attenteMs);
  ~Exclusivite();
  Exclusivite(const Exclusivite&) = delete;
  Exclusivite& operator=(const Exclusivite&) = delete;
  bool Tenue() const { return tenue_; }

 private:
  const Connexion& connexion_;
  bool tenue_ = false;
};

// Takes away what an opening that failed has put beside the file: a log without writes, and its
// index. Nothing while anybody has the file open. Before SQLite reads through `connexion`.
void oterVoisinsVides(const Connexion& connexion);

}  // namespace storage
