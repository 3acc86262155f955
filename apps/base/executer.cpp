#include "base/executer.h"

#include <exception>
#include <new>

#include "base/ligne_commande.h"
#include "data/store_error.h"

namespace base {
namespace {

Code codeDe(data::NumeroErreur numero) {
  switch (numero) {
    case data::NumeroErreur::NonTrouve:
      return Refuse;
    case data::NumeroErreur::Question:
    case data::NumeroErreur::TexteRefuse:
      return MauvaisUsage;
    default:
      return Panne;
  }
}

int commande(const std::vector<std::string>& args, Contexte& contexte) {
  const LigneLue ligne = lireLigneCommande(args, contexte.sortie);
  const int code = ligne.commande ? ligne.commande->action(contexte, ligne.arguments) : Fait;
  contexte.sortie.flush();
  contexte.Ecrit({});  // tells of a flush that failed
  return code;
}

}  // namespace

int executer(const std::vector<std::string>& args, std::istream& entree, std::ostream& sortie,
             std::ostream& erreurs, bool terminal) {
  Contexte contexte{entree, sortie, erreurs, terminal};
  try {
    return commande(args, contexte);
  } catch (const Echec& echec) {
    erreurs << echec.what() << '\n';
    return echec.CodeRetour();
  } catch (const data::StoreError& erreur) {
    erreurs << erreur.what() << '\n';
    return codeDe(erreur.Numero());
  } catch (const std::bad_alloc&) {
    erreurs << "La mémoire de ce poste ne suffit pas.\n";
    return Panne;
  } catch (const std::exception& erreur) {
    erreurs << "Erreur imprévue : " << erreur.what() << '\n';
    return Panne;
  }
}

}  // namespace base
