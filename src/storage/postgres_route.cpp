#include "storage/postgres_route.h"

#include <algorithm>

#include "data/layouts/recherches.h"

namespace storage {

namespace {

bool memes(const data::KeyRange& a, const data::KeyRange& b) {
  return a.debut == b.debut && a.sansFin == b.sansFin && (a.sansFin || a.fin == b.fin);
}

bool contient(const data::KeyRange& grande, const data::KeyRange& petite) {
  return memes(grande.Avec(petite), petite);
}

}  // namespace

void MemoireDeRoute::Finir() noexcept {
  if (--profondeur_ == 0) Vider();
}

void MemoireDeRoute::Vider() noexcept {
  articles_.clear();
  plages_.clear();
  chemins_.clear();
}

void MemoireDeRoute::Retenir(std::string_view fichier, std::string_view cle,
                             const std::optional<std::string>& texte) {
  if (Ouverte()) articles_[{std::string(fichier), std::string(cle)}] = texte;
}

void MemoireDeRoute::Retenir(std::string_view fichier, const data::KeyRange& cles,
                             std::shared_ptr<const Rangs> rangs) {
  if (!Ouverte()) return;
  for (const auto& [cle, texte] : *rangs) Retenir(fichier, cle, texte);
  plages_.push_back({std::string(fichier), cles, std::move(rangs)});
}

void MemoireDeRoute::Retenir(const data::Chemin& chemin, std::shared_ptr<const Rangs> rangs) {
  if (!Ouverte()) return;
  for (const auto& [cle, texte] : *rangs) Retenir(chemin.index->fichier, cle, texte);
  chemins_.push_back({chemin, std::move(rangs)});
}

void MemoireDeRoute::Oublier(std::string_view fichier, std::string_view cle) {
  articles_.erase({std::string(fichier), std::string(cle)});
  std::erase_if(plages_, [&](const PlageLue& plage) {
    return plage.fichier == fichier && plage.cles.Contient(cle);
  });
  std::erase_if(chemins_, [&](const CheminLu& lu) { return lu.chemin.index->fichier == fichier; });
}

const std::optional<std::string>* MemoireDeRoute::Article(std::string_view fichier,
                                                          std::string_view cle) {
  if (!Ouverte()) return nullptr;
  const auto article = articles_.find({std::string(fichier), std::string(cle)});
  if (article != articles_.end()) return &article->second;
  // A range that was read and does not hold it says that there is none.
  for (const PlageLue& plage : plages_) {
    if (plage.fichier != fichier || !plage.cles.Contient(cle)) continue;
    return &(articles_[{std::string(fichier), std::string(cle)}] = std::nullopt);
  }
  return nullptr;
}

std::shared_ptr<const Rangs> MemoireDeRoute::Plage(std::string_view fichier,
                                                   const data::KeyRange& cles) const {
  for (const PlageLue& plage : plages_) {
    if (plage.fichier == fichier && contient(plage.cles, cles)) return plage.rangs;
  }
  return nullptr;
}

std::shared_ptr<const Rangs> MemoireDeRoute::Chemin(const data::Chemin& chemin) const {
  const auto lu = std::find_if(chemins_.begin(), chemins_.end(), [&](const CheminLu& c) {
    return c.chemin.index == chemin.index && memes(c.chemin.valeurs, chemin.valeurs);
  });
  return lu == chemins_.end() ? nullptr : lu->rangs;
}

}  // namespace storage
