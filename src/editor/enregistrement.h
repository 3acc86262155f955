#pragma once
// Saving a contract: several files written in a fixed order, each write final. The order keeps the
// data usable when a later step fails; no check runs after the first write of a new contract.

#include <string>

#include "data/citem.h"

namespace editor {

class Frm_ElementsContrat;

class Enregistrement {
 public:
  explicit Enregistrement(Frm_ElementsContrat& editeur) : editeur_(editeur) {}

  // Brings the tabs into ItemContrat and stores it with its side records. False when a check
  // refused or the stored record is inconsistent: the refusal has been shown. A StoreError rises,
  // and saving again after it ends in the same records.
  bool Ecrire_Donnees();

  // The event of the monthly declaration, before a contract under `cle` is written.
  void Maj_EvenementDSN(const std::string& cle);
  // After a successful write: missions ended with the contract, the index of private employers,
  // and the index files of contracts.
  void Maj_Missions();
  void Maj_IndexCreation();

  // The contract number being written.
  std::string NumeroContrat;

 private:
  Frm_ElementsContrat& editeur_;
};

}  // namespace editor
