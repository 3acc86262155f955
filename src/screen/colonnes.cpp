#include "screen/colonnes.h"

#include <algorithm>

namespace screen {

Colonnes::Colonnes(std::initializer_list<ListBox*> listes, ScrollBar& barre, int visibles)
    : listes_(listes), barre_(barre), visibles_(visibles) {
  for (ListBox* const liste : listes_) {
    liste->Click = [this, liste] { Choisir(liste->ListIndex()); };
    liste->DblClick = [this, liste] {
      if (SurDoubleClic) SurDoubleClic(liste->ListIndex());
    };
  }
  barre_.Change = [this] { Choisir(barre_.Value()); };
  barre_.SetVisible(false);
}

void Colonnes::Choisir(int ligne) {
  if (enCours_) return;
  enCours_ = true;
  for (ListBox* const liste : listes_) liste->SetListIndex(ligne);
  if (ligne >= 0) barre_.SetValue(ligne);
  enCours_ = false;
  if (SurChoix) SurChoix(ligne);
}

void Colonnes::Inserer(int ligne, const Textes& textes) {
  for (std::size_t c = 0; c < listes_.size(); ++c) {
    listes_[c]->InsertItem(ligne, c < textes.size() ? textes[c] : std::string());
  }
  AjusterBarre();
}

void Colonnes::Remplacer(int ligne, const Textes& textes) {
  for (std::size_t c = 0; c < std::min(listes_.size(), textes.size()); ++c) {
    listes_[c]->SetList(ligne, textes[c]);
  }
}

void Colonnes::Retirer(int ligne) {
  for (ListBox* const liste : listes_) liste->RemoveItem(ligne);
  AjusterBarre();
}

void Colonnes::Vider() {
  for (ListBox* const liste : listes_) liste->Clear();
  AjusterBarre();
}

Colonnes::Textes Colonnes::A(int ligne) const {
  Textes textes;
  for (const ListBox* const liste : listes_) textes.push_back(liste->List(ligne));
  return textes;
}

void Colonnes::Activer(bool actives) {
  for (ListBox* const liste : listes_) liste->SetEnabled(actives);
}

void Colonnes::AjusterBarre() {
  enCours_ = true;
  barre_.SetMax(std::max(Nombre() - 1, 0));
  barre_.SetValue(std::max(Ligne(), 0));
  barre_.SetVisible(Nombre() > visibles_);
  enCours_ = false;
}

}  // namespace screen
