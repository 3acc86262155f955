#pragma once
// The living contracts of one carer that cover a same day where they must not: those of one
// entity, but private employers' contracts stand apart, each employer for itself.

#include <string>
#include <string_view>
#include <vector>

#include "data/citem.h"

namespace base {

class Chevauchements {
 public:
  // One more contract of the same carer. A cancelled one, or one without a start, covers no day.
  void Ajoute(std::string_view cle, const data::CItem& contrat);

  struct Paire {
    std::string cle;
    std::string autre;
  };
  // Each contract that begins before one of its scope has ended, with that one; those of the next
  // carer may follow.
  std::vector<Paire> Vide();

 private:
  struct Periode {
    std::string portee;
    long debut;
    long fin;
    std::string cle;
  };
  std::vector<Periode> periodes_;
};

}  // namespace base
