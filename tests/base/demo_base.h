#pragma once
// A small generated base, whole in memory, and short words for what tests ask of it. The seed never
// changes, so that a fault stays found.

#include <gtest/gtest.h>

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

inline constexpr long Aujourdhui = 21511;  // 22/11/2026
inline constexpr long SansFin = 99999;

using Fichier = std::map<std::string, CItem>;

class Base {
 public:
  explicit Base(int aidants, unsigned long graine = 1) {
    const data::PosteFixe poste(Aujourdhui);
    storage::MemoryStorage storage(poste);
    demo::genererDemo(storage, {.aidants = aidants, .graine = graine, .aujourdhui = Aujourdhui});
    for (const data::FichierCompte& compte : storage.Fichiers()) {
      storage.Scan(compte.nom, data::KeyRange::Tout(), [&](auto cle, auto texte) {
        const CItem item(texte);
        EXPECT_EQ(item.Text(), texte) << compte.nom << " " << cle << " is not canonical";
        fichiers_[compte.nom].emplace(cle, item);
        return true;
      });
    }
  }
  const Fichier& operator[](std::string_view nom) const {
    static const Fichier vide;
    const auto place = fichiers_.find(std::string(nom));
    return place == fichiers_.end() ? vide : place->second;
  }
  bool contient(std::string_view nom, const std::string& cle) const {
    return (*this)[nom].contains(cle);
  }
  const std::map<std::string, Fichier>& fichiers() const { return fichiers_; }
  // Everything as one text.
  std::string empreinte(std::string_view nom, std::string_view avant = "~") const {
    std::string texte;
    for (const auto& [cle, item] : (*this)[nom]) {
      if (cle < avant) texte += cle + "=" + item.Text() + "\n";
    }
    return texte;
  }

 private:
  std::map<std::string, Fichier> fichiers_;
};

inline const Base& base() {
  static const Base laBase(60);
  return laBase;
}

inline long nombre(const CItem& item, int a, int v = 1) {
  return std::stol(item(a, v));
}
inline std::string aidantDe(const std::string& cle) {
  return cle.substr(0, 5);
}
inline bool annule(const CItem& contrat) {
  return contrat(C::Annule) == "O";
}
inline bool particulier(const CItem& contrat) {
  return contrat(C::Convention) == "02";
}
inline long finDe(const CItem& contrat) {
  return contrat(C::DateFin).empty() ? SansFin : nombre(contrat, C::DateFin);
}
inline std::vector<std::string> valeurs(const CItem& item, int attribut) {
  std::vector<std::string> liste;
  for (int v = 1; v <= item.DCount(attribut); ++v) liste.push_back(item(attribut, v));
  return liste;
}
inline bool contient(const std::vector<std::string>& liste, const std::string& valeur) {
  return std::find(liste.begin(), liste.end(), valeur) != liste.end();
}

// Runs over all contracts, cancelled ones only if wanted; the key traces a failure.
inline void chaqueContrat(const std::function<void(const std::string&, const CItem&)>& visite,
                          bool aussiAnnules = false) {
  int vus = 0;
  for (const auto& [cle, contrat] : base()[data::fichier::CONTRAT]) {
    SCOPED_TRACE("CONTRAT " + cle);
    if (annule(contrat) && !aussiAnnules) continue;
    visite(cle, contrat);
    ++vus;
  }
  EXPECT_GT(vus, 100);
}

}  // namespace essai_demo
