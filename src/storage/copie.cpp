#include "storage/copie.h"

#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>

#include <cerrno>
#include <cstdio>
#include <filesystem>
#include <memory>

#include "storage/sqlite_journal.h"
#include "storage/sqlite_marque.h"
#include "storage/sqlite_pages.h"
#include "storage/sqlite_schema.h"
#include "storage/sqlite_verifier.h"

namespace storage {

namespace {

namespace fs = std::filesystem;
using data::NumeroErreur;

constexpr Acte kCopie{"Copie vers"};
constexpr Acte kRestauration{"Restauration de"};

// The names in the folder of `chemin` are on the disk, too.
void fixerDossier(const std::string& chemin) {
  std::error_code code;
  const int dossier = open(fs::absolute(chemin, code).parent_path().c_str(), O_RDONLY | O_CLOEXEC);
  if (dossier < 0) return;
  fsync(dossier);
  close(dossier);
}

[[noreturn]] void echouerNom(const std::string& chemin, const Acte& acte) {
  const std::string raison = std::error_code(errno, std::generic_category()).message();
  throw erreur(NumeroErreur::EntreeSortie, chemin, acte,
               "le fichier ne peut pas prendre ce nom (" + raison +
                   "). Vérifiez le dossier et vos droits, puis recommencez.");
}

// The pages of `source` as they stand at one moment.
void copierPages(Connexion& source, Connexion& copie) {
  sqlite3_backup* const travail = sqlite3_backup_init(copie.Db(), "main", source.Db(), "main");
  if (travail == nullptr) copie.Echouer(sqlite3_errcode(copie.Db()), kCopie);
  int code = SQLITE_OK;
  constexpr int kEssais = 250;
  for (int essai = 0; essai < kEssais; ++essai) {
    code = sqlite3_backup_step(travail, -1);
    if (code != SQLITE_BUSY && code != SQLITE_LOCKED) break;
    sqlite3_sleep(20);
  }
  sqlite3_backup_finish(travail);
  if (code == SQLITE_DONE) return;
  // What went wrong is known to the side that it happened on.
  const bool lecture =
      sqlite3_errcode(copie.Db()) == SQLITE_OK || derniereMauvaisePage(source.Db()) > 0;
  if (lecture) source.Echouer(code, {"Lecture de"});
  copie.Echouer(code, kCopie);
}

void relire(const std::string& chemin, const std::string& nom, SqliteOptions options) {
  options.reseauAdmis = true;
  const auto copie = ouvrirFichier(chemin, options);
  verifierFichier(*copie,
                  [&](const Dommage& dommage) {
                    throw erreur(
                        NumeroErreur::Endommage, nom, kCopie,
                        "la copie ne se relit pas telle qu'elle a été écrite (" + dommage.message +
                            "). Contrôlez l'original par la commande verifier de contrat-base.");
                  },
                  {});
}

// A whole and sound copy under a name that is not yet the one wanted.
void preparer(const std::string& source, const std::string& partiel, const std::string& but,
              const SqliteOptions& options) {
  struct stat modele {};
  const bool connue = stat(source.c_str(), &modele) == 0;
  {
    const auto lue = ouvrirFichierEnLecture(source, options);
    const auto copie = creerVide(partiel, but);
    // What the file holds concerns the same readers wherever it stands.
    if (connue) chmod(partiel.c_str(), modele.st_mode & 0777U);
    copierPages(*lue, *copie);
    lue->ExigerTenue({"Lecture de"});
    const int code = poserMarque(copie->Fichier(), marqueNeuve());
    if (code != SQLITE_OK) copie->Echouer(code, kCopie);
  }
  relire(partiel, but, options);
}

std::string nomLibre(const std::string& base) {
  std::error_code code;
  std::string nom;
  for (int n = 1; nom.empty() || fs::exists(nom, code) || fs::exists(nom + "-wal", code); ++n) {
    nom = base + ".avant-restauration" + std::to_string(n);
  }
  return nom;
}

// The new file takes the name in one step. A log that is left there by a crash before the last step
// is another file's, and noticed as such.
void echanger(const std::string& partiel, const std::string& base, const std::string& ancien) {
  if (link(base.c_str(), ancien.c_str()) != 0) echouerNom(ancien, kRestauration);
  if (rename(partiel.c_str(), base.c_str()) != 0) {
    const int raison = errno;
    unlink(ancien.c_str());
    errno = raison;
    echouerNom(base, kRestauration);
  }
  std::error_code code;
  fs::rename(base + "-wal", ancien + "-wal", code);
  fs::remove(base + "-shm", code);
}

void prendreDroits(const std::string& partiel, const std::string& base) {
  struct stat modele {};
  if (stat(base.c_str(), &modele) != 0) return;
  chmod(partiel.c_str(), modele.st_mode & 0777U);
  // The owner for root alone, the group for its members; whoever restores keeps what cannot be.
  if (chown(partiel.c_str(), modele.st_uid, modele.st_gid) != 0 &&
      chown(partiel.c_str(), static_cast<uid_t>(-1), modele.st_gid) != 0) {
    return;
  }
}

}  // namespace

FichierEnChemin::FichierEnChemin(const std::string& but) : but_(but), nom_(but + ".partiel") {
  Oter();
}

void FichierEnChemin::Oter() const {
  for (const char* suffixe : {"", "-journal", "-wal", "-shm"}) unlink((nom_ + suffixe).c_str());
}

void FichierEnChemin::ExigerLibre() const {
  std::error_code code;
  if (!fs::exists(fs::symlink_status(but_, code))) return;
  throw erreur(NumeroErreur::EntreeSortie, but_, kCopie,
               "il y a déjà un fichier ou un dossier de ce nom. Choisissez un autre nom.");
}

void FichierEnChemin::Arriver() const {
  ExigerLibre();
  if (rename(nom_.c_str(), but_.c_str()) != 0) echouerNom(but_, kCopie);
  fixerDossier(but_);
}

void copierFichier(const std::string& source, const std::string& copie,
                   const SqliteOptions& options) {
  const FichierEnChemin partiel(copie);
  partiel.ExigerLibre();
  preparer(source, partiel.Nom(), copie, options);
  partiel.Arriver();
}

std::string restaurerFichier(const std::string& base, const std::string& copie,
                             const SqliteOptions& options) {
  SqliteOptions lointaine = options;
  lointaine.reseauAdmis = true;
  const FichierEnChemin chemin(base);
  const std::string& partiel = chemin.Nom();
  preparer(copie, partiel, base, lointaine);
  std::error_code code;
  if (!fs::exists(base, code)) {
    if (rename(partiel.c_str(), base.c_str()) != 0) echouerNom(base, kRestauration);
    fixerDossier(base);
    return {};
  }
  const auto present = pourRemplacer(base);
  present->LaisserJournal();
  const Exclusivite exclusivite(*present, options.attenteMs);
  if (!exclusivite.Tenue()) {
    throw erreur(NumeroErreur::Occupe, base, kRestauration,
                 "un programme l'a ouvert. Fermez tous les programmes qui l'utilisent, puis "
                 "recommencez.");
  }
  prendreDroits(partiel, base);
  std::string ancien = nomLibre(base);
  echanger(partiel, base, ancien);
  fixerDossier(base);
  return ancien;
}

}  // namespace storage
