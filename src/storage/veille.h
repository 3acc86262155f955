#pragma once
// The watch over an open data file: once the file no longer stands under its name, what the system
// would still let a program write there nobody would find again.
//
// The name is looked at before each write and again after it, so that a write which has returned
// stood in the named file. A file that is put back takes writes again.

#include <optional>
#include <string>

#include "storage/fichier_suivi.h"
#include "storage/sqlite_marque.h"

namespace storage {

struct Acte;
class Connexion;

class Veille {
 public:
  // Made before the file is opened, so that one that changes place meanwhile is noticed.
  explicit Veille(const std::string& chemin);
  // The log, too, from now on, once the file is open: the one beside that name, or the one of the
  // connection and its content with it. `connexion` outlives the watch.
  void SuivreJournal();
  void Suivre(const Connexion& connexion);

  // What has become of the file and what its user can do, a French sentence; "" while it is in
  // place.
  std::string Defaut() const;
  // Another file has the name, or other content was copied into the file.
  bool Remplace() const;
  // Other content was copied into the file: the log must not be copied there, too.
  bool Substitue() const;
  // A data::StoreError while the file is not in place.
  void Exiger(const Acte& acte) const;
  // When another file has taken the name: renames the log of the former file, which the new one
  // would take for its own. Its new name, "" when there was nothing to do.
  std::string EcarterJournal() const;

 private:
  bool MarqueTient() const;

  FichierSuivi fichier_;
  const Connexion* connexion_ = nullptr;
  std::optional<FichierSuivi> journal_;
  // Changes with each log that is begun, by whatever program.
  mutable Marque marque_;
};

}  // namespace storage
