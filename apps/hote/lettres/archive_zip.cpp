#include "lettres/archive_zip.h"

#include <algorithm>
#include <memory>

#include "lettres/libzip.h"

namespace hote {

namespace {

// A letter with a few pictures is far below.
constexpr zip_uint64_t TailleMax = 64ULL * 1024 * 1024;

struct FermerArchive {
  void operator()(zip_t* archive) const { libzip().discard(archive); }
};
struct FermerEntree {
  void operator()(zip_file_t* entree) const { libzip().fclose(entree); }
};
struct FermerSource {
  void operator()(zip_source_t* source) const { libzip().source_free(source); }
};
using Archive = std::unique_ptr<zip_t, FermerArchive>;
using Source = std::unique_ptr<zip_source_t, FermerSource>;

[[noreturn]] void refuser(const char* raison) {
  throw ArchiveIllisible(raison);
}

constexpr const char* PasUnDocument = "ce n'est pas un document de traitement de texte";
constexpr const char* Abime = "le document est abîmé";
constexpr const char* TropGrand = "le document est trop grand";
constexpr const char* Inecrit = "le document ne peut pas être composé";

// An archive on that source; the source lives as long as its owner.
Archive ouvrir(zip_source_t& source, int mode, const char* echec) {
  zip_error_t erreur;
  libzip().error_init(&erreur);
  libzip().source_keep(&source);
  Archive archive(libzip().open_from_source(&source, mode, &erreur));
  libzip().error_fini(&erreur);
  if (archive == nullptr) {
    libzip().source_free(&source);
    refuser(echec);
  }
  return archive;
}

QByteArray lireEntree(zip_t& archive, zip_uint64_t rang, zip_uint64_t taille) {
  QByteArray contenu(static_cast<qsizetype>(taille), '\0');
  const std::unique_ptr<zip_file_t, FermerEntree> entree(libzip().fopen_index(&archive, rang, 0));
  if (entree == nullptr) refuser(Abime);
  if (libzip().fread(entree.get(), contenu.data(), taille) != static_cast<zip_int64_t>(taille)) {
    refuser(Abime);
  }
  return contenu;
}

}  // namespace

ArchiveZip::ArchiveZip(const QByteArray& octets) {
  const Source source(libzip().source_buffer_create(
      octets.constData(), static_cast<zip_uint64_t>(octets.size()), 0, nullptr));
  if (source == nullptr) refuser(Abime);
  const Archive archive = ouvrir(*source, ZIP_RDONLY, PasUnDocument);
  const zip_int64_t nombre = libzip().get_num_entries(archive.get(), 0);
  zip_uint64_t total = 0;
  for (zip_uint64_t i = 0; i < static_cast<zip_uint64_t>(nombre); ++i) {
    zip_stat_t etat;
    if (libzip().stat_index(archive.get(), i, 0, &etat) != 0) refuser(Abime);
    if (etat.size > TailleMax || (total += etat.size) > TailleMax) refuser(TropGrand);
    entrees_.push_back({etat.name, lireEntree(*archive, i, etat.size)});
  }
}

QByteArray* ArchiveZip::Trouver(const QByteArray& nom) {
  const auto trouvee = std::find_if(entrees_.begin(), entrees_.end(),
                                    [&](const Entree& entree) { return entree.nom == nom; });
  return trouvee == entrees_.end() ? nullptr : &trouvee->contenu;
}

void ArchiveZip::Ajouter(const QByteArray& nom, const QByteArray& contenu) {
  entrees_.push_back({nom, contenu});
}

QByteArray ArchiveZip::Octets() const {
  const Source source(libzip().source_buffer_create(nullptr, 0, 0, nullptr));
  if (source == nullptr) refuser(Inecrit);
  Archive archive = ouvrir(*source, ZIP_TRUNCATE, Inecrit);
  for (const Entree& entree : entrees_) {
    zip_source_t* const contenu =
        libzip().source_buffer(archive.get(), entree.contenu.constData(),
                               static_cast<zip_uint64_t>(entree.contenu.size()), 0);
    const zip_int64_t rang =
        libzip().file_add(archive.get(), entree.nom.constData(), contenu, ZIP_FL_ENC_UTF_8);
    if (rang < 0) {
      libzip().source_free(contenu);
      refuser(Inecrit);
    }
    if (rang == 0) libzip().set_file_compression(archive.get(), 0, ZIP_CM_STORE, 0);
  }
  if (libzip().close(archive.get()) != 0) refuser(Inecrit);
  static_cast<void>(archive.release());
  zip_stat_t etat;
  if (libzip().source_stat(source.get(), &etat) != 0 || libzip().source_open(source.get()) != 0) {
    refuser(Inecrit);
  }
  QByteArray octets(static_cast<qsizetype>(etat.size), '\0');
  const zip_int64_t lus = libzip().source_read(source.get(), octets.data(), etat.size);
  libzip().source_close(source.get());
  if (lus != octets.size()) refuser(Inecrit);
  return octets;
}

}  // namespace hote
