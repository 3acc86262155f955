#include "rules/suivi_annuel_table.h"

#include <algorithm>

#include "data/jour.h"
#include "rules/suivi_annuel_nombre.h"

namespace rules {

void TableSuivi::Lire(const data::CItem& item, Fin fin) {
  lues_.clear();
  const int nombre = item.DCount(attributs_.front());
  for (int i = 1; i <= nombre; ++i) {
    if (fin == Fin::PremierVide && item.Vue(attributs_.front(), i).empty()) break;
    Ligne& ligne = lues_.emplace_back();
    for (const int attribut : attributs_) ligne.push_back(item(attribut, i));
  }
  lignes_ = lues_;
}

void TableSuivi::Ecrire(data::CItem& item) {
  if (!Modifiee()) return;
  for (std::size_t c = 0; c < attributs_.size(); ++c) {
    item.Set(attributs_[c], "");
    for (int i = 0; i < Nombre(); ++i) {
      item.Set(attributs_[c], i + 1, Texte(i, static_cast<int>(c)));
    }
  }
  lues_ = lignes_;
}

const std::string& TableSuivi::Texte(int ligne, int colonne) const {
  static const std::string rien;
  const auto l = static_cast<std::size_t>(ligne), c = static_cast<std::size_t>(colonne);
  return l < lignes_.size() && c < lignes_[l].size() ? lignes_[l][c] : rien;
}

data::Monnaie TableSuivi::Centiemes(int ligne, int colonne) const {
  return centiemesLus(Texte(ligne, colonne));
}

data::Monnaie TableSuivi::Entier(int ligne, int colonne) const {
  return entierLu(Texte(ligne, colonne));
}

bool TableSuivi::Contient(std::string_view periode) const {
  return std::any_of(lignes_.begin(), lignes_.end(),
                     [&](const Ligne& ligne) { return ligne.front() == periode; });
}

// Periods that are none have no place in time: nothing comes before them.
int TableSuivi::Place(std::string_view periode) const {
  const auto jour = data::premierJour(periode);
  const auto suivante = std::find_if(lignes_.begin(), lignes_.end(), [&](const Ligne& ligne) {
    const auto sien = data::premierJour(ligne.front());
    return sien && jour && *sien > *jour;
  });
  return static_cast<int>(suivante - lignes_.begin());
}

int TableSuivi::Inserer(const std::string& periode) {
  const int place = Place(periode);
  Ligne ligne(attributs_.size());
  ligne.front() = periode;
  lignes_.insert(lignes_.begin() + place, std::move(ligne));
  return place;
}

void TableSuivi::Poser(int ligne, int colonne, std::string texte) {
  lignes_.at(static_cast<std::size_t>(ligne)).at(static_cast<std::size_t>(colonne)) =
      std::move(texte);
}

void TableSuivi::PoserCentiemes(int ligne, int colonne, data::Monnaie valeur) {
  const std::string& present = Texte(ligne, colonne);
  if (!present.empty() && Centiemes(ligne, colonne) == valeur) return;
  Poser(ligne, colonne, centiemesEcrits(valeur));
}

void TableSuivi::Retirer(int ligne) {
  if (ligne >= 0 && ligne < Nombre()) lignes_.erase(lignes_.begin() + ligne);
}

}  // namespace rules
