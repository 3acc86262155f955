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

// The values of an attribute one after the other, then empty ones. Looked up by their number, each
// would be counted from the first.
class Valeurs {
 public:
  explicit Valeurs(std::string_view attribut) : reste_(attribut), fini_(attribut.empty()) {}

  bool Reste() const { return !fini_; }
  std::string Suivante() {
    const auto fin = reste_.find(SepValeur);
    std::string valeur(reste_.substr(0, fin));
    fini_ = fin == std::string_view::npos;
    reste_.remove_prefix(fini_ ? reste_.size() : fin + 1);
    return valeur;
  }

 private:
  std::string_view reste_;
  bool fini_;
};

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
  Valeurs lesCodes(item.Vue(codes));
  Valeurs lesLibelles(item.Vue(libelles));
  Valeurs lesMarques(marques == 0 ? std::string_view() : item.Vue(marques));
  ListeCodes liste;
  while (lesCodes.Reste() || lesLibelles.Reste()) {
    Ligne ligne{lesCodes.Suivante(), lesLibelles.Suivante()};
    if (marques != 0) ligne.suite.push_back(lesMarques.Suivante());
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
