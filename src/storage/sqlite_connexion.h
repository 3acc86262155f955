#pragma once
// SQLite's connection and prepared statement as objects: closed when they go, and every result code
// that is no success is a StoreError. For the store's own sources; callers of the store see
// storage/sqlite.h alone.

#include <sqlite3.h>

#include <cstdint>
#include <optional>
#include <string>

#include "storage/sqlite_erreur.h"
#include "storage/sqlite_instantane.h"

namespace storage {

class Connexion {
 public:
  // Opens `cible`, a path or a "file:" address, through the layer of sealed pages. `chemin` names
  // the data file in errors. `modes` are SQLITE_OPEN_ flags.
  Connexion(const std::string& cible, std::string chemin, int modes);
  ~Connexion();
  Connexion(const Connexion&) = delete;
  Connexion& operator=(const Connexion&) = delete;

  sqlite3* Db() const { return db_; }
  const std::string& Chemin() const { return chemin_; }
  bool EnTransaction() const { return sqlite3_get_autocommit(db_) == 0; }
  // The main file, as the layer of sealed pages sees it.
  sqlite3_file* Fichier() const;

  // The path of the log, whether or not there is one.
  std::string Journal() const;

  // What the opening had to do that the user should know, "" for nothing.
  const std::string& Avis() const { return avis_; }
  void Avertir(const std::string& avis) { avis_ = avis; }

  // From now on the reader takes no locks, and what it reads holds as long as `instantane` does.
  void Figer(Instantane instantane) { instantane_ = std::move(instantane); }
  bool Perimee() const { return instantane_ && !instantane_->Inchange(); }
  // StoreError Occupe when the file was changed under such a reader.
  void ExigerTenue(const Acte& acte) const;

  // The log is left as it is when the connection closes.
  void LaisserJournal();

  // Runs statements whose rows, if any, are not wanted.
  void Executer(const char* sql, const Acte& acte);
  // First column of the first row, 0 or "" when there is none.
  std::int64_t Nombre(const char* sql, const Acte& acte);
  std::string Texte(const char* sql, const Acte& acte);

  [[noreturn]] void Echouer(int code, const Acte& acte) const;

 private:
  std::string chemin_;
  std::string avis_;
  std::optional<Instantane> instantane_;
  bool laisserJournal_ = false;
  sqlite3* db_ = nullptr;
};

class Requete {
 public:
  Requete(Connexion& connexion, const char* sql, const Acte& acte);
  ~Requete() { sqlite3_finalize(stmt_); }
  Requete(const Requete&) = delete;
  Requete& operator=(const Requete&) = delete;

  // Parameters count from 1. The text is not copied: it must live until the next Finir.
  void Lier(int i, std::string_view texte);
  void Lier(int i, std::int64_t nombre);

  // To the next row: false after the last one.
  bool Avancer(const Acte& acte);
  // Runs a statement that gives no row.
  void Executer(const Acte& acte);
  // Ready for another run; lets go of what it locked. Called by Usage, never forgotten.
  void Finir() { sqlite3_reset(stmt_); }

  // Columns count from 0; the view lives until the next row.
  std::string_view Texte(int colonne) const;
  std::int64_t Nombre(int colonne) const { return sqlite3_column_int64(stmt_, colonne); }

 private:
  Connexion& connexion_;
  sqlite3_stmt* stmt_ = nullptr;
};

// One run of a kept statement.
class Usage {
 public:
  explicit Usage(Requete& requete) : requete_(requete) {}
  ~Usage() { requete_.Finir(); }
  Usage(const Usage&) = delete;
  Usage& operator=(const Usage&) = delete;
  Requete* operator->() const { return &requete_; }

 private:
  Requete& requete_;
};

}  // namespace storage
