#include "base/cles_vues.h"

#include <cstring>
#include <functional>

namespace base {
namespace {

constexpr std::size_t PremiereTaille = 1024;  // a power of two, as all sizes of the table

}  // namespace

ClesVues::Entree ClesVues::Lit(const UnFichier& fichier, std::uint64_t place) {
  Entree entree{};
  std::uint32_t longueur = 0;
  const char* const debut = fichier.cles.data() + place;
  std::memcpy(&entree.ligne, debut, sizeof entree.ligne);
  std::memcpy(&longueur, debut + sizeof entree.ligne, sizeof longueur);
  entree.cle = {debut + sizeof entree.ligne + sizeof longueur, longueur};
  return entree;
}

// The cell that holds the key, or the free one where it belongs.
std::size_t ClesVues::Cellule(const UnFichier& fichier, std::string_view cle) {
  const std::size_t masque = fichier.table.size() - 1;
  std::size_t cellule = std::hash<std::string_view>{}(cle)&masque;
  while (fichier.table[cellule] != 0 && Lit(fichier, fichier.table[cellule] - 1).cle != cle) {
    cellule = (cellule + 1) & masque;
  }
  return cellule;
}

void ClesVues::Agrandit(UnFichier& fichier) {
  std::vector<std::uint64_t> avant(fichier.table.empty() ? PremiereTaille
                                                         : fichier.table.size() * 2);
  avant.swap(fichier.table);
  for (const std::uint64_t place : avant) {
    if (place != 0) fichier.table[Cellule(fichier, Lit(fichier, place - 1).cle)] = place;
  }
}

long ClesVues::Ajoute(std::string_view fichier, std::string_view cle, long ligne) {
  auto lieu = fichiers_.find(fichier);
  if (lieu == fichiers_.end()) lieu = fichiers_.emplace(std::string(fichier), UnFichier{}).first;
  UnFichier& vues = lieu->second;
  // At most three cells in four are taken, so that a search stays short.
  if (vues.nombre * 4 >= vues.table.size() * 3) Agrandit(vues);
  const std::size_t cellule = Cellule(vues, cle);
  if (vues.table[cellule] != 0) return Lit(vues, vues.table[cellule] - 1).ligne;
  vues.table[cellule] = vues.cles.size() + 1;
  const std::int64_t numero = ligne;
  const auto longueur = static_cast<std::uint32_t>(cle.size());
  vues.cles.append(reinterpret_cast<const char*>(&numero), sizeof numero);
  vues.cles.append(reinterpret_cast<const char*>(&longueur), sizeof longueur);
  vues.cles += cle;
  ++vues.nombre;
  return 0;
}

}  // namespace base
