#include "storage/controle.h"

#include <cstddef>
#include <cstring>

namespace storage {

namespace {

constexpr std::size_t kMot = 8;  // bytes

// The first `octets` bytes at `p`, at most eight, as a little-endian number.
std::uint64_t motPartiel(const char* p, std::size_t octets) {
  std::uint64_t mot = 0;
  for (std::size_t i = 0; i < octets; ++i) {
    mot |= static_cast<std::uint64_t>(static_cast<unsigned char>(p[i])) << (8 * i);
  }
  return mot;
}

std::uint64_t motEntier(const char* p) {
  if constexpr (std::endian::native != std::endian::little) return motPartiel(p, kMot);
  std::uint64_t mot = 0;
  std::memcpy(&mot, p, kMot);
  return mot;
}

}  // namespace

void Controle::Texte(std::string_view texte) {
  const char* p = texte.data();
  std::size_t reste = texte.size();
  for (; reste >= 4 * kMot; reste -= 4 * kMot, p += 4 * kMot) {
    Mot(voies_[0], motEntier(p));
    Mot(voies_[1], motEntier(p + kMot));
    Mot(voies_[2], motEntier(p + 2 * kMot));
    Mot(voies_[3], motEntier(p + 3 * kMot));
  }
  for (; reste >= kMot; reste -= kMot, p += kMot) Mot(voies_[0], motEntier(p));
  if (reste > 0) Mot(voies_[0], motPartiel(p, reste));
  Mot(voies_[0], texte.size());
}

std::uint64_t Controle::Somme() const {
  std::uint64_t somme = voies_[0];
  for (int i = 1; i < 4; ++i) Mot(somme, voies_[i]);
  Mot(somme, 0);
  return somme;
}

}  // namespace storage
