#pragma once
// The check of a data file, record by record:
//
//   - every record reads back, in its canonical form, without a character that no text may hold;
//   - keys have the shape of their file's keys;
//   - a contract's carer exists, and links 116 and 117 lead to contracts that link back;
//   - attribute 41 of a carer is at least the highest of its contract numbers, and the numbers of
//     attribute 42 are free: given before, once each, held by no contract that is alive;
//   - living contracts of one scope cover no day twice, and stand in the index of their entity and
//     agreement and beside their private employer; an index entry leads to a contract;
//   - the codes of entities and agreements can name index files.
//
// It reads and never writes. Every record is read about twice and none is kept, so that a file of
// any size is checked in little memory.

#include <functional>
#include <string>

#include "data/storage.h"

namespace base {

struct Constat {
  std::string fichier;
  std::string cle;  // empty when it concerns the whole file
  std::string anomalie;
};

using Rapport = std::function<void(const Constat&)>;

struct Bilan {
  long articles = 0;
  long constats = 0;
};

// `progres` is called with the records read so far and their total. Damage is reported as any other
// finding and the check goes on behind it; a store that cannot answer at all raises its StoreError.
Bilan verifier(data::Storage& stockage, const Rapport& rapport,
               const std::function<void(long, long)>& progres);

}  // namespace base
