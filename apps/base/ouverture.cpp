#include "base/ouverture.h"

namespace base {

Base::Base(const Arguments& arguments, Acces acces) {
  const std::string chemin = arguments.Texte("BASE");
  if (acces == Acces::Lecture) {
    stockage_ = storage::SqliteStorage::OuvrirEnLecture(chemin, poste_);
  } else {
    stockage_ = storage::SqliteStorage::Ouvrir(chemin, poste_);
  }
}

}  // namespace base
