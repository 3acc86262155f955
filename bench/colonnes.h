#pragma once
// A peer of the data files: the same records as a relational user would keep them, a table a file,
// with a column and an index for each thing that is looked up, and the whole item as JSON beside
// them for the questions over JSON columns. SQLite keeps both, so that only the way differs.

#include <sqlite3.h>

#include <functional>
#include <string>
#include <string_view>
#include <vector>

#include "bases.h"
#include "data/citem.h"

namespace bench {

struct Colonne {
  const char* nom;
  std::function<std::string(std::string_view cle, const data::CItem& item)> valeur;
};

struct TableColonnes {
  const char* fichier;
  std::vector<Colonne> colonnes;
  std::vector<const char*> cherchees;  // those with an index
  bool json = true;
};

// One question of one table, prepared. The table is made beside the data file on first use.
class Colonnes {
 public:
  Colonnes(const Base& base, const TableColonnes& table, const std::string& question);
  ~Colonnes();
  Colonnes(const Colonnes&) = delete;
  Colonnes& operator=(const Colonnes&) = delete;

  // The number of rows; every column of each is taken.
  int demander(const std::vector<std::string>& valeurs);

 private:
  sqlite3* db_ = nullptr;
  sqlite3_stmt* question_ = nullptr;
};

}  // namespace bench
