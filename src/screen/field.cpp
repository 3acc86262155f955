#include "screen/field.h"

#include <algorithm>

#include "screen/form.h"

namespace screen {

Field::Field(Place place, Kind genre, std::string nom, std::string libelle)
    : form_(place.form),
      genre_(genre),
      nom_(std::move(nom)),
      cadre_(place.cadre),
      libelle_(std::move(libelle)) {
  form_.Register(*this);
}

void Field::SetEnabled(bool enabled) {
  enabled_ = enabled;
  form_.VerifierActif();
}

void Field::SetVisible(bool visible) {
  visible_ = visible;
  form_.VerifierActif();
}

void Montrer(std::initializer_list<Field*> champs, bool visibles) {
  for (Field* champ : champs) champ->SetVisible(visibles);
}

void Activer(std::initializer_list<Field*> champs, bool actifs) {
  for (Field* champ : champs) champ->SetEnabled(actifs);
}

bool Field::Disponible() const {
  for (const Field* champ = this; champ != nullptr; champ = champ->cadre_) {
    if (!champ->enabled_ || !champ->visible_) return false;
  }
  return true;
}

bool Field::Accessible() const {
  return Disponible() && form_.Visible() && form_.Enabled();
}

bool Field::Focalisable() const {
  switch (genre_) {
    case Kind::Texte:
    case Kind::Deroulante:
    case Kind::Liste:
    case Kind::Bouton:
    case Kind::Option:
    case Kind::Case:
    case Kind::Onglets:
    case Kind::UpDown:
      return true;
    case Kind::Cadre:
    case Kind::Etiquette:
    case Kind::Barre:
    case Kind::Menu:
    case Kind::Image:
      return false;
  }
  return false;
}

void Field::SetFocus() {
  form_.MoveFocus(*this);
}

void TextField::SetText(std::string_view text) {
  if (text == text_) return;
  text_ = text;
  fire(Change);
}

std::string RowsField::List(int ligne) const {
  if (ligne < 0 || ligne >= ListCount()) return {};
  return rows_[static_cast<std::size_t>(ligne)];
}

void RowsField::SetList(int ligne, std::string_view texte) {
  if (ligne < 0 || ligne >= ListCount()) return;
  rows_[static_cast<std::size_t>(ligne)] = texte;
  if (ligne == listIndex_) SuivreLigne();
}

void RowsField::InsertItem(int ligne, std::string_view texte) {
  if (ligne < 0 || ligne > ListCount()) ligne = ListCount();
  rows_.emplace(rows_.begin() + ligne, texte);
  if (ligne <= listIndex_) ++listIndex_;
}

void RowsField::RemoveItem(int ligne) {
  if (ligne < 0 || ligne >= ListCount()) return;
  rows_.erase(rows_.begin() + ligne);
  if (ligne < listIndex_) {
    --listIndex_;
  } else if (ligne == listIndex_) {
    listIndex_ = -1;
    SuivreLigne();
  }
}

void RowsField::Clear() {
  rows_.clear();
  listIndex_ = -1;
  SuivreLigne();
}

void RowsField::SetListIndex(int ligne) {
  if (ligne < 0 || ligne >= ListCount()) ligne = -1;
  const bool change = ligne != listIndex_;
  listIndex_ = ligne;
  SuivreLigne();
  if (change) fire(Click);
}

void ComboBox::SetText(std::string_view text) {
  if (text == text_) return;
  text_ = text;
  PerdreLigne();
  fire(Change);
}

void ComboBox::SuivreLigne() {
  text_ = List(ListIndex());
}

void OptionButton::SetValue(bool value) {
  if (value == value_) return;
  value_ = value;
  if (!value) return;
  for (Field* voisin : Forme().Fields()) {
    if (voisin != this && voisin->Genre() == Kind::Option && voisin->Cadre() == Cadre()) {
      static_cast<OptionButton*>(voisin)->value_ = false;
    }
  }
  fire(Click);
}

void CheckBox::SetValue(int value) {
  value = value != 0 ? 1 : 0;
  if (value == value_) return;
  value_ = value;
  fire(Click);
}

void TabStrip::SetTab(int onglet) {
  if (onglet < 0 || onglet >= static_cast<int>(onglets_.size()) || onglet == tab_) return;
  const int ancien = tab_;
  tab_ = onglet;
  MontrerPages();
  fire(Click, ancien);
}

void TabStrip::Lier(int onglet, Frame& page) {
  pages_.emplace_back(onglet, &page);
  MontrerPages();
}

void TabStrip::MontrerPages() {
  for (const auto& [onglet, page] : pages_) page->SetVisible(onglet == tab_);
}

void RangeField::SetValue(int value) {
  value = std::clamp(value, std::min(min_, max_), std::max(min_, max_));
  if (value == value_) return;
  value_ = value;
  fire(Change);
}

void RangeField::SetMin(int min) {
  min_ = min;
  SetValue(value_);
}

void RangeField::SetMax(int max) {
  max_ = max;
  SetValue(value_);
}

}  // namespace screen
