#include "storage/sqlite_schema.h"

#include <fcntl.h>
#include <unistd.h>

#include <array>
#include <cerrno>
#include <filesystem>

#include "storage/index_sqlite.h"
#include "storage/reseau.h"
#include "storage/sqlite_journal.h"
#include "storage/sqlite_pages.h"

namespace storage {

namespace {

namespace fs = std::filesystem;
using data::NumeroErreur;

static_assert(kVersion == kVersionIndex);

constexpr Acte kOuverture{"Ouverture de"};
constexpr Acte kCreation{"Création de"};
constexpr int kModes = SQLITE_OPEN_NOMUTEX | SQLITE_OPEN_EXRESCODE;

constexpr const char* kTables = R"(
  CREATE TABLE article(
    fichier TEXT NOT NULL, cle TEXT NOT NULL, texte TEXT NOT NULL, controle INTEGER NOT NULL,
    PRIMARY KEY(fichier, cle)) WITHOUT ROWID;
  CREATE TABLE ancien(
    fichier TEXT NOT NULL, cle TEXT NOT NULL, numero INTEGER NOT NULL, texte TEXT NOT NULL,
    horodatage TEXT NOT NULL, utilisateur TEXT NOT NULL, supprime INTEGER NOT NULL,
    controle INTEGER NOT NULL,
    PRIMARY KEY(fichier, cle, numero)) WITHOUT ROWID;)";

// Of every connection. The log is cut back to 64 MB after a block that made it grow; the cache is
// 16 MB.
constexpr const char* kReglages = R"(
  PRAGMA synchronous = FULL;
  PRAGMA journal_size_limit = 67108864;
  PRAGMA cache_size = -16384;
  PRAGMA cell_size_check = ON;
  PRAGMA trusted_schema = OFF;)";

// The header of a SQLite file: big-endian numbers at fixed places.
constexpr int kOctetsEntete = 100;
using Entete = std::array<unsigned char, kOctetsEntete>;
constexpr std::string_view kMagique{"SQLite format 3\0", 16};
constexpr std::size_t kLieuTaillePage = 16;  // two bytes
constexpr std::size_t kLieuReserve = 20;     // one byte
constexpr std::size_t kLieuVersion = 60;     // four bytes
constexpr std::size_t kLieuApplication = 68;

std::int64_t nombre(const Entete& entete, std::size_t lieu, std::size_t octets) {
  std::int64_t n = 0;
  for (std::size_t i = 0; i < octets; ++i) n = n * 256 + entete[lieu + i];
  return n;
}

[[noreturn]] void refuser(NumeroErreur numero, const Connexion& connexion,
                          const std::string& suite) {
  throw erreur(numero, connexion.Chemin(), kOuverture, suite);
}

// What the path is, before SQLite is asked: it would call all of these "unable to open".
void verifierChemin(const std::string& chemin) {
  std::error_code code;
  const fs::file_status etat = fs::status(chemin, code);
  if (etat.type() == fs::file_type::not_found) {
    throw erreur(NumeroErreur::EntreeSortie, chemin, kOuverture,
                 "il n'y a pas de fichier à cet endroit. Vérifiez le chemin, ou créez le fichier "
                 "par la commande creer de contrat-base.");
  }
  if (etat.type() == fs::file_type::directory) {
    throw erreur(NumeroErreur::PasUneBase, chemin, kOuverture,
                 "c'est un dossier. Donnez le chemin d'un fichier de données.");
  }
  if (code || access(chemin.c_str(), R_OK) != 0) {
    throw erreur(NumeroErreur::EntreeSortie, chemin, kOuverture,
                 "vous n'avez pas le droit de lire ce fichier. Demandez-le à la personne qui gère "
                 "le poste.");
  }
  if (etat.type() != fs::file_type::regular) {
    throw erreur(NumeroErreur::PasUneBase, chemin, kOuverture,
                 "ce n'est pas un fichier de données. Vérifiez le chemin.");
  }
}

