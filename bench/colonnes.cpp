#include "colonnes.h"

#include <benchmark/benchmark.h>

#include <cstdio>
#include <cstdlib>
#include <filesystem>

#include "base/article_json.h"

namespace bench {

namespace {

void verifier(sqlite3* db, int code) {
  if (code == SQLITE_OK || code == SQLITE_DONE) return;
  std::fprintf(stderr, "SQLite: %s\n", sqlite3_errmsg(db));
  std::exit(2);
}

void executer(sqlite3* db, const std::string& sql) {
  verifier(db, sqlite3_exec(db, sql.c_str(), nullptr, nullptr, nullptr));
}

void lier(sqlite3_stmt* requete, int i, const std::string& texte) {
  sqlite3_bind_text(requete, i, texte.data(), static_cast<int>(texte.size()), SQLITE_TRANSIENT);
}

void remplir(sqlite3* db, const Base& base, const TableColonnes& table) {
  std::string places = "?";
  for (std::size_t i = 0; i <= table.colonnes.size(); ++i) places += ",?";
  sqlite3_stmt* ajout = nullptr;
  const std::string sql = std::string("INSERT INTO ") + table.fichier + " VALUES(" + places + ")";
  verifier(db, sqlite3_prepare_v2(db, sql.c_str(), -1, &ajout, nullptr));
  base.stockage->Scan(table.fichier, data::KeyRange::Tout(),
                      [&](std::string_view cle, std::string_view texte) {
                        const data::CItem item(texte);
                        int i = 1;
                        lier(ajout, i, std::string(cle));
                        for (const Colonne& colonne : table.colonnes) {
                          lier(ajout, ++i, colonne.valeur(cle, item));
                        }
                        std::string json;
                        if (table.json) base::ecrireItem(json, texte);
                        lier(ajout, ++i, json);
                        verifier(db, sqlite3_step(ajout));
                        sqlite3_reset(ajout);
                        return true;
                      });
  sqlite3_finalize(ajout);
}

void creer(const std::string& chemin, const Base& base, const TableColonnes& table) {
  std::fprintf(stderr, "%s...\n", chemin.c_str());
  const std::string enCours = chemin + ".encours";
  std::filesystem::remove(enCours);
  sqlite3* db = nullptr;
  verifier(db, sqlite3_open(enCours.c_str(), &db));
  std::string colonnes = "cle TEXT PRIMARY KEY";
  for (const Colonne& colonne : table.colonnes)
    colonnes += std::string(",") + colonne.nom + " TEXT";
  executer(db, std::string("PRAGMA page_size=8192; BEGIN; CREATE TABLE ") + table.fichier + "(" +
                   colonnes + ",item TEXT) WITHOUT ROWID");
  remplir(db, base, table);
  for (const char* nom : table.cherchees) {
    executer(db, std::string("CREATE INDEX par_") + nom + " ON " + table.fichier + "(" + nom + ")");
  }
  executer(db, "COMMIT; ANALYZE; PRAGMA journal_mode=WAL");
  sqlite3_close(db);
  std::filesystem::rename(enCours, chemin);
}

}  // namespace

Colonnes::Colonnes(const Base& base, const TableColonnes& table, const std::string& question) {
  const std::string chemin = base.chemin + "." + table.fichier;
  if (!std::filesystem::exists(chemin)) creer(chemin, base, table);
  verifier(db_, sqlite3_open_v2(chemin.c_str(), &db_, SQLITE_OPEN_READWRITE, nullptr));
  executer(db_, "PRAGMA cache_size=-16384");
  verifier(db_, sqlite3_prepare_v2(db_, question.c_str(), -1, &question_, nullptr));
}

Colonnes::~Colonnes() {
  sqlite3_finalize(question_);
  sqlite3_close(db_);
}

int Colonnes::demander(const std::vector<std::string>& valeurs) {
  for (std::size_t i = 0; i < valeurs.size(); ++i) {
    sqlite3_bind_text(question_, static_cast<int>(i) + 1, valeurs[i].data(),
                      static_cast<int>(valeurs[i].size()), SQLITE_STATIC);
  }
  int rangees = 0;
  int code = SQLITE_ROW;
  for (; (code = sqlite3_step(question_)) == SQLITE_ROW; ++rangees) {
    for (int i = 0; i < sqlite3_column_count(question_); ++i) {
      benchmark::DoNotOptimize(sqlite3_column_text(question_, i));
    }
  }
  verifier(db_, code);
  sqlite3_reset(question_);
  return rangees;
}

}  // namespace bench
