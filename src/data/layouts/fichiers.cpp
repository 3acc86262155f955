#include "data/layouts/fichiers.h"

#include <algorithm>

#include "data/texte.h"

namespace data {
namespace {

bool estVisible(char c) {
  return c > ' ' && c <= '~';
}

// Takes the first `nombre` characters off `reste` when all of them pass.
template <typename Test>
bool prendre(std::string_view& reste, std::size_t nombre, Test test) {
  if (reste.size() < nombre || !std::all_of(reste.begin(), reste.begin() + nombre, test)) {
    return false;
  }
  reste.remove_prefix(nombre);
  return true;
}

bool prendrePeriode(std::string_view& reste) {
  const std::string_view periode = reste.substr(0, 6);
  if (!prendre(reste, 6, estChiffre)) return false;
  const std::string_view mois = periode.substr(4);
  return mois >= "01" && mois <= "12";
}

bool prendreTexte(std::string_view& reste, std::string_view texte) {
  if (!reste.starts_with(texte)) return false;
  reste.remove_prefix(texte.size());
  return true;
}

// One part of a shape, taken off both sides.
bool prendrePartie(std::string_view& forme, std::string_view& reste) {
  std::size_t nombre = 0;
  while (estChiffre(forme.front())) {
    nombre = nombre * 10 + static_cast<std::size_t>(forme.front() - '0');
    forme.remove_prefix(1);
  }
  const char genre = forme.front();
  forme.remove_prefix(1);
  switch (genre) {
    case 'c':
      return prendre(reste, nombre, estVisible);
    case 'n':
      return prendre(reste, nombre, estChiffre);
    case 'p':
      return prendrePeriode(reste);
    case 'a':
      return prendre(reste, 4, estChiffre);
    case 'j':
      return prendre(reste, 5, estChiffre);
    case '\'': {
      const std::string_view texte = forme.substr(0, forme.find('\''));
      forme.remove_prefix(texte.size() + 1);
      return prendreTexte(reste, texte);
    }
    default:  // '*'
      return prendre(reste, reste.size(), [](char) { return true; });
  }
}

bool suit(std::string_view forme, std::string_view cle) {
  while (!forme.empty()) {
    if (!prendrePartie(forme, cle)) return false;
  }
  return cle.empty();
}

}  // namespace

const FichierConnu* fichierConnu(std::string_view nom) {
  for (const FichierConnu& connu : FichiersConnus) {
    if (!connu.prefixe && connu.nom == nom) return &connu;
  }
  for (const FichierConnu& connu : FichiersConnus) {
    if (connu.prefixe && nom.starts_with(connu.nom) &&
        nom.size() == connu.nom.size() + fichier::LongueurPortee) {
      return &connu;
    }
  }
  return nullptr;
}

bool cleBienFormee(std::string_view fichier, std::string_view cle) {
  const FichierConnu* connu = fichierConnu(fichier);
  if (connu == nullptr) return !cle.empty();
  std::string_view formes = connu->forme;
  while (true) {
    const std::size_t fin = formes.find('|');
    if (suit(formes.substr(0, fin), cle)) return true;
    if (fin == std::string_view::npos) return false;
    formes.remove_prefix(fin + 1);
  }
}

}  // namespace data