Entete lireEntete(const Connexion& connexion) {
  sqlite3_file* fichier = connexion.Fichier();
  sqlite3_int64 octets = 0;
  int code = fichier->pMethods->xFileSize(fichier, &octets);
  if (code == SQLITE_OK && octets == 0) {
    refuser(NumeroErreur::PasUneBase, connexion,
            "le fichier est vide. Si sa création a été interrompue, supprimez-le et créez-le de "
            "nouveau ; sinon, remettez la dernière sauvegarde par la commande restaurer de "
            "contrat-base.");
  }
  if (code == SQLITE_OK && octets < kOctetsEntete) {
    refuser(NumeroErreur::PasUneBase, connexion,
            "ce n'est pas un fichier de données. Vérifiez le chemin.");
  }
  Entete entete{};
  if (code == SQLITE_OK) {
    code = fichier->pMethods->xRead(fichier, entete.data(), kOctetsEntete, 0);
  }
  if (code != SQLITE_OK) connexion.Echouer(code, kOuverture);
  return entete;
}

void verifierVersion(const Connexion& connexion, std::int64_t version) {
  if (version == kVersion || version == kVersionSansIndex) return;
  const std::string versions = "le fichier est de la version " + std::to_string(version) +
                               ", ce programme lit la version " + std::to_string(kVersion) + ". ";
  refuser(
      NumeroErreur::VersionInconnue, connexion,
      versions + (version > kVersion ? "Installez la dernière version du programme."
                                     : "Exportez ce fichier avec le programme qui l'a écrit, puis "
                                       "importez-le dans un fichier neuf."));
}

// Before SQLite reads a page: what is no data file of ours is told from what is a damaged one.
void verifierEntete(const Connexion& connexion) {
  const Entete entete = lireEntete(connexion);
  if (!std::equal(kMagique.begin(), kMagique.end(), entete.begin(),
                  [](char a, unsigned char b) { return static_cast<unsigned char>(a) == b; })) {
    refuser(NumeroErreur::PasUneBase, connexion,
            "ce n'est pas un fichier de données. Vérifiez le chemin.");
  }
  if (nombre(entete, kLieuApplication, 4) != kApplication) {
    refuser(NumeroErreur::PasUneBase, connexion,
            "c'est le fichier d'un autre programme. Vérifiez le chemin.");
  }
  verifierVersion(connexion, nombre(entete, kLieuVersion, 4));
  if (nombre(entete, kLieuTaillePage, 2) != kOctetsPage ||
      nombre(entete, kLieuReserve, 1) != kOctetsSceau) {
    connexion.Echouer(SQLITE_CORRUPT, kOuverture);
  }
}

// After SQLite has undone or redone what a crash left: a creation that never ended is gone now.
void verifierContenu(Connexion& connexion) {
  if (connexion.Nombre("SELECT count(*) FROM sqlite_schema WHERE type = 'table' AND name IN "
                       "('article', 'ancien')",
                       kOuverture) != 2) {
    refuser(NumeroErreur::PasUneBase, connexion,
            "il lui manque les tables d'un fichier de données. Vérifiez le chemin, ou remettez "
            "la dernière sauvegarde par la commande restaurer de contrat-base.");
  }
  verifierVersion(connexion, connexion.Nombre("PRAGMA user_version", kOuverture));
}

void passerAuJournal(Connexion& connexion, const Acte& acte) {
  if (connexion.Texte("PRAGMA journal_mode = WAL", acte) == "wal") return;
  throw erreur(NumeroErreur::EntreeSortie, connexion.Chemin(), acte,
               "le dossier ne permet pas de tenir le journal des écritures à côté du fichier. "
               "Placez le fichier sur un disque du poste ou du serveur.");
}

void regler(Connexion& connexion, int attenteMs, const Acte& acte) {
  sqlite3_busy_timeout(connexion.Db(), attenteMs);
  connexion.Executer(kReglages, acte);
}

// Absolute, so that no name has a meaning of its own to SQLite (":memory:", "file:...").
std::string cibleDe(const std::string& chemin) {
  std::error_code code;
  const fs::path absolu = fs::absolute(chemin, code);
  return code ? "./" + chemin : absolu.string();
}

