#pragma once
// The data files of the benchmarks, made once from the demonstration data, and a raw SQLite
// connection to them: the same file without anything of ours in between.

#include <sqlite3.h>

#include <functional>
#include <memory>
#include <string>
#include <vector>

#include "data/db.h"
#include "data/poste.h"
#include "storage/sqlite.h"

namespace bench {

// Where the files stand; set from the command line.
std::string& dossier();

struct Base {
  std::string chemin;
  std::shared_ptr<storage::SqliteStorage> stockage;
  std::unique_ptr<data::Db> db;
  long contrats = 0;
  // A carer from the middle of the file.
  std::string aidant;
};

const data::Poste& poste();

// The file with at least so many contracts; opened once.
Base& base(long contrats);
// The same data as the smallest file, with a carer "99998" who has 999 contracts.
Base& baseAidantCharge();
constexpr const char* AidantCharge = "99998";

// Demonstration data with 2,000 activities of entity "001" and 500 profiles, "500" to "999", both
// labelled by three letters that tell their rank; a production contract of that entity.
constexpr int Activites = 2'000;
constexpr int Profils = 500;
constexpr int PremierProfil = 500;
std::string lettres(int rang);
Base& baseChoix();
std::string contratChoix();

// A file of its own, made by `remplir` in one block and opened once; without carers.
Base ouvrirBase(const std::string& nom, const std::function<void(data::Storage&)>& remplir);

class Brut {
 public:
  explicit Brut(const std::string& chemin);
  ~Brut();
  Brut(const Brut&) = delete;
  Brut& operator=(const Brut&) = delete;

  // Length of the text under that key, -1 without a record.
  int lire(const std::string& fichier, const std::string& cle);
  // The rows of a key range; the sum over every byte of their texts.
  long parcourir(const std::string& fichier, const std::string& debut, const std::string& fin);

 private:
  sqlite3* db_ = nullptr;
  sqlite3_stmt* lecture_ = nullptr;
  sqlite3_stmt* parcours_ = nullptr;
};

// Durable writes without anything of ours in between: a transaction for each record.
class EcritureBrute {
 public:
  explicit EcritureBrute(const std::string& chemin);
  ~EcritureBrute();
  EcritureBrute(const EcritureBrute&) = delete;
  EcritureBrute& operator=(const EcritureBrute&) = delete;

  void ecrire(const std::string& fichier, const std::string& cle, const std::string& texte);

 private:
  sqlite3* db_ = nullptr;
  sqlite3_stmt* ecriture_ = nullptr;
};

}  // namespace bench
