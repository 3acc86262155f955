#include "storage/sqlite_connexion.h"

#include "storage/sqlite_pages.h"

namespace storage {

Connexion::Connexion(const std::string& cible, std::string chemin, int modes)
    : chemin_(std::move(chemin)) {
  const char* vfs = nomVfsPages();
  const int code = vfs == nullptr ? SQLITE_ERROR : sqlite3_open_v2(cible.c_str(), &db_, modes, vfs);
  if (code == SQLITE_OK) {
    sqlite3_extended_result_codes(db_, 1);
    return;
  }
  const data::StoreError refus = erreurSqlite(db_, code, chemin_, {"Ouverture de"});
  sqlite3_close(db_);
  throw refus;
}

// A close by itself leaves the log out of a file that was moved meanwhile, and the file would be
// opened under its new name without what was written last. What cannot be copied stays in the log.
Connexion::~Connexion() {
  if (!laisserJournal_ && !instantane_) {
    sqlite3_wal_checkpoint_v2(db_, nullptr, SQLITE_CHECKPOINT_PASSIVE, nullptr, nullptr);
  }
  sqlite3_close(db_);
}

void Connexion::LaisserJournal() {
  laisserJournal_ = true;
  sqlite3_db_config(db_, SQLITE_DBCONFIG_NO_CKPT_ON_CLOSE, 1, nullptr);
}

std::string Connexion::Journal() const {
  return sqlite3_filename_wal(sqlite3_db_filename(db_, "main"));
}

void Connexion::ExigerTenue(const Acte& acte) const {
  if (!instantane_ || instantane_->Tient()) return;
  throw erreur(data::NumeroErreur::Occupe, chemin_, acte,
               "un autre programme a changé le fichier pendant cette lecture. Recommencez.");
}

// What a reader without locks finds damaged may only have changed under it.
void Connexion::Echouer(int code, const Acte& acte) const {
  const data::StoreError refus = erreurSqlite(db_, code, chemin_, acte);
  ExigerTenue(acte);
  throw refus;
}

sqlite3_file* Connexion::Fichier() const {
  sqlite3_file* fichier = nullptr;
  sqlite3_file_control(db_, "main", SQLITE_FCNTL_FILE_POINTER, &fichier);
  return fichier;
}

void Connexion::Executer(const char* sql, const Acte& acte) {
  const int code = sqlite3_exec(db_, sql, nullptr, nullptr, nullptr);
  if (code != SQLITE_OK) Echouer(code, acte);
}

std::int64_t Connexion::Nombre(const char* sql, const Acte& acte) {
  Requete requete(*this, sql, acte);
  return requete.Avancer(acte) ? requete.Nombre(0) : 0;
}

std::string Connexion::Texte(const char* sql, const Acte& acte) {
  Requete requete(*this, sql, acte);
  return requete.Avancer(acte) ? std::string(requete.Texte(0)) : std::string();
}

Requete::Requete(Connexion& connexion, const char* sql, const Acte& acte) : connexion_(connexion) {
  const int code =
      sqlite3_prepare_v3(connexion.Db(), sql, -1, SQLITE_PREPARE_PERSISTENT, &stmt_, nullptr);
  if (code != SQLITE_OK) connexion.Echouer(code, acte);
}

void Requete::Lier(int i, std::string_view texte) {
  // A null pointer would bind NULL, and an empty view may hold one.
  const char* octets = texte.data() == nullptr ? "" : texte.data();
  const int code = sqlite3_bind_text64(stmt_, i, octets, texte.size(), SQLITE_STATIC, SQLITE_UTF8);
  if (code != SQLITE_OK) connexion_.Echouer(code, {"Préparation d'une requête dans"});
}

void Requete::Lier(int i, std::int64_t nombre) {
  const int code = sqlite3_bind_int64(stmt_, i, nombre);
  if (code != SQLITE_OK) connexion_.Echouer(code, {"Préparation d'une requête dans"});
}

bool Requete::Avancer(const Acte& acte) {
  const int code = sqlite3_step(stmt_);
  if (code == SQLITE_ROW) return true;
  if (code != SQLITE_DONE) connexion_.Echouer(code, acte);
  return false;
}

void Requete::Executer(const Acte& acte) {
  const Usage usage(*this);
  Avancer(acte);
}

std::string_view Requete::Texte(int colonne) const {
  const auto* octets = reinterpret_cast<const char*>(sqlite3_column_text(stmt_, colonne));
  const int nombre = sqlite3_column_bytes(stmt_, colonne);
  if (octets == nullptr) return {};
  return {octets, static_cast<std::size_t>(nombre)};
}

}  // namespace storage
