#include "storage/index_memoire.h"

namespace storage {

namespace {

std::size_t rang(const data::Index& index) {
  return static_cast<std::size_t>(data::rangIndex(index));
}

}  // namespace

void IndexMemoire::Suivre(std::string_view fichier, std::string_view cle,
                          const std::optional<std::string_view>& avant,
                          const std::optional<std::string_view>& apres) {
  const auto [retraits, ajouts] = data::changementIndex(fichier, cle, avant, apres);
  for (const auto& entree : retraits) {
    places_[rang(*entree.index)].erase({entree.valeur, std::string(cle)});
  }
  for (const auto& entree : ajouts) {
    places_[rang(*entree.index)].emplace(entree.valeur, cle);
  }
}

std::vector<std::string> IndexMemoire::Cles(const data::Chemin& chemin, std::size_t plafond) const {
  std::vector<std::string> cles;
  const Places& places = places_[rang(*chemin.index)];
  for (auto it = places.lower_bound({chemin.valeurs.debut, {}}); it != places.end(); ++it) {
    if (cles.size() >= plafond || !chemin.valeurs.Contient(it->first)) break;
    cles.push_back(it->second);
  }
  return cles;
}

}  // namespace storage
