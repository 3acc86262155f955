// `copier` and `restaurer`: backups.

#include "base/commandes.h"
#include "base/ouverture.h"
#include "storage/copie.h"

namespace base {

int copier(Contexte& contexte, const Arguments& arguments) {
  const std::string copie = arguments.Texte("COPIE");
  storage::copierFichier(arguments.Texte("BASE"), copie, optionsStockage(arguments));
  contexte.Ecrit(copie + " est une copie entière, relue.\n");
  return Fait;
}

int restaurer(Contexte& contexte, const Arguments& arguments) {
  const std::string base = arguments.Texte("BASE");
  const std::string copie = arguments.Texte("COPIE");
  const std::string ancien = storage::restaurerFichier(base, copie, optionsStockage(arguments));
  contexte.Ecrit(base + " a de nouveau le contenu de " + copie + ".\n");
  if (!ancien.empty()) contexte.Ecrit("Le fichier d'avant est gardé : " + ancien + "\n");
  return Fait;
}

}  // namespace base
