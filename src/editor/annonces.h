#pragma once
// What saving a contract is about to read, told to a store across a line so that it comes back in
// few trips. On a store of this machine nothing is done.

#include "data/storage.h"

namespace session {
struct Dossier;
}

namespace editor {

class Frm_ElementsContrat;

// Before the checks and guards: the carer's contracts and planning.
void AnnoncerGardes(Frm_ElementsContrat& editeur, data::Route& route);
// In the block that stores a new contract, or one on file.
void AnnoncerCreation(const session::Dossier& dossier, data::Route& route);
void AnnoncerModification(const session::Dossier& dossier, data::Route& route);
// After it: what is marked, read back and indexed.
void AnnoncerSuites(const session::Dossier& dossier, data::Route& route);

}  // namespace editor
