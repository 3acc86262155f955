#pragma once
// The lines of a follow-up as they stand on file: several attributes of a record in step, one value
// a line, the first of them the period (AAAAMM). What both follow-ups share; each adds its
// arithmetic (suivi_annuel.h).
//
// A number that nobody corrects keeps its text of the file, also one that is missing or wrong: a
// record is not made worse by a visit. Invariants: lines are inserted in period order; writing an
// unchanged table changes nothing.

#include <span>
#include <string>
#include <string_view>
#include <vector>

#include "data/citem.h"
#include "data/monnaie.h"

namespace rules {

class TableSuivi {
 public:
  // `attributs` outlives the table. Columns are numbered from 0, in their order; 0 is the period.
  explicit TableSuivi(std::span<const int> attributs) : attributs_(attributs) {}

  // Where the lines of a record end: at the first period that is missing, or with the last one.
  enum class Fin { PremierVide, Derniere };
  void Lire(const data::CItem& item, Fin fin);
  // The lines into that record in place of those in its attributes; the rest of it stays. A table
  // that holds what was read or written last writes nothing.
  void Ecrire(data::CItem& item);
  bool Modifiee() const { return lignes_ != lues_; }

  int Nombre() const { return static_cast<int>(lignes_.size()); }
  // "" beyond the ends.
  const std::string& Texte(int ligne, int colonne) const;
  const std::string& Periode(int ligne) const { return Texte(ligne, 0); }
  data::Monnaie Centiemes(int ligne, int colonne) const;
  data::Monnaie Entier(int ligne, int colonne) const;

  bool Contient(std::string_view periode) const;
  // Where a line of that period belongs: before the first of a later one.
  int Place(std::string_view periode) const;

  // A new line of that period at its place; the place.
  int Inserer(const std::string& periode);
  void Poser(int ligne, int colonne, std::string texte);
  // Only where the number differs from what stands there.
  void PoserCentiemes(int ligne, int colonne, data::Monnaie valeur);
  void Retirer(int ligne);
  void Vider() { lignes_.clear(); }

 private:
  using Ligne = std::vector<std::string>;
  std::span<const int> attributs_;
  std::vector<Ligne> lignes_;
  std::vector<Ligne> lues_;
};

}  // namespace rules
