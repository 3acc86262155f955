#pragma once
// Lists that stand side by side and show the columns of one table: a click in one selects the row
// in all, rows come and go in all at once, and the bar beside them stays on the selected row.
//
//   Colonnes lignes_{{&Lst_Debut, &Lst_Fin}, Bdv_Detail, 15};
//   lignes_.Ajouter({"01/03/2026", ""});
//   lignes_.Retirer(0);
//
// Only what the user does to a list or to the bar selects a row: filling and clearing are silent,
// and leave no row selected but the one that was.

#include <functional>
#include <initializer_list>
#include <string>
#include <vector>

#include "screen/field.h"

namespace screen {

class Colonnes {
 public:
  // `visibles`: the rows that fit without the bar, which is hidden up to then.
  Colonnes(std::initializer_list<ListBox*> listes, ScrollBar& barre, int visibles);
  Colonnes(const Colonnes&) = delete;
  Colonnes& operator=(const Colonnes&) = delete;

  // A row was selected; a row was clicked twice.
  std::function<void(int ligne)> SurChoix;
  std::function<void(int ligne)> SurDoubleClic;

  int Nombre() const { return listes_.front()->ListCount(); }
  // The selected row, -1 for none.
  int Ligne() const { return listes_.front()->ListIndex(); }
  void Choisir(int ligne);

  // One text a column, in their order.
  using Textes = std::vector<std::string>;
  void Ajouter(const Textes& textes) { Inserer(Nombre(), textes); }
  void Inserer(int ligne, const Textes& textes);
  void Remplacer(int ligne, const Textes& textes);
  void Retirer(int ligne);
  void Vider();
  Textes A(int ligne) const;

  void Activer(bool actives);

 private:
  // Bounds, place and visibility of the bar.
  void AjusterBarre();

  std::vector<ListBox*> listes_;
  ScrollBar& barre_;
  int visibles_;
  bool enCours_ = false;
};

}  // namespace screen
