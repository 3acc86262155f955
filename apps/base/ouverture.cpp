#include "base/ouverture.h"

#include "base/progres.h"

namespace base {

storage::SqliteOptions optionsStockage(const Arguments& arguments) {
  storage::SqliteOptions options;
  options.reseauAdmis = arguments.Donne("--meme-en-reseau");
  return options;
}

Base::Base(Contexte& contexte, const Arguments& arguments, Acces acces) {
  const std::string chemin = arguments.Texte("BASE");
  storage::SqliteOptions options = optionsStockage(arguments);
  if (acces == Acces::Lecture) {
    stockage_ = storage::SqliteStorage::OuvrirEnLecture(chemin, poste_, options);
  } else {
    Progres progres(contexte.erreurs, contexte.terminal, "Index, articles lus");
    options.avanceIndex = [&](long lus) { progres.Avance(lus); };
    stockage_ = storage::SqliteStorage::Ouvrir(chemin, poste_, options);
  }
  if (!stockage_->Avis().empty()) contexte.erreurs << stockage_->Avis() << '\n';
}

}  // namespace base
