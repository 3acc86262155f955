// `reparer`: the indexes of a data file, made anew; and what `verifier` says of them.

#include "base/commandes.h"
#include "base/controle_index.h"
#include "base/ouverture.h"
#include "base/progres.h"
#include "storage/adresse.h"

namespace base {

int reparer(Contexte& contexte, const Arguments& arguments) {
  Base base(contexte, arguments, Acces::Ecriture);
  Progres progres(contexte.erreurs, contexte.terminal, "Index, articles lus");
  base.Magasin().RefaireIndex([&](long lus) { progres.Avance(lus); });
  progres.Efface();
  contexte.Ecrit("Les index de " + storage::sansMotDePasse(arguments.Texte("BASE")) +
                 " sont refaits.\n");
  return Fait;
}

void controlerIndex(Contexte& contexte, storage::Magasin& stockage, Progres& progres,
                    const Rapport& rapport) {
  const bool tenus = stockage.VerifierIndex(
      [&](const storage::Dommage& dommage) {
        rapport({dommage.fichier, dommage.cle, dommage.message});
      },
      [&](long lus) { progres.Avance(lus); });
  progres.Efface();
  if (tenus) return;
  contexte.erreurs << "Cette base n'a pas d'index : les questions lisent des fichiers entiers. "
                      "« reparer » les fait.\n";
}

}  // namespace base
