#include "storage/sqlite_journal.h"

#include <algorithm>
#include <array>
#include <chrono>
#include <cstdio>
#include <filesystem>
#include <fstream>
#include <thread>

namespace storage {

namespace {

namespace fs = std::filesystem;
using data::NumeroErreur;

constexpr Acte kOuverture{"Ouverture de"};
constexpr std::chrono::milliseconds kPas{20};
constexpr std::size_t kOctetsEntete = 32;  // of a log

// Of the log; SQLite makes it anew when it is absent.
std::string indexDe(const std::string& journal) {
  return journal.substr(0, journal.size() - 3) + "shm";
}

}  // namespace

std::optional<Sels> selsDuJournal(const std::string& journal) {
  // The first four bytes of any log but the order of the bytes of its sums, in the last bit.
  constexpr std::array<unsigned char, 3> kMagique{0x37, 0x7F, 0x06};
  std::array<char, kOctetsEntete> entete{};
  std::ifstream fichier(journal, std::ios::binary);
  if (!fichier.read(entete.data(), entete.size())) return std::nullopt;
  const auto octet = [&](std::size_t i) { return static_cast<unsigned char>(entete[i]); };
  for (std::size_t i = 0; i < kMagique.size(); ++i) {
    if (octet(i) != kMagique[i]) return std::nullopt;
  }
  Sels sels;
  for (std::size_t i = 0; i < sels.size(); ++i) sels[i] = octet(kLieuSels + i);
  return sels;
}

bool journalEtranger(const Connexion& connexion) {
  // The log first: a log that is begun meanwhile finds its mark laid before.
  const auto sels = selsDuJournal(connexion.Journal());
  if (!sels) return false;
  const auto marque = lireMarque(connexion.Fichier());
  return marque && !marque->Admet(*sels);
}

std::string ecarterJournal(const std::string& journal) {
  std::error_code code;
  std::string nom;
  for (int n = 1; nom.empty() || fs::exists(nom, code); ++n) {
    nom = journal + ".autre-fichier" + std::to_string(n);
  }
  fs::rename(journal, nom, code);
  if (code) return {};
  fs::remove(indexDe(journal), code);
  return nom;
}

Exclusivite::Exclusivite(const Connexion& connexion, int attenteMs) : connexion_(connexion) {
  sqlite3_file* const fichier = connexion.Fichier();
  const auto fin = std::chrono::steady_clock::now() + std::chrono::milliseconds(attenteMs);
  while (true) {
    tenue_ = fichier->pMethods->xLock(fichier, SQLITE_LOCK_SHARED) == SQLITE_OK &&
             fichier->pMethods->xLock(fichier, SQLITE_LOCK_EXCLUSIVE) == SQLITE_OK;
    if (tenue_) return;
    fichier->pMethods->xUnlock(fichier, SQLITE_LOCK_NONE);
    if (std::chrono::steady_clock::now() >= fin) return;
    std::this_thread::sleep_for(kPas);
  }
}

Exclusivite::~Exclusivite() {
  sqlite3_file* const fichier = connexion_.Fichier();
  if (tenue_) fichier->pMethods->xUnlock(fichier, SQLITE_LOCK_NONE);
}

void ecarterJournalEtranger(Connexion& connexion, int attenteMs) {
  if (!journalEtranger(connexion)) return;
  const Exclusivite exclusivite(connexion, attenteMs);
  if (!journalEtranger(connexion)) return;
  if (!exclusivite.Tenue()) {
    throw erreur(NumeroErreur::Occupe, connexion.Chemin(), kOuverture,
                 "le fichier a été remplacé alors qu'un programme l'avait ouvert. Fermez tous les "
                 "programmes qui l'utilisent, puis ouvrez-le à nouveau.");
  }
  const std::string journal = connexion.Journal();
  const std::string nom = ecarterJournal(journal);
  if (nom.empty()) {
    throw erreur(NumeroErreur::EntreeSortie, connexion.Chemin(), kOuverture,
                 "le journal « " + journal +
                     " » est celui d'un autre fichier, et il ne peut pas être renommé. "
                     "Déplacez-le, puis recommencez.");
  }
  connexion.Avertir("Le journal trouvé à côté de « " + connexion.Chemin() +
                    " » est celui d'un autre fichier, que celui-ci a remplacé : il a été mis de "
                    "côté sous le nom « " +
                    nom + " ». Les dernières écritures de l'autre fichier y sont.");
}

void oterVoisinsVides(const Connexion& connexion) {
  const Exclusivite exclusivite(connexion, 0);
  if (!exclusivite.Tenue()) return;
  const std::string journal = connexion.Journal();
  std::error_code code;
  if (fs::exists(journal, code) && fs::file_size(journal, code) == 0) fs::remove(journal, code);
  fs::remove(indexDe(journal), code);
}

}  // namespace storage