// The address of a file with a parameter of its opening.
std::string cibleAvec(const std::string& chemin, const char* parametre) {
  constexpr char kHexa[] = "0123456789ABCDEF";
  std::string adresse = "file:";
  for (const char c : cibleDe(chemin)) {
    const auto octet = static_cast<unsigned char>(c);
    const bool simple = (octet >= '0' && octet <= '9') || (octet >= 'A' && octet <= 'Z') ||
                        (octet >= 'a' && octet <= 'z') || c == '/' || c == '.' || c == '-';
    if (simple) {
      adresse += c;
    } else {
      adresse.append("%").append(1, kHexa[octet >> 4]).append(1, kHexa[octet & 0xF]);
    }
  }
  return adresse.append("?").append(parametre);
}

std::unique_ptr<Connexion> enPartage(const std::string& chemin, int attenteMs) {
  auto connexion =
      std::make_unique<Connexion>(cibleDe(chemin), chemin, kModes | SQLITE_OPEN_READWRITE);
  verifierEntete(*connexion);
  ecarterJournalEtranger(*connexion, attenteMs);
  regler(*connexion, attenteMs, kOuverture);
  connexion->Executer("PRAGMA query_only = ON", kOuverture);
  verifierContenu(*connexion);
  return connexion;
}

std::unique_ptr<Connexion> sansTrace(const std::string& chemin, const char* parametre,
                                     const Instantane& instantane) {
  auto connexion = std::make_unique<Connexion>(cibleAvec(chemin, parametre), chemin,
                                               kModes | SQLITE_OPEN_READONLY | SQLITE_OPEN_URI);
  connexion->Figer(instantane);
  verifierEntete(*connexion);
  regler(*connexion, 0, kOuverture);
  return connexion;
}

// Without a log, or with one that is not its own, the file is all there is to read.
std::unique_ptr<Connexion> enLecture(const std::string& chemin) {
  constexpr const char* kSeul = "immutable=1";
  const std::string journal =
      Connexion(cibleDe(chemin), chemin, kModes | SQLITE_OPEN_READONLY).Journal();
  const Instantane instantane(chemin, journal);
  const bool avecJournal = selsDuJournal(journal).has_value();
  auto connexion = sansTrace(chemin, avecJournal ? "prive=1" : kSeul, instantane);
  if (avecJournal && journalEtranger(*connexion)) {
    connexion = sansTrace(chemin, kSeul, instantane);
    connexion->Avertir("Le journal trouvé à côté de « " + chemin +
                       " » est celui d'un autre fichier, que celui-ci a remplacé : il n'est pas "
                       "lu.");
  }
  verifierContenu(*connexion);
  connexion->ExigerTenue(kOuverture);
  return connexion;
}

bool inscriptible(const std::string& chemin) {
  return access(chemin.c_str(), W_OK) == 0 || errno == ENOENT;
}

bool dossierInscriptible(const std::string& chemin) {
  return inscriptible(fs::path(cibleDe(chemin)).parent_path().string());
}

// May write the file and all that SQLite puts beside it.
bool peutPartager(const std::string& chemin) {
  return inscriptible(chemin) && dossierInscriptible(chemin) && inscriptible(chemin + "-wal") &&
         inscriptible(chemin + "-shm");
}

// Makes the empty file, or refuses; closed before SQLite opens it.
void reserverChemin(const std::string& chemin) {
  const int descripteur = open(chemin.c_str(), O_WRONLY | O_CREAT | O_EXCL | O_CLOEXEC, 0666);
  if (descripteur >= 0) {
    close(descripteur);
    return;
  }
  switch (errno) {
    case EEXIST:
    case EISDIR:
      throw erreur(NumeroErreur::EntreeSortie, chemin, kCreation,
                   "il y a déjà un fichier ou un dossier de ce nom. Choisissez un autre nom.");
    case EACCES:
    case EPERM:
    case EROFS:
      throw erreur(NumeroErreur::LectureSeule, chemin, kCreation,
                   "vous n'avez pas le droit d'écrire dans ce dossier. Choisissez un autre "
                   "dossier.");
    case ENOSPC:
    case EDQUOT:
      throw erreurSqlite(nullptr, SQLITE_FULL, chemin, kCreation);
    default:
      throw erreur(NumeroErreur::EntreeSortie, chemin, kCreation,
                   "le dossier n'existe pas ou ne peut pas être ouvert. Vérifiez le chemin.");
  }
}

