#pragma once
// Codes beside their labels, in the order in which they are offered: what stands behind a label
// list, with look-ups in both directions. It comes from a select or from an item of TABLES.
//
//   const auto natures = ListeCodes::DeTable(item);   // codes and labels as parallel attributes
//   natures.Libelle("STG")                            // "Stagiaire", "" for an unknown code
//   natures.Code("Stagiaire")                         // "STG", the first of that label

#include <string>
#include <string_view>
#include <vector>

#include "data/citem.h"
#include "data/layouts/voisins.h"

namespace data {

class ListeCodes {
 public:
  struct Ligne {
    std::string code;
    std::string libelle;
    // The columns of a select that follow the label; the mark of a table.
    std::vector<std::string> suite = {};
  };

  ListeCodes() = default;
  explicit ListeCodes(std::vector<Ligne> lignes) : lignes_(std::move(lignes)) {}
  // Result rows: the code, the label, and what else was asked for.
  static ListeCodes DeSelection(const CItem& lignes);
  // An item of TABLES; `marques` is the attribute of its marks, 0 for none.
  static ListeCodes DeTable(const CItem& item, int codes = Tables::Codes,
                            int libelles = Tables::Libelles, int marques = 0);

  const std::vector<Ligne>& Lignes() const { return lignes_; }
  bool Vide() const { return lignes_.empty(); }
  int Nombre() const { return static_cast<int>(lignes_.size()); }
  // The row at that place, from 0; an empty one beyond the ends.
  const Ligne& A(int rang) const;

  // First row of that code or label; nullptr when there is none, and always for "".
  const Ligne* ParCode(std::string_view code) const;
  const Ligne* ParLibelle(std::string_view libelle) const;
  std::string Libelle(std::string_view code) const;
  std::string Code(std::string_view libelle) const;

 private:
  std::vector<Ligne> lignes_;
};

}  // namespace data
