#include "editor/paie_lignes.h"

#include <algorithm>

#include "data/nombre.h"

namespace editor {

namespace {

constexpr int Decimales = 2;  // of a percent, on file as hundredths

}  // namespace

void LignesActivites::Ajouter(const std::string& code, const std::string& libelle,
                              const std::string& part) {
  codes_.push_back(code);
  colonnes_.Ajouter({libelle, part});
}

void LignesActivites::Retirer(int ligne) {
  if (ligne < 0 || ligne >= Nombre()) return;
  codes_.erase(codes_.begin() + ligne);
  colonnes_.Retirer(ligne);
}

void LignesActivites::Vider() {
  codes_.clear();
  colonnes_.Vider();
}

void LignesActivites::ChangerPart(int ligne, const std::string& part) {
  colonnes_.Remplacer(ligne, {Libelle(ligne), part});
}

void LignesActivites::CompleterParts() {
  for (int i = 0; i < Nombre(); ++i) {
    if (Part(i).empty()) ChangerPart(i, "0");
  }
}

bool LignesActivites::Contient(const std::string& code) const {
  return std::find(codes_.begin(), codes_.end(), code) != codes_.end();
}

rules::Repartition::Parts LignesActivites::Parts() const {
  rules::Repartition::Parts parts;
  for (int i = 0; i < Nombre(); ++i) {
    const auto centiemes = data::enUnites(Part(i), Decimales);
    parts.push_back({codes_[static_cast<std::size_t>(i)], std::to_string(centiemes.value_or(0))});
  }
  return parts;
}

std::string LignesActivites::PartAffichee(const std::string& centiemes) const {
  if (!data::enUnites(centiemes, 0)) return centiemes;
  const std::string part =
      data::Monnaie::DeCentiemes(centiemes).Texte(Decimales, lib_.DecimalSeparator());
  return session::formater(lib_, part, FormePart).value_or(part);
}

void LignesActivites::Suivre(std::function<void(int)> choix, std::function<void(int)> doubleClic) {
  colonnes_.SurChoix = std::move(choix);
  colonnes_.SurDoubleClic = std::move(doubleClic);
}

}  // namespace editor
