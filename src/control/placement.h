#pragma once
// Where a contract goes in the list. The list is built by insertion: each kept contract, in the
// order of the contract numbers, goes before the first row that its sort puts after it. Contracts
// equal under the sort so stand in number order.

#include <string>
#include <vector>

namespace control {

enum class Tri { Employeur, AncienneteCroissante, AncienneteDecroissante };

// A row of the list before it is shown.
struct LigneContrat {
  std::string cle;
  std::string debut;  // as displayed, "" when the contract has no start date
  std::string fin;    // as displayed, "" for an open contract
  std::string type;
  std::string employeur;
  std::string convention;
  long jourDebut = 0;  // internal day of `debut`

  // As the five columns show it.
  std::vector<std::string> Textes() const { return {debut, fin, type, employeur, convention}; }
  bool Terminee() const { return !fin.empty(); }
};

// The row at which `nouvelle` is inserted in `lignes`, from 0. A row without the text that the sort
// looks at ends the search: it reads like the end of the list.
std::size_t rangInsertion(const std::vector<LigneContrat>& lignes, const LigneContrat& nouvelle,
                          Tri tri);

}  // namespace control
