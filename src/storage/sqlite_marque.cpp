#include "storage/sqlite_marque.h"

#include <sqlite3.h>

#include <algorithm>
#include <chrono>
#include <string_view>
#include <thread>

#include "storage/controle.h"

namespace storage {

namespace {

constexpr std::size_t kContenu = 2 * kOctetsSels;

// The 4 bytes behind the salts.
std::uint32_t sommeDe(const OctetsMarque& octets) {
  Controle controle;
  controle.Texte({reinterpret_cast<const char*>(octets.data()), kContenu});
  const std::uint64_t somme = controle.Somme();
  return static_cast<std::uint32_t>(somme ^ somme >> 32);
}

}  // namespace

OctetsMarque octetsDe(const Marque& marque) {
  OctetsMarque octets{};
  if (marque.Absente()) return octets;
  std::copy(marque.journal.begin(), marque.journal.end(), octets.begin());
  std::copy(marque.precedent.begin(), marque.precedent.end(), octets.begin() + kOctetsSels);
  const std::uint32_t somme = sommeDe(octets);
  for (std::size_t i = kContenu; i < octets.size(); ++i) {
    octets[i] = static_cast<unsigned char>(somme >> (8 * (i - kContenu)));
  }
  return octets;
}

std::optional<Marque> marqueDe(const OctetsMarque& octets) {
  Marque marque;
  std::copy_n(octets.begin(), kOctetsSels, marque.journal.begin());
  std::copy_n(octets.begin() + kOctetsSels, kOctetsSels, marque.precedent.begin());
  if (octetsDe(marque) != octets) return std::nullopt;
  return marque;
}

int lireOctetsMarque(sqlite3_file* fichier, OctetsMarque& octets) {
  const int code = fichier->pMethods->xRead(fichier, octets.data(), kOctetsMarque, kLieuMarque);
  return code == SQLITE_IOERR_SHORT_READ ? SQLITE_OK : code;
}

std::optional<Marque> lireMarque(sqlite3_file* fichier) {
  constexpr int kEssais = 3;
  for (int essai = 0; essai < kEssais; ++essai) {
    OctetsMarque octets{};
    if (lireOctetsMarque(fichier, octets) != SQLITE_OK) return std::nullopt;
    if (const auto marque = marqueDe(octets)) return marque;
    std::this_thread::sleep_for(std::chrono::milliseconds(5));
  }
  return std::nullopt;
}

int poserMarque(sqlite3_file* fichier, const Marque& marque) {
  const OctetsMarque octets = octetsDe(marque);
  const int code = fichier->pMethods->xWrite(fichier, octets.data(), kOctetsMarque, kLieuMarque);
  return code == SQLITE_OK ? fichier->pMethods->xSync(fichier, SQLITE_SYNC_NORMAL) : code;
}

Marque marqueNeuve() {
  Marque marque;
  sqlite3_randomness(kOctetsSels, marque.journal.data());
  return marque;
}

}  // namespace storage
