#include "storage/ouvrir.h"

#include "storage/adresse.h"
#include "storage/postgres.h"
#include "storage/sqlite.h"

namespace storage {

namespace {

SqliteOptions pourFichier(const OptionsOuverture& options) {
  return {options.attenteMs, 0, options.reseauAdmis, options.avanceIndex};
}

PostgresOptions pourServeur(const OptionsOuverture& options) {
  return {options.attenteMs, options.avanceIndex};
}

}  // namespace

std::unique_ptr<Magasin> ouvrir(const std::string& base, const data::Poste& poste,
                                const OptionsOuverture& options) {
  if (estAdresseServeur(base)) {
    return options.lecture ? PostgresStorage::OuvrirEnLecture(base, poste, pourServeur(options))
                           : PostgresStorage::Ouvrir(base, poste, pourServeur(options));
  }
  return options.lecture ? SqliteStorage::OuvrirEnLecture(base, poste, pourFichier(options))
                         : SqliteStorage::Ouvrir(base, poste, pourFichier(options));
}

std::unique_ptr<Magasin> creer(const std::string& base, const data::Poste& poste,
                               const OptionsOuverture& options) {
  if (estAdresseServeur(base)) return PostgresStorage::Creer(base, poste, pourServeur(options));
  return SqliteStorage::Creer(base, poste, pourFichier(options));
}

}  // namespace storage
