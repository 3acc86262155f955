#pragma once
// A whole data file copied while others work on it, and a copy put back in its place.

#include <string>

#include "storage/sqlite.h"

namespace storage {

// A new file that has another name until it is whole. What an interrupted copy left under that name
// goes, and so does the file when it has not arrived, with what SQLite put beside it.
class FichierEnChemin {
 public:
  explicit FichierEnChemin(const std::string& but);
  ~FichierEnChemin() { Oter(); }
  FichierEnChemin(const FichierEnChemin&) = delete;
  FichierEnChemin& operator=(const FichierEnChemin&) = delete;
  const std::string& Nom() const { return nom_; }
  // StoreError when its name is taken.
  void ExigerLibre() const;
  // It takes its name, if that is free. No program has it open.
  void Arriver() const;

 private:
  void Oter() const;

  std::string but_;
  std::string nom_;
};

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
