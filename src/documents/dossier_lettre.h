#pragma once
// What a letter is made from: one contract, its parties and the code tables, read once. A record
// that does not stand is an empty item, and its fields are then empty.

#include <string>
#include <vector>

#include "data/citem.h"
#include "data/db.h"

namespace documents {

struct DossierLettre {
  // CONTRAT key, and the amendment's number, "" for the contract itself.
  std::string cle;
  std::string avenant;
  data::CItem contrat;
  // The legal entity, the place of work of its carers, and the private employer.
  data::CItem association, etablissement, aide, reference;
  data::CItem aidant;
  data::CItem convention, prevoyance;
  data::CItem natures, motifs, naturesVoie;
  // Names of the carers and other persons whom a fixed term replaces.
  std::vector<std::string> remplaces;

  long aujourdhui = 0;

  bool Particuliers() const;
  // The value of the amendment group that the letter is about: 1 for the contract as signed, 0 for
  // an amendment that the contract does not have.
  int Etat() const;
};

// As the records stand on file. A contract that does not stand is a StoreError.
DossierLettre lireDossierLettre(data::Db& db, const std::string& cle, const std::string& avenant,
                                long aujourdhui);

}  // namespace documents
