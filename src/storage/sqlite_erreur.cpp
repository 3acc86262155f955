#include "storage/sqlite_erreur.h"

#include <sqlite3.h>

#include <cerrno>
#include <filesystem>
#include <system_error>

#include "storage/sqlite_pages.h"

namespace storage {

namespace {

using data::NumeroErreur;
using data::StoreError;

// Says nothing of the command verifier, which shows this text too.
constexpr std::string_view kRestaurer =
    "Arrêtez la saisie, fermez tous les programmes qui utilisent le fichier, et remettez la "
    "dernière sauvegarde par la commande restaurer de contrat-base.";

// Result codes by their low byte, unless the whole code has a row of its own.
struct Traduction {
  int code;
  NumeroErreur numero;
  std::string_view suite;
};
constexpr std::string_view kOccupe =
    "un autre programme garde le fichier occupé. Réessayez dans un instant.";
constexpr std::string_view kLectureSeule =
    "le fichier ou son dossier ne peut pas être modifié. Demandez le droit d'y écrire, ou "
    "copiez le fichier à un endroit où vous l'avez.";
constexpr std::string_view kPlein =
    "le disque est plein. Cette écriture n'est pas faite : libérez de la place, puis recommencez.";
constexpr std::string_view kTropGrand =
    "le fichier a atteint la taille que ce poste permet. Cette écriture n'est pas faite : demandez "
    "à la personne qui gère le poste de lever la limite, puis recommencez.";
constexpr std::string_view kEndommage = "le fichier de données est endommagé. ";
constexpr std::string_view kTronque =
    "le fichier de données est endommagé : il a été coupé court. ";
// Of our own, between SQLite's: a limit on the size of files.
constexpr int kCodeTropGrand = SQLITE_FULL | (0xFF << 8);
constexpr Traduction kTraductions[] = {
    {SQLITE_IOERR_DATA, NumeroErreur::Endommage, kEndommage},
    {SQLITE_IOERR_CORRUPTFS, NumeroErreur::Endommage, kEndommage},
    {SQLITE_IOERR_SHORT_READ, NumeroErreur::Endommage, kTronque},
    {SQLITE_CORRUPT, NumeroErreur::Endommage, kEndommage},
    {SQLITE_FORMAT, NumeroErreur::Endommage, kEndommage},
    {SQLITE_BUSY, NumeroErreur::Occupe, kOccupe},
    {SQLITE_LOCKED, NumeroErreur::Occupe, kOccupe},
    {SQLITE_READONLY, NumeroErreur::LectureSeule, kLectureSeule},
    {SQLITE_PERM, NumeroErreur::LectureSeule, kLectureSeule},
    {SQLITE_FULL, NumeroErreur::DisquePlein, kPlein},
    {kCodeTropGrand, NumeroErreur::DisquePlein, kTropGrand},
    {SQLITE_IOERR_WRITE, NumeroErreur::EntreeSortie,
     "le disque a refusé cette écriture, qui n'est pas faite. Vérifiez le disque et la connexion "
     "au "
     "dossier, puis recommencez."},
    {SQLITE_IOERR_FSYNC, NumeroErreur::EntreeSortie,
     "le disque n'a pas confirmé cette écriture, qui n'est pas faite. Vérifiez le disque et la "
     "connexion au dossier, puis recommencez."},
    {SQLITE_IOERR_READ, NumeroErreur::EntreeSortie,
     "le disque a refusé cette lecture. Vérifiez le disque et la connexion au dossier, puis "
     "recommencez."},
    {SQLITE_NOTADB, NumeroErreur::PasUneBase,
     "ce n'est pas un fichier de données. Vérifiez le chemin."},
    {SQLITE_TOOBIG, NumeroErreur::TexteRefuse,
     "le texte est trop long pour un article. Raccourcissez-le."},
    {SQLITE_CANTOPEN, NumeroErreur::EntreeSortie,
     "le fichier, ou le journal qui se tient à côté de lui, ne peut pas être ouvert. Vérifiez le "
     "chemin et les droits sur le dossier."},
    {SQLITE_NOMEM, NumeroErreur::EntreeSortie,
     "la mémoire manque. Fermez d'autres programmes, puis recommencez."},
};

const Traduction* traduction(int code) {
  for (const Traduction& ligne : kTraductions) {
    if (ligne.code == code) return &ligne;
  }
  return (code & 0xFF) == code ? nullptr : traduction(code & 0xFF);
}

// SQLite calls some failures of the shared memory or the log plain input/output errors.
int codePrecise(sqlite3* db, int code) {
  if ((code & 0xFF) != SQLITE_IOERR || db == nullptr) return code;
  switch (code == SQLITE_IOERR_WRITE ? refusDuSysteme() : sqlite3_system_errno(db)) {
    case ENOSPC:
    case EDQUOT:
      return SQLITE_FULL;
    case EFBIG:
      return kCodeTropGrand;
    case EROFS:
    case EACCES:
    case EPERM:
      return SQLITE_READONLY;
    default:
      return code;
  }
}

std::string suiteDe(sqlite3* db, int code, const std::string& chemin) {
  const Traduction* ligne = traduction(code);
  if (ligne == nullptr) {
    const char* detail = db == nullptr ? sqlite3_errstr(code) : sqlite3_errmsg(db);
    return std::string("le disque ou le fichier ne répond pas comme il faut (") + detail + ", " +
           std::to_string(code) +
           "). Vérifiez le disque et la connexion au dossier, puis recommencez.";
  }
  if (ligne->numero != NumeroErreur::Endommage) return std::string(ligne->suite);
  const std::int64_t page = db == nullptr ? 0 : derniereMauvaisePage(db);
  const std::string manque = finManquante(db, chemin);
  std::string suite(ligne->suite);
  if (page > 0) suite = "la page " + std::to_string(page) + " du fichier est endommagée. ";
  if (!manque.empty()) suite = manque + ". ";
  return suite.append(kRestaurer);
}

}  // namespace

std::string finManquante(sqlite3* db, const std::string& chemin) {
  std::error_code code;
  const auto journal = std::filesystem::file_size(chemin + "-wal", code);
  if (db == nullptr || (!code && journal > 0)) return {};
  const Tailles tailles = taillesFichier(db);
  if (tailles.trouvee >= tailles.attendue) return {};
  return "la fin du fichier manque : il a " + std::to_string(tailles.trouvee) +
         " octets au lieu de " + std::to_string(tailles.attendue);
}

StoreError erreurSqlite(sqlite3* db, int code, const std::string& chemin, const Acte& acte) {
  const int precise = codePrecise(db, code);
  const Traduction* ligne = traduction(precise);
  return erreur(ligne == nullptr ? NumeroErreur::EntreeSortie : ligne->numero, chemin, acte,
                suiteDe(db, precise, chemin));
}

StoreError erreurControle(const std::string& chemin, const Acte& acte) {
  return erreur(NumeroErreur::Endommage, chemin, acte,
                "l'article ne se relit pas tel qu'il a été écrit. " + std::string(kRestaurer));
}

}  // namespace storage
