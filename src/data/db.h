#pragma once
// The database as the logic sees it: files of items, read by key, selected by query.
//
//   DbFile F_CONTRAT = db.OpenFile("CONTRAT");
//   CItem contrat;
//   if (F_CONTRAT.Lire("00001001", contrat)) ...
//   CItem r = db.Selectionner("SSELECT CONTRAT AVEC 0 = \"00001]\"", "CONTRAT", "0 7 8");
//   for (int i = 1; i <= r.DCount(); ++i) use r(i, 1), r(i, 2), r(i, 3);
//
// The query language is described in data/query.h. A value of a result row that is itself
// multi-valued comes with its value separators lowered to subvalue separators, so that column j of
// a row is always value j.
//
// A result is an item, whose empty ends are cut: rows without any text at its end are lost, and
// DCount() can be below the number of records found. A field list with the key ("0"), or with an
// attribute that is always set, keeps every row.

#include <memory>
#include <string>
#include <string_view>

#include "data/citem.h"
#include "data/routines.h"
#include "data/storage.h"
#include "data/store_error.h"

namespace data {

class DbFile {
 public:
  // A file that is not open; every operation on it is a StoreError.
  DbFile() = default;

  const std::string& Nom() const;

  // The attached item. StoreError NonTrouve for an absent key, the empty key included.
  CItem Read(std::string_view cle) const;
  // The small form of Read: false, and `item` untouched, when the key is absent. Other errors rise.
  bool Lire(std::string_view cle, CItem& item) const;
  // A new empty attached item, whether or not a record stands under the key. Nothing is stored
  // before DBWrite.
  CItem NewItem(std::string_view cle) const;
  // Removes the record; an absent one is no error.
  void DeleteItem(std::string_view cle) const;

 private:
  friend class Db;
  class Ouvert;
  explicit DbFile(std::shared_ptr<const Ouvert> ouvert) : ouvert_(std::move(ouvert)) {}
  const Ouvert& Exige() const;

  std::shared_ptr<const Ouvert> ouvert_;
};

class Db {
 public:
  explicit Db(std::shared_ptr<Storage> storage) : storage_(std::move(storage)) {}

  // Any well-formed name opens; a run-time file exists from its first record on.
  DbFile OpenFile(std::string_view nom);

  // Runs the query of a request item given in its text form: attribute 1 the query, 2 the file, 3
  // the field list. `option` is always ""; `statut` receives 0. A query that cannot be understood,
  // or that is about another file than attribute 2, is a StoreError.
  CItem Select(std::string_view requete, std::string_view option, long& statut);
  // A list command in attribute 1: "EFFACER-LISTE <name>". Forgetting an unknown list is no error.
  // The result is empty.
  CItem Execute(std::string_view requete, std::string_view option, long& statut);
  // A stored routine by name, its parameters in an item's text form (see data/routines.h).
  CItem CallRoutine(std::string_view nom, long& statut, std::string_view requete);

  // Select from its three parts.
  CItem Selectionner(std::string_view question, std::string_view fichier, std::string_view champs);

  Storage& Stockage() { return *storage_; }

 private:
  std::shared_ptr<Storage> storage_;
  ListesSauvees listes_;
};

}  // namespace data
