#include "screen/touches.h"

#include "data/texte.h"

namespace screen {

std::u32string touchesDe(std::string_view texte) {
  std::u32string touches;
  for (std::size_t i = 0; i < texte.size();) {
    const std::size_t longueur = data::octetsCaractere(texte, i);
    if (longueur == 0) {
      ++i;
      continue;
    }
    const auto tete = static_cast<unsigned char>(texte[i]);
    char32_t touche = longueur == 1 ? tete : tete & (0x7Fu >> longueur);
    for (std::size_t j = 1; j < longueur; ++j) {
      touche = touche << 6 | (static_cast<unsigned char>(texte[i + j]) & 0x3Fu);
    }
    touches += touche;
    i += longueur;
  }
  return touches;
}

std::string texteDe(char32_t touche) {
  constexpr unsigned tetes[] = {0, 0xC0, 0xE0, 0xF0};
  if (touche < 0x80) return {static_cast<char>(touche)};
  const int suites = touche < 0x800 ? 1 : touche < 0x10000 ? 2 : 3;
  std::string texte{static_cast<char>(tetes[suites] | touche >> (6 * suites))};
  for (int i = suites - 1; i >= 0; --i) {
    texte += static_cast<char>(0x80u | (touche >> (6 * i) & 0x3Fu));
  }
  return texte;
}

bool estChiffre(char32_t touche) {
  return touche >= U'0' && touche <= U'9';
}

void chiffresSeuls(char32_t& touche) {
  if (touche >= U' ' && !estChiffre(touche)) touche = 0;
}

bool estCaractere(char32_t touche) {
  const bool control = touche < 0x20 || (touche >= 0x7F && touche < 0xA0);
  return !control && touche <= 0x10FFFF && (touche < 0xD800 || touche > 0xDFFF);
}

}  // namespace screen
