#pragma once
// The indexes in a data file, kept in the transaction of each write:
//
//   entree   index (its place in the table of indexes), value and key, in that order
//   indice   one row: the signature of the indexes that `entree` holds, 0 when it holds none
//
// Which indexes there are, and what they take of a record, belongs to a program's version. Its
// signature sums that up: a program trusts and keeps the entries of its own signature alone. One
// that writes to a file with other entries sets the signature to 0, since it cannot keep them; the
// next one that opens the file to write makes them anew. Without entries of its own a program reads
// as ever, by scans.

#include <cstdint>
#include <functional>
#include <memory>
#include <optional>
#include <string>
#include <vector>

#include "data/index.h"
#include "data/storage.h"
#include "storage/sqlite.h"
#include "storage/sqlite_connexion.h"

namespace storage {

// Version of the files that have these two tables, the present one.
inline constexpr std::int64_t kVersionIndex = 2;

// Makes the tables of a file without records.
std::string sqlTablesIndex();

class IndexSqlite {
 public:
  explicit IndexSqlite(Connexion& connexion) : connexion_(connexion) {}

  // Whether the entries are those of this program.
  bool Tenu(const Acte& acte);
  // Of a record that is being written, inside the transaction; no text stands for no record.
  void Suivre(const Acte& acte, const std::optional<std::string_view>& avant,
              const std::optional<std::string_view>& apres);
  // As data::Storage says.
  std::optional<std::size_t> Compter(const Acte& acte, const data::Chemin& chemin,
                                     std::size_t plafond);
  // The keys to which the roads lead, ascending, each once. Nothing while the index is not kept.
  std::optional<std::vector<std::string>> Cles(const Acte& acte,
                                               const std::vector<data::Chemin>& chemins);
  // All entries anew, inside a transaction. `avance` is told how many records have been read.
  void Refaire(const std::function<void(long)>& avance);
  // Compares entries and records, of one state of the file, and reports where they differ. False,
  // and no report, while the index is not kept.
  bool Verifier(const std::function<void(const Dommage&)>& signaler,
                const std::function<void(long)>& avance);

 private:
  struct Requetes {
    explicit Requetes(Connexion& connexion);
    Requete etat;
    Requete ajouter;
    Requete oter;
    Requete compterEntrees;
    Requete compterCles;
    Requete clesParValeur;
    Requete cles;
  };

  // False in a file from before, which has no tables. Another program can make them meanwhile.
  bool Tables(const Acte& acte);
  std::int64_t Signature(const Acte& acte);

  Connexion& connexion_;
  std::unique_ptr<Requetes> requetes_;
};

// One state of the file for as long as it lives, unless one is held already.
class LectureUnie {
 public:
  LectureUnie(Connexion& connexion, bool tenue, const Acte& acte);
  ~LectureUnie();
  LectureUnie(const LectureUnie&) = delete;
  LectureUnie& operator=(const LectureUnie&) = delete;

 private:
  Connexion& connexion_;
  bool tenue_;
};

}  // namespace storage
