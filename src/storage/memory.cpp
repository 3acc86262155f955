#include "storage/memory.h"

#include <stdexcept>

#include "storage/parcours.h"

namespace storage {

namespace {

void interdire(bool faute, const char* quoi) {
  if (faute) throw std::logic_error(quoi);
}

}  // namespace

bool MemoryStorage::Get(std::string_view fichier, std::string_view cle, std::string& texte) {
  const auto articles = fichiers_.find(fichier);
  if (articles == fichiers_.end()) return false;
  const auto article = articles->second.find(cle);
  if (article == articles->second.end()) return false;
  texte = article->second;
  return true;
}

void MemoryStorage::Put(std::string_view fichier, std::string_view cle, std::string_view texte) {
  data::VerifierEcriture(fichier, cle, texte);
  Remplacer(fichier, cle, texte);
}

bool MemoryStorage::Erase(std::string_view fichier, std::string_view cle) {
  std::string avant;
  const bool present = Get(fichier, cle, avant);
  Remplacer(fichier, cle, std::nullopt);
  return present;
}

// The one way in which a record changes; no text means that it goes.
void MemoryStorage::Remplacer(std::string_view fichier, std::string_view cle,
                              std::optional<std::string_view> texte) {
  interdire(parcours_ > 0, "MemoryStorage: write from a visitor");
  Retour retour{std::string(fichier), std::string(cle), std::nullopt};
  std::string avant;
  if (Get(fichier, cle, avant)) retour.avant = std::move(avant);
  if (retour.avant == texte) return;
  if (retour.avant) {
    auto& anciens = anciens_[retour.fichier][retour.cle];
    anciens.push_back({static_cast<long>(anciens.size()) + 1, *retour.avant, poste_.Horodatage(),
                       poste_.NomUtilisateur(), !texte});
  }
  index_.Suivre(fichier, cle, retour.avant, texte);
  if (texte) {
    fichiers_[retour.fichier][retour.cle] = *texte;
  } else {
    auto& articles = fichiers_[retour.fichier];
    articles.erase(retour.cle);
    if (articles.empty()) fichiers_.erase(retour.fichier);
  }
  if (enBloc_) retours_.push_back(std::move(retour));
}

void MemoryStorage::Annuler(const Retour& retour) {
  std::string present;
  const bool trouve = Get(retour.fichier, retour.cle, present);
  index_.Suivre(retour.fichier, retour.cle, trouve ? std::optional(present) : std::nullopt,
                retour.avant);
  if (retour.avant) {
    anciens_[retour.fichier][retour.cle].pop_back();
    fichiers_[retour.fichier][retour.cle] = *retour.avant;
    return;
  }
  auto& articles = fichiers_[retour.fichier];
  articles.erase(retour.cle);
  if (articles.empty()) fichiers_.erase(retour.fichier);
}

void MemoryStorage::Scan(std::string_view fichier, const data::KeyRange& cles,
                         const Visiteur& visiteur) {
  const auto articles = fichiers_.find(fichier);
  if (articles == fichiers_.end() || cles.Vide()) return;
  const Parcours parcours(parcours_);
  for (auto it = articles->second.lower_bound(cles.debut); it != articles->second.end(); ++it) {
    if (!cles.Contient(it->first) || !visiteur(it->first, it->second)) return;
  }
}

std::optional<std::size_t> MemoryStorage::Compter(std::string_view fichier,
                                                  const data::Chemin& chemin, std::size_t plafond) {
  if (chemin.index != nullptr) return index_.Cles(chemin, plafond).size();
  std::size_t compte = 0;
  if (plafond == 0) return compte;
  Scan(fichier, chemin.valeurs,
       [&](std::string_view, std::string_view) { return ++compte < plafond; });
  return compte;
}

bool MemoryStorage::ScanChemins(std::string_view fichier, const std::vector<data::Chemin>& chemins,
                                const Visiteur& visiteur) {
  std::set<std::string> cles;
  for (const data::Chemin& chemin : chemins) {
    if (chemin.index != nullptr) {
      for (auto& cle : index_.Cles(chemin)) cles.insert(std::move(cle));
      continue;
    }
    Scan(fichier, chemin.valeurs, [&](std::string_view cle, std::string_view) {
      cles.emplace(cle);
      return true;
    });
  }
  const Parcours parcours(parcours_);
  std::string texte;
  for (const std::string& cle : cles) {
    if (Get(fichier, cle, texte) && !visiteur(cle, texte)) break;
  }
  return true;
}

std::vector<data::FichierCompte> MemoryStorage::Fichiers() {
  std::vector<data::FichierCompte> comptes;
  for (const auto& [nom, articles] : fichiers_) {
    comptes.push_back({nom, static_cast<long>(articles.size())});
  }
  return comptes;
}

std::vector<data::AncienTexte> MemoryStorage::Historique(std::string_view fichier,
                                                         std::string_view cle) {
  const auto anciens = anciens_.find(fichier);
  if (anciens == anciens_.end()) return {};
  const auto article = anciens->second.find(cle);
  return article == anciens->second.end() ? std::vector<data::AncienTexte>{} : article->second;
}

void MemoryStorage::EnUnBloc(const std::function<void()>& travail) {
  interdire(enBloc_, "MemoryStorage: nested block");
  interdire(parcours_ > 0, "MemoryStorage: block from a visitor");
  enBloc_ = true;
  try {
    travail();
  } catch (...) {
    for (auto it = retours_.rbegin(); it != retours_.rend(); ++it) Annuler(*it);
    retours_.clear();
    enBloc_ = false;
    throw;
  }
  retours_.clear();
  enBloc_ = false;
}

}  // namespace storage
