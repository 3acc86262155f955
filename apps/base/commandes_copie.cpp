// `copier` and `restaurer`: backups.

#include "base/commandes.h"
#include "base/ouverture.h"
#include "base/transfert.h"
#include "storage/adresse.h"
#include "storage/copie.h"

namespace base {

namespace {

storage::SqliteOptions pourFichier(const Arguments& arguments) {
  storage::SqliteOptions options;
  options.reseauAdmis = optionsStockage(arguments).reseauAdmis;
  return options;
}

}  // namespace

int copier(Contexte& contexte, const Arguments& arguments) {
  const std::string copie = arguments.Texte("COPIE");
  if (storage::estAdresseServeur(copie) || storage::estAdresseServeur(arguments.Texte("BASE"))) {
    return transferer(contexte, arguments);
  }
  storage::copierFichier(arguments.Texte("BASE"), copie, pourFichier(arguments));
  contexte.Ecrit(copie + " est une copie entière, relue.\n");
  return Fait;
}

int restaurer(Contexte& contexte, const Arguments& arguments) {
  const std::string base = arguments.Texte("BASE");
  const std::string copie = arguments.Texte("COPIE");
  for (const std::string& nom : {base, copie}) {
    if (!storage::estAdresseServeur(nom)) continue;
    throw Echec(MauvaisUsage,
                "restaurer ne vaut que pour des fichiers. Sur un serveur, remettez une sauvegarde "
                "par « copier », dans une base sans article.");
  }
  const std::string ancien = storage::restaurerFichier(base, copie, pourFichier(arguments));
  contexte.Ecrit(base + " a de nouveau le contenu de " + copie + ".\n");
  if (!ancien.empty()) contexte.Ecrit("Le fichier d'avant est gardé : " + ancien + "\n");
  return Fait;
}

}  // namespace base
