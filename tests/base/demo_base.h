#pragma once
// The demonstration data as they are made by default, whole in memory, and short words for what
// tests ask of them. The seed never changes, so that a fault stays found.

#include <gmock/gmock.h>

#include <algorithm>
#include <functional>
#include <map>
#include <string>
#include <vector>

#include "data/citem.h"
#include "data/layouts/contrat.h"
#include "data/layouts/fichiers.h"
#include "demo/generateur.h"
#include "storage/memory.h"

namespace essai_demo {

using data::CItem;
namespace C = data::Contrat;
namespace fichier = data::fichier;

inline constexpr long Aujourdhui = 21511;  // 22/11/2026
inline constexpr long SansFin = 99999;
// Any record; the words about contracts are for contracts.
class Item : public CItem {
 public:
  using CItem::CItem;
  long nombre(int a, int v = 1) const { return std::stol((*this)(a, v)); }
  std::vector<std::string> valeurs(int a) const {
    std::vector<std::string> liste;
    for (int v = 1; v <= DCount(a); ++v) liste.push_back((*this)(a, v));
    return liste;
  }
  bool annule() const { return (*this)(C::Annule) == "O"; }
  bool particulier() const { return (*this)(C::Convention) == "02"; }
  long debut() const { return nombre(C::DateDebut); }
  long fin(int a = C::DateFin) const { return (*this)(a).empty() ? SansFin : nombre(a); }
};
using Fichier = std::map<std::string, Item>;

class Base {
 public:
  explicit Base(int aidants, unsigned long graine = 1) {
    const data::PosteFixe poste(Aujourdhui);
    storage::MemoryStorage storage(poste);
    demo::genererDemo(storage, {.aidants = aidants, .graine = graine, .aujourdhui = Aujourdhui});
    for (const data::FichierCompte& compte : storage.Fichiers()) {
      storage.Scan(compte.nom, data::KeyRange::Tout(), [&](auto cle, auto texte) {
        fichiers[compte.nom].emplace(cle, Item(texte));
        return true;
      });
    }
  }
  const Fichier& operator[](std::string_view nom) const {
    static const Fichier vide;
    const auto place = fichiers.find(std::string(nom));
    return place == fichiers.end() ? vide : place->second;
  }
  using Cle = std::string;
  bool contient(std::string_view nom, const Cle& c) const { return (*this)[nom].contains(c); }
  const Item& lire(std::string_view nom, const Cle& c) const { return (*this)[nom].at(c); }
  // A file as one text, up to a key.
  std::string empreinte(std::string_view nom, std::string_view avant = "~") const {
    std::string texte;
    for (const auto& [cle, item] : (*this)[nom]) {
      if (cle < avant) texte += cle + "=" + item.Text() + "\n";
    }
    return texte;
  }

  std::map<std::string, Fichier> fichiers;
};

inline const Base& base() {
  static const Base laBase(200);
  return laBase;
}

inline std::string aidantDe(const std::string& cle) {
  return cle.substr(0, 5);
}

// Whether one of the carer's contracts, cancelled ones apart, is so.
inline bool unContrat(const std::string& aidant, const std::function<bool(const Item&)>& est) {
  const Fichier& contrats = base()[fichier::CONTRAT];
  return std::any_of(contrats.begin(), contrats.end(), [&](const auto& article) {
    return aidantDe(article.first) == aidant && !article.second.annule() && est(article.second);
  });
}

// Runs over all contracts but the cancelled ones; the key traces a failure.
inline void chaqueContrat(const std::function<void(const std::string&, const Item&)>& visite) {
  for (const auto& [cle, contrat] : base()[fichier::CONTRAT]) {
    SCOPED_TRACE("CONTRAT " + cle);
    if (!contrat.annule()) visite(cle, contrat);
  }
}

}  // namespace essai_demo
