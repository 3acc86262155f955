#pragma once
// The commands of the data tool, one function each, called by executer() with arguments that are
// complete. Each comes back with an exit code, or throws an Echec or a StoreError.

#include "base/contexte.h"

namespace base {

// The file as a whole.
int creer(Contexte& contexte, const Arguments& arguments);
int fichiers(Contexte& contexte, const Arguments& arguments);
int verifierBase(Contexte& contexte, const Arguments& arguments);
int reparer(Contexte& contexte, const Arguments& arguments);
int demo(Contexte& contexte, const Arguments& arguments);
// Copies of it.
int copier(Contexte& contexte, const Arguments& arguments);
int restaurer(Contexte& contexte, const Arguments& arguments);
// JSON Lines.
int importer(Contexte& contexte, const Arguments& arguments);
int exporter(Contexte& contexte, const Arguments& arguments);
// One record.
int lire(Contexte& contexte, const Arguments& arguments);
int ecrire(Contexte& contexte, const Arguments& arguments);
int historique(Contexte& contexte, const Arguments& arguments);
int retablir(Contexte& contexte, const Arguments& arguments);
int supprimer(Contexte& contexte, const Arguments& arguments);
// What is not to be kept.
int oublier(Contexte& contexte, const Arguments& arguments);
// Queries.
int select(Contexte& contexte, const Arguments& arguments);
int echeances(Contexte& contexte, const Arguments& arguments);

}  // namespace base
