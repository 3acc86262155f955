#pragma once
// The event of the monthly declaration, which a contract's end and its cancellation call for. An
// event that the declaration side has not sent yet (its first state is empty) is withdrawn when the
// end of the contract no longer has to be declared.

#include <string>

#include "session/dossier.h"

namespace editor {

// For `contrat` as it is about to be stored under `cle`; private employers declare elsewhere.
void Maj_EvenementDSN(const session::Dossier& dossier, const std::string& cle,
                      const data::CItem& contrat);

}  // namespace editor
