#pragma once
// The 64-bit checksum of records and pages. It tells damage from soundness, not friend from foe:
// any change of one 8-byte word changes the sum, other changes slip through once in 2^64. The sum
// of the same content is the same on every machine: it stands in the data files.

#include <bit>
#include <cstdint>
#include <string_view>

#include "data/storage.h"

namespace storage {

class Controle {
 public:
  // Takes in a text with its length, so that the border between two texts counts.
  void Texte(std::string_view texte);
  void Nombre(std::int64_t nombre) { Mot(voies_[0], static_cast<std::uint64_t>(nombre)); }

  // The sum of all that was taken in, in that order.
  std::uint64_t Somme() const;
  // The same bits, as a column of a table holds them.
  std::int64_t Valeur() const { return std::bit_cast<std::int64_t>(Somme()); }

 private:
  // Reversible in `etat` and in `mot`, so that one changed word never goes unseen.
  static void Mot(std::uint64_t& etat, std::uint64_t mot) {
    etat = (etat ^ mot) * 0x9E3779B97F4A7C15U;
    etat ^= etat >> 32;
  }

  // Four independent lanes: a processor works at them in parallel.
  std::uint64_t voies_[4] = {0x243F6A8885A308D3U, 0x13198A2E03707344U, 0xA4093822299F31D0U,
                             0x082EFA98EC4E6C89U};
};

// Of a record, and of nothing else that could stand in its place.
inline std::int64_t controleArticle(std::string_view fichier, std::string_view cle,
                                    std::string_view texte) {
  Controle controle;
  controle.Texte(fichier);
  controle.Texte(cle);
  controle.Texte(texte);
  return controle.Valeur();
}

// Of a former text, with its number and marks.
inline std::int64_t controleAncien(std::string_view fichier, std::string_view cle,
                                   const data::AncienTexte& ancien) {
  Controle controle;
  controle.Texte(fichier);
  controle.Texte(cle);
  controle.Nombre(ancien.numero);
  controle.Texte(ancien.texte);
  controle.Texte(ancien.horodatage);
  controle.Texte(ancien.utilisateur);
  controle.Nombre(ancien.supprime ? 1 : 0);
  return controle.Valeur();
}

}  // namespace storage
