#pragma once
// What saving a contract is about to read, told to a store across a line so that it comes back in
// few trips. On a store of this machine nothing is done.

#include <string>
#include <vector>

#include "data/storage.h"
#include "rules/planning.h"

namespace session {
struct Dossier;
}

namespace editor {

class Frm_ElementsContrat;

// Before the checks and guards: the carer's contracts and planning, and what the block reads that
// stores the contract when they let it pass. What they have seen belongs to it.
void AnnoncerGardes(Frm_ElementsContrat& editeur, data::Route& route);
// In the block that stores a new contract, or one on file: what is not known yet.
void AnnoncerCreation(const session::Dossier& dossier, data::Route& route);
void AnnoncerModification(const session::Dossier& dossier, data::Route& route);
// Once the contract of that key stands: what is marked, read back and indexed.
// In its block, and behind it what the user's answer to a message has made forgotten.
void AnnoncerSuite(const session::Dossier& dossier, const std::string& cle, data::Route& route);
void RelireSuite(const session::Dossier& dossier, data::Route& route);

// What the report of a shortened contract names.
void AnnoncerIncidences(const std::vector<rules::Incidence>& incidences, data::Route& route);
// Before the deletion is asked about, and once it is confirmed: its guards and its block.
void AnnoncerSuppression(Frm_ElementsContrat& editeur, data::Route& route);
void AnnoncerSupprimee(Frm_ElementsContrat& editeur, data::Route& route);
// What the hiring declaration shows.
void AnnoncerDeclaration(const session::Dossier& dossier, data::Route& route);

}  // namespace editor
