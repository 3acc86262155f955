#pragma once
// What every part of the generator shares: the parameters of the run and the way to the store.

#include <cstdint>
#include <set>
#include <string>
#include <string_view>

#include "data/citem.h"
#include "data/jour.h"
#include "data/storage.h"

namespace demo {

struct Parametres {
  Parametres(std::uint64_t graineDonnee, long jour)
      : graine(graineDonnee),
        aujourdhui(jour),
        periodeCourante(data::periodeDe(jour)),
        derniereTraitee(data::decalePeriode(periodeCourante, -1)) {}

  std::uint64_t graine;
  long aujourdhui;
  std::string periodeCourante;  // the pay period that is open
  std::string derniereTraitee;  // the last one that payroll has closed
};

class Sortie {
 public:
  explicit Sortie(data::Storage& storage) : storage_(storage) {}

  void ecrire(std::string_view fichier, std::string_view cle, const data::CItem& item) {
    storage_.Put(fichier, cle, item.Text());
  }
  // The record's existence is its information.
  void marquer(std::string_view fichier, std::string_view cle) { storage_.Put(fichier, cle, ""); }

  // An index made at run time: `prefixe`, entity, agreement. Its name is remembered.
  void indexer(std::string_view prefixe, std::string_view entite, std::string_view convention,
               std::string_view cle) {
    std::string nom(prefixe);
    nom.append(entite).append(convention);
    marquer(nom, cle);
    index_.insert(std::move(nom));
  }
  const std::set<std::string, std::less<>>& index() const { return index_; }

 private:
  data::Storage& storage_;
  std::set<std::string, std::less<>> index_;
};

inline std::string texte(long nombre) {
  return std::to_string(nombre);
}
// A number on `largeur` digits with leading zeros.
inline std::string chiffres(long nombre, int largeur) {
  std::string resultat = std::to_string(nombre);
  const auto voulue = static_cast<std::size_t>(largeur);
  if (resultat.size() < voulue) resultat.insert(0, voulue - resultat.size(), '0');
  return resultat;
}

}  // namespace demo
