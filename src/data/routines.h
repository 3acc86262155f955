#pragma once
// What runs on the data side by name: the stored routine of the replacements, and the saved lists
// that tie the calls of one series together. Reached through Db::CallRoutine and Db::Execute.
//
// REMPLRECURSIF tells which replacements of one planned intervention fall in the days that a
// contract gains or loses. Its parameters are five attributes:
//
//   1  key of the intervention
//   2  day number: last working day of the contract before the change
//   3  day number: last working day after the change, plus 1
//   4  "AFAIRE" on the first call of a series, then the name that this call answered
//   5  who asks; the list lives in the caller's own Db and needs no more than its name
//
// The span holds the days that one of the two last days reaches and the other does not. A contract
// may be lengthened (2 before 3: from attribute 2 to the day before attribute 3) or cut short (3
// before 2, or equal: from attribute 3 to attribute 2).
//
// The result has one line a row, for a person to read, for each planning exception of that
// intervention dated in the span, in the order of the dates:
//
//   "Mardi 03/03/2026 à 08h30 : DURAND Anne chez MARTIN Rose"
//
// The first call of a series makes an empty saved list under a fresh name and answers that name
// before the lines; the later calls answer the lines alone. Nothing is changed in any file.

#include <functional>
#include <set>
#include <string>
#include <string_view>

namespace data {

class CItem;
class Db;

// The names of the lists that are saved at the moment.
class ListesSauvees {
 public:
  // A name that no list of this object has had before.
  std::string Creer();
  bool Existe(std::string_view nom) const { return noms_.contains(nom); }
  // Forgetting an unknown list is no error.
  void Oublier(std::string_view nom);

 private:
  std::set<std::string, std::less<>> noms_;
  int derniere_ = 0;
};

// StoreError Question for an unknown routine, and for parameters that are missing or malformed.
CItem appelerRoutine(Db& db, ListesSauvees& listes, std::string_view nom, const CItem& parametres);

// "EFFACER-LISTE <name>". StoreError Question for anything else.
void executerCommande(ListesSauvees& listes, std::string_view commande);

}  // namespace data