// Of our page size, with room for the seals.
std::unique_ptr<Connexion> enPages(const std::string& chemin, const std::string& nom,
                                   int attenteMs) {
  auto connexion =
      std::make_unique<Connexion>(cibleDe(chemin), nom, kModes | SQLITE_OPEN_READWRITE);
  connexion->Executer(("PRAGMA page_size = " + std::to_string(kOctetsPage)).c_str(), kCreation);
  int reserve = kOctetsSceau;
  sqlite3_file_control(connexion->Db(), "main", SQLITE_FCNTL_RESERVE_BYTES, &reserve);
  regler(*connexion, attenteMs, kCreation);
  return connexion;
}

std::unique_ptr<Connexion> remplirNouveau(const std::string& chemin, int attenteMs) {
  auto connexion = enPages(chemin, chemin, attenteMs);
  const std::string tables =
      "PRAGMA auto_vacuum = NONE; BEGIN IMMEDIATE; PRAGMA application_id = " +
      std::to_string(kApplication) + "; PRAGMA user_version = " + std::to_string(kVersion) + ";" +
      kTables + sqlTablesIndex() + " COMMIT;";
  connexion->Executer(tables.c_str(), kCreation);
  const int marque = poserMarque(connexion->Fichier(), marqueNeuve());
  if (marque != SQLITE_OK) connexion->Echouer(marque, kCreation);
  passerAuJournal(*connexion, kCreation);
  verifierEntete(*connexion);
  return connexion;
}

}  // namespace

std::unique_ptr<Connexion> ouvrirFichier(const std::string& chemin, const SqliteOptions& options) {
  verifierChemin(chemin);
  if (!options.reseauAdmis) refuserReseau(chemin);
  auto connexion =
      std::make_unique<Connexion>(cibleDe(chemin), chemin, kModes | SQLITE_OPEN_READWRITE);
  verifierEntete(*connexion);
  if (sqlite3_db_readonly(connexion->Db(), "main") != 0 || !dossierInscriptible(chemin)) {
    connexion->Echouer(SQLITE_READONLY, kOuverture);
  }
  ecarterJournalEtranger(*connexion, options.attenteMs);
  regler(*connexion, options.attenteMs, kOuverture);
  passerAuJournal(*connexion, kOuverture);
  verifierContenu(*connexion);
  return connexion;
}

std::unique_ptr<Connexion> ouvrirFichierEnLecture(const std::string& chemin,
                                                  const SqliteOptions& options) {
  verifierChemin(chemin);
  if (!options.reseauAdmis) refuserReseau(chemin);
  if (peutPartager(chemin)) {
    try {
      return enPartage(chemin, options.attenteMs);
    } catch (const data::StoreError& refus) {
      // What SQLite must put beside the file finds no room.
      if (refus.Numero() != NumeroErreur::DisquePlein &&
          refus.Numero() != NumeroErreur::EntreeSortie) {
        throw;
      }
    }
    oterVoisinsVides(Connexion(cibleDe(chemin), chemin, kModes | SQLITE_OPEN_READWRITE));
  }
  return enLecture(chemin);
}

std::unique_ptr<Connexion> creerFichier(const std::string& chemin, const SqliteOptions& options) {
  if (!options.reseauAdmis) refuserReseau(chemin);
  reserverChemin(chemin);
  try {
    return remplirNouveau(chemin, options.attenteMs);
  } catch (...) {
    for (const char* suffixe : {"", "-journal", "-wal", "-shm"}) {
      unlink((chemin + suffixe).c_str());
    }
    throw;
  }
}

std::unique_ptr<Connexion> creerVide(const std::string& chemin, const std::string& nom) {
  reserverChemin(chemin);
  return enPages(chemin, nom, 0);
}

std::unique_ptr<Connexion> pourRemplacer(const std::string& chemin) {
  auto connexion =
      std::make_unique<Connexion>(cibleDe(chemin), chemin, kModes | SQLITE_OPEN_READWRITE);
  if (sqlite3_db_readonly(connexion->Db(), "main") == 1 || !dossierInscriptible(chemin)) {
    connexion->Echouer(SQLITE_READONLY, {"Restauration de"});
  }
  return connexion;
}

}  // namespace storage
