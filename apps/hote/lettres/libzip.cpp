#include "lettres/libzip.h"

#include <dlfcn.h>

#include <string>

#include "lettres/archive_zip.h"

namespace hote {

namespace {

[[noreturn]] void refuser(const char* raison) {
  throw ArchiveIllisible(
      std::string("ce poste n'a pas ce qu'il faut pour les documents de traitement de texte (") +
      raison + ")");
}

// One function of the library, of whatever type it is called by.
class Fonction {
 public:
  Fonction(void* bibliotheque, const char* nom) : adresse_(dlsym(bibliotheque, nom)) {
    if (adresse_ == nullptr) refuser(dlerror());
  }

  template <typename Type>
  operator Type() const {
    return reinterpret_cast<Type>(adresse_);
  }

 private:
  void* adresse_;
};

LibZip charger() {
  // LIBZIP_NOM has the number of its interface: another one has other functions.
  void* const bibliotheque = dlopen(LIBZIP_NOM, RTLD_NOW | RTLD_LOCAL);
  if (bibliotheque == nullptr) refuser(dlerror());
  const auto fonction = [&](const char* nom) { return Fonction(bibliotheque, nom); };
  return {.close = fonction("zip_close"),
          .discard = fonction("zip_discard"),
          .error_fini = fonction("zip_error_fini"),
          .error_init = fonction("zip_error_init"),
          .fclose = fonction("zip_fclose"),
          .file_add = fonction("zip_file_add"),
          .fopen_index = fonction("zip_fopen_index"),
          .fread = fonction("zip_fread"),
          .get_num_entries = fonction("zip_get_num_entries"),
          .open_from_source = fonction("zip_open_from_source"),
          .set_file_compression = fonction("zip_set_file_compression"),
          .source_buffer = fonction("zip_source_buffer"),
          .source_buffer_create = fonction("zip_source_buffer_create"),
          .source_close = fonction("zip_source_close"),
          .source_free = fonction("zip_source_free"),
          .source_keep = fonction("zip_source_keep"),
          .source_open = fonction("zip_source_open"),
          .source_read = fonction("zip_source_read"),
          .source_stat = fonction("zip_source_stat"),
          .stat_index = fonction("zip_stat_index")};
}

}  // namespace

const LibZip& libzip() {
  static const LibZip chargee = charger();
  return chargee;
}

}  // namespace hote
