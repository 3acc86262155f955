#include "data/liste_codes.h"

#include <algorithm>

namespace data {

namespace {

const ListeCodes::Ligne* chercher(const std::vector<ListeCodes::Ligne>& lignes,
                                  std::string ListeCodes::Ligne::*colonne, std::string_view texte) {
  if (texte.empty()) return nullptr;
  const auto ligne = std::find_if(lignes.begin(), lignes.end(),
                                  [&](const auto& l) { return l.*colonne == texte; });
  return ligne == lignes.end() ? nullptr : &*ligne;
}

}  // namespace

ListeCodes ListeCodes::DeSelection(const CItem& lignes) {
  ListeCodes liste;
  for (int i = 1; i <= lignes.DCount(); ++i) {
    Ligne ligne{lignes(i, 1), lignes(i, 2)};
    for (int j = 3; j <= lignes.DCount(i); ++j) ligne.suite.push_back(lignes(i, j));
    liste.lignes_.push_back(std::move(ligne));
  }
  return liste;
}

ListeCodes ListeCodes::DeTable(const CItem& item, int codes, int libelles, int marques) {
  ListeCodes liste;
  for (int v = 1; v <= std::max(item.DCount(codes), item.DCount(libelles)); ++v) {
    Ligne ligne{item(codes, v), item(libelles, v)};
    if (marques != 0) ligne.suite.push_back(item(marques, v));
    liste.lignes_.push_back(std::move(ligne));
  }
  return liste;
}

const ListeCodes::Ligne& ListeCodes::A(int rang) const {
  static const Ligne aucune;
  return rang < 0 || rang >= Nombre() ? aucune : lignes_[static_cast<std::size_t>(rang)];
}

const ListeCodes::Ligne* ListeCodes::ParCode(std::string_view code) const {
  return chercher(lignes_, &Ligne::code, code);
}

const ListeCodes::Ligne* ListeCodes::ParLibelle(std::string_view libelle) const {
  return chercher(lignes_, &Ligne::libelle, libelle);
}

std::string ListeCodes::Libelle(std::string_view code) const {
  const Ligne* const ligne = ParCode(code);
  return ligne == nullptr ? std::string() : ligne->libelle;
}

std::string ListeCodes::Code(std::string_view libelle) const {
  const Ligne* const ligne = ParLibelle(libelle);
  return ligne == nullptr ? std::string() : ligne->code;
}

}  // namespace data
