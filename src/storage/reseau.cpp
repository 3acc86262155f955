#include "storage/reseau.h"

#include <sys/stat.h>
#include <sys/sysmacros.h>

#include <algorithm>
#include <filesystem>
#include <fstream>
#include <sstream>
#include <string_view>

#include "storage/sqlite_erreur.h"

namespace storage {

namespace {

// Names of file systems as the table of mounts has them; more letters may follow ("nfs4").
constexpr std::string_view kReseaux[] = {
    "nfs",         "cifs",      "smb",       "9p",           "afs",        "ncpfs",
    "ceph",        "lustre",    "coda",      "gfs2",         "ocfs2",      "glusterfs",
    "vboxsf",      "vmhgfs",    "virtiofs",  "fuse.sshfs",   "fuse.davfs", "fuse.rclone",
    "fuse.smb",    "fuse.ceph", "fuse.gvfs", "fuse.gluster", "fuse.s3fs",  "fuse.curlftpfs",
    "fuse.vmhgfs", "davfs"};

bool peripherique(const std::string& chemin, std::string& numero) {
  struct stat fiche {};
  if (stat(chemin.c_str(), &fiche) != 0) {
    std::filesystem::path dossier = std::filesystem::path(chemin).parent_path();
    if (dossier.empty()) dossier = ".";
    if (stat(dossier.c_str(), &fiche) != 0) return false;
  }
  numero = std::to_string(major(fiche.st_dev)) + ":" + std::to_string(minor(fiche.st_dev));
  return true;
}

}  // namespace

std::string systemeReseau(const std::string& chemin, std::istream& montages) {
  std::string numero;
  if (!peripherique(chemin, numero)) return {};
  // "36 35 98:0 /mnt1 /mnt2 rw,noatime master:1 - ext3 /dev/root rw": the third word is the device,
  // the word behind the lone dash the kind.
  for (std::string ligne; std::getline(montages, ligne);) {
    std::istringstream mots(ligne);
    std::string mot;
    mots >> mot >> mot >> mot;
    if (mot != numero) continue;
    while (mots >> mot && mot != "-") {
    }
    mots >> mot;
    const bool reseau = std::any_of(std::begin(kReseaux), std::end(kReseaux),
                                    [&](std::string_view nom) { return mot.starts_with(nom); });
    if (reseau) return mot;
  }
  return {};
}

void refuserReseau(const std::string& chemin, std::istream& montages) {
  const std::string systeme = systemeReseau(chemin, montages);
  if (systeme.empty()) return;
  throw erreur(data::NumeroErreur::EntreeSortie, chemin, {"Ouverture de"},
               "le fichier est dans un dossier du réseau (" + systeme +
                   "), et un fichier de données ne sert qu'aux programmes d'un seul poste : deux "
                   "postes y perdraient des écritures. Placez-le sur un disque de ce poste ; pour "
                   "travailler à plusieurs postes, il faut une base tenue par un serveur. Si vous "
                   "êtes sûr qu'un seul poste l'ouvre, l'option --meme-en-reseau l'admet.");
}

void refuserReseau(const std::string& chemin) {
  std::ifstream montages("/proc/self/mountinfo");
  refuserReseau(chemin, montages);
}

}  // namespace storage
