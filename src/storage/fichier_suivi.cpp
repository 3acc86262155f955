#include "storage/fichier_suivi.h"

#include <sys/stat.h>

#include <cerrno>
#include <utility>

namespace storage {

std::optional<FichierSuivi::Identite> FichierSuivi::Lire(const std::string& chemin, int& absente) {
  struct stat fiche {};
  absente = stat(chemin.c_str(), &fiche) == 0 ? 0 : errno;
  if (absente != 0) return std::nullopt;
  return Identite{fiche.st_dev, fiche.st_ino};
}

FichierSuivi::FichierSuivi(std::string chemin) : chemin_(std::move(chemin)) {
  int absente = 0;
  identite_ = Lire(chemin_, absente);
}

FichierSuivi::Etat FichierSuivi::Regarder() const {
  int absente = 0;
  const auto maintenant = Lire(chemin_, absente);
  if (absente == ENOENT || absente == ENOTDIR) return Etat::Absent;
  if (absente != 0) return Etat::Inaccessible;
  return maintenant == identite_ ? Etat::EnPlace : Etat::Remplace;
}

}  // namespace storage
