#include "base/ouverture.h"

#include <optional>

#include "base/progres.h"

namespace base {

Base::Base(const Arguments& arguments, Acces acces, Contexte* contexte) {
  const std::string chemin = arguments.Texte("BASE");
  if (acces == Acces::Lecture) {
    stockage_ = storage::SqliteStorage::OuvrirEnLecture(chemin, poste_);
  } else {
    std::optional<Progres> progres;
    storage::SqliteOptions options;
    if (contexte != nullptr) {
      progres.emplace(contexte->erreurs, contexte->terminal, "Index, articles lus");
      options.avanceIndex = [&](long lus) { progres->Avance(lus); };
    }
    stockage_ = storage::SqliteStorage::Ouvrir(chemin, poste_, options);
  }
}

}  // namespace base
