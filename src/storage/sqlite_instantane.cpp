#include "storage/sqlite_instantane.h"

#include <sys/stat.h>

#include <algorithm>
#include <array>
#include <chrono>
#include <ctime>
#include <fstream>
#include <thread>
#include <utility>

namespace storage {

namespace {

constexpr std::int64_t kSecondeNs = 1'000'000'000;
constexpr std::int64_t kFinesseNs = 20'000'000;  // coarser than any clock that marks files

std::int64_t enNs(const timespec& t) {
  return t.tv_sec * kSecondeNs + t.tv_nsec;
}

std::int64_t maintenantNs() {
  timespec t{};
  clock_gettime(CLOCK_REALTIME, &t);
  return enNs(t);
}

std::string enteteJournal(const std::string& chemin) {
  std::array<char, 32> octets{};
  std::ifstream fichier(chemin, std::ios::binary);
  fichier.read(octets.data(), octets.size());
  return {octets.data(), static_cast<std::size_t>(fichier.gcount())};
}

}  // namespace

Instantane::Instantane(std::string chemin, std::string journal)
    : chemin_(std::move(chemin)), journal_(std::move(journal)) {
  constexpr int kEssais = 5;
  for (int essai = 0; essai < kEssais; ++essai) {
    etat_ = Lire();
    const std::int64_t dernier = std::max(etat_.fichier.modifieNs, etat_.journal.modifieNs);
    const std::int64_t age = maintenantNs() - dernier;
    if (age < 0 || age > kFinesseNs) return;
    std::this_thread::sleep_for(std::chrono::nanoseconds(kFinesseNs - age + 1));
  }
}

Instantane::Fiche Instantane::Lire(const std::string& chemin) {
  struct stat fiche {};
  if (stat(chemin.c_str(), &fiche) != 0) return {};
  return {true, fiche.st_dev, fiche.st_ino, fiche.st_size, enNs(fiche.st_mtim)};
}

Instantane::Etat Instantane::Lire() const {
  return {Lire(chemin_), Lire(journal_), enteteJournal(journal_)};
}

bool Instantane::Inchange() const {
  return Lire() == etat_;
}

bool Instantane::Tient() const {
  const Etat etat = Lire();
  // An empty log says nothing, nor does the log of which nothing was read.
  const bool memeJournal = etat_.entete.empty() || etat.entete == etat_.entete;
  return etat.fichier == etat_.fichier && memeJournal;
}

}  // namespace storage
