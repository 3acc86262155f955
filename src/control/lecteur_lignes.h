#pragma once
// The rows of the list from the records: dates, type, the employer's name and the agreement.

#include <string>

#include "control/placement.h"
#include "session/session.h"

namespace control {

class LecteurLignes {
 public:
  explicit LecteurLignes(const session::Session& session) : session_(session) {}

  // An employer whose record cannot be found has the name of the one read before him.
  LigneContrat Lire(const data::CItem& contrat);

 private:
  void LireEmployeur(const data::CItem& contrat);

  const session::Session& session_;
  std::string employeur_;
};

}  // namespace control
