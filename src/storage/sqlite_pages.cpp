#include "storage/sqlite_pages.h"

#include <sqlite3.h>
#include <sys/stat.h>
#include <unistd.h>

#include <algorithm>
#include <array>
#include <cerrno>
#include <csignal>
#include <memory>
#include <new>
#include <string>
#include <utility>
#include <vector>

#include "storage/controle.h"
#include "storage/sqlite_marque.h"

namespace storage {

namespace {

constexpr std::size_t kContenu = kOctetsPage - kOctetsSceau;
constexpr int kOctetsMinPage = 512;     // any SQLite page; shorter reads are of the header's fields
constexpr int kDemandePage = 0x434F4E;  // file control: the last bad page

// The log's index of a file that is read without a trace, in regions of the size that SQLite asks.
using Regions = std::vector<std::unique_ptr<std::uint64_t[]>>;

// A main file, or its log. The file of the layer below stands right behind it, in the room that
// SQLite reserved for both.
struct Fichier : sqlite3_file {
  std::int64_t mauvaisePage = 0;
  const char* nom = nullptr;     // SQLite keeps it as long as the file is open
  Fichier* principal = nullptr;  // of a log
  Regions* regions = nullptr;    // of a main file read without a trace
  bool groupeDonne = false;      // to the shared index
};
static_assert(sizeof(Fichier) % 8 == 0, "the file behind it must stay aligned");

Fichier& notre(sqlite3_file* fichier) {
  return *static_cast<Fichier*>(fichier);
}

sqlite3_file* dessous(sqlite3_file* fichier) {
  return reinterpret_cast<sqlite3_file*>(static_cast<Fichier*>(fichier) + 1);
}

sqlite3_vfs* vfsDessous(sqlite3_vfs* vfs) {
  return static_cast<sqlite3_vfs*>(vfs->pAppData);
}

using Sceau = std::array<unsigned char, kOctetsSceau>;

// Never zero: zero stands for a page without a seal.
Sceau sceauDe(const char* page, std::int64_t numero) {
  Controle controle;
  controle.Nombre(numero);
  controle.Texte({page, kContenu});
  const std::uint64_t somme = std::max<std::uint64_t>(controle.Somme(), 1);
  Sceau sceau;
  for (std::size_t i = 0; i < sceau.size(); ++i) {
    sceau[i] = static_cast<unsigned char>(somme >> (8 * i));
  }
  return sceau;
}

// Takes the mark out of a first page as it stands on the disk; false when it is damaged.
bool retirerMarque(sqlite3_file* fichier, char* page) {
  OctetsMarque octets;
  std::copy_n(page + kLieuMarque, octets.size(), octets.begin());
  std::fill_n(page + kLieuMarque, octets.size(), '\0');
  return marqueDe(octets).has_value() || lireMarque(dessous(fichier)).has_value();
}

bool estPage(int octets, sqlite3_int64 position) {
  return octets == kOctetsPage && position % kOctetsPage == 0;
}

// See refusDuSysteme.
thread_local int refusSysteme = 0;

int taille(sqlite3_file* f, sqlite3_int64* octets) {
  return dessous(f)->pMethods->xFileSize(dessous(f), octets);
}

int refuserPage(sqlite3_file* fichier, sqlite3_int64 position) {
  notre(fichier).mauvaisePage = position / kOctetsPage + 1;
  return SQLITE_IOERR_DATA;
}

// A page that the file's end cuts. SQLite would take what is missing for zeros; only a file that is
// still empty may lack its first page.
int lireCoupee(sqlite3_file* fichier, sqlite3_int64 position) {
  sqlite3_int64 octets = 0;
  const int code = taille(fichier, &octets);
  if (code != SQLITE_OK) return code;
  return octets == 0 ? SQLITE_IOERR_SHORT_READ : refuserPage(fichier, position);
}

int lire(sqlite3_file* fichier, void* tampon, int octets, sqlite3_int64 position) {
  const int code = dessous(fichier)->pMethods->xRead(dessous(fichier), tampon, octets, position);
  if (octets < kOctetsMinPage) return code;
  if (code == SQLITE_IOERR_SHORT_READ) return lireCoupee(fichier, position);
  if (code != SQLITE_OK) return code;
  if (!estPage(octets, position)) return refuserPage(fichier, position);
  char* page = static_cast<char*>(tampon);
  if (position == 0 && !retirerMarque(fichier, page)) return refuserPage(fichier, position);
  auto* sceau = reinterpret_cast<unsigned char*>(page + kContenu);
  if (std::all_of(sceau, sceau + kOctetsSceau, [](unsigned char c) { return c == 0; })) return code;
  const Sceau attendu = sceauDe(page, position / kOctetsPage + 1);
  if (!std::equal(attendu.begin(), attendu.end(), sceau)) return refuserPage(fichier, position);
  std::fill(sceau, sceau + kOctetsSceau, static_cast<unsigned char>(0));
  return code;
}

int ecrireDessous(sqlite3_file* fichier, const void* tampon, int octets, sqlite3_int64 position) {
  const int code = dessous(fichier)->pMethods->xWrite(dessous(fichier), tampon, octets, position);
  refusSysteme = code == SQLITE_OK ? 0 : errno;
  return code;
}

int ecrire(sqlite3_file* fichier, const void* tampon, int octets, sqlite3_int64 position) {
  if (!estPage(octets, position)) return ecrireDessous(fichier, tampon, octets, position);
  std::array<char, kOctetsPage> scellee;
  std::copy_n(static_cast<const char*>(tampon), kContenu, scellee.begin());
  OctetsMarque marque{};
  if (position == 0) {
    const int code = lireOctetsMarque(dessous(fichier), marque);
    if (code != SQLITE_OK) return code;
    // An ordinary SQLite tool may have put a mark that it read into the log.
    std::fill_n(scellee.begin() + kLieuMarque, marque.size(), '\0');
  }
  const Sceau sceau = sceauDe(scellee.data(), position / kOctetsPage + 1);
  std::copy(sceau.begin(), sceau.end(), scellee.begin() + kContenu);
  if (position == 0) std::copy(marque.begin(), marque.end(), scellee.begin() + kLieuMarque);
  return ecrireDessous(fichier, scellee.data(), octets, position);
}

int lireJournal(sqlite3_file* fichier, void* tampon, int octets, sqlite3_int64 position) {
  return dessous(fichier)->pMethods->xRead(dessous(fichier), tampon, octets, position);
}

// A log is begun by the writing of its header: the mark comes first, and is on the disk before.
int ecrireJournal(sqlite3_file* fichier, const void* tampon, int octets, sqlite3_int64 position) {
  Fichier* const principal = notre(fichier).principal;
  if (position == 0 && octets >= kLieuSels + kOctetsSels && principal != nullptr) {
    Sels sels;
    std::copy_n(static_cast<const unsigned char*>(tampon) + kLieuSels, sels.size(), sels.begin());
    const auto marque = lireMarque(dessous(principal));
    if (!marque) return refuserPage(principal, 0);
    if (marque->journal != sels) {
      const int code = poserMarque(dessous(principal), {sels, marque->journal});
      if (code != SQLITE_OK) return code;
    }
  }
  return ecrireDessous(fichier, tampon, octets, position);
}

int commander(sqlite3_file* fichier, int demande, void* valeur) {
  if (demande != kDemandePage) {
    return dessous(fichier)->pMethods->xFileControl(dessous(fichier), demande, valeur);
  }
  *static_cast<std::int64_t*>(valeur) = std::exchange(notre(fichier).mauvaisePage, 0);
  return SQLITE_OK;
}

// What only passes through.
int fermer(sqlite3_file* f) {
  delete std::exchange(notre(f).regions, nullptr);
  return dessous(f)->pMethods->xClose(dessous(f));
}
int couper(sqlite3_file* f, sqlite3_int64 taille) {
  return dessous(f)->pMethods->xTruncate(dessous(f), taille);
}
int synchroniser(sqlite3_file* f, int modes) {
  return dessous(f)->pMethods->xSync(dessous(f), modes);
}
// Without a trace, nobody is to notice the reader, and it is never the last to leave.
int verrouiller(sqlite3_file* f, int degre) {
  if (notre(f).regions == nullptr) return dessous(f)->pMethods->xLock(dessous(f), degre);
  return degre <= SQLITE_LOCK_SHARED ? SQLITE_OK : SQLITE_BUSY;
}
int deverrouiller(sqlite3_file* f, int degre) {
  if (notre(f).regions != nullptr) return SQLITE_OK;
  return dessous(f)->pMethods->xUnlock(dessous(f), degre);
}
int estReserve(sqlite3_file* f, int* oui) {
  return dessous(f)->pMethods->xCheckReservedLock(dessous(f), oui);
}
int secteur(sqlite3_file* f) {
  return dessous(f)->pMethods->xSectorSize(dessous(f));
}
int qualites(sqlite3_file* f) {
  return dessous(f)->pMethods->xDeviceCharacteristics(dessous(f));
}

// Whoever may write the main file may write what stands beside it. SQLite gives it the main file's
// rights, and its group only to root. A group that this user is not of stays as it is.
void donnerGroupe(const Fichier& principal, const std::string& chemin) {
  struct stat modele {};
  struct stat fiche {};
  if (principal.nom == nullptr || stat(principal.nom, &modele) != 0 ||
      stat(chemin.c_str(), &fiche) != 0 || fiche.st_gid == modele.st_gid) {
    return;
  }
  if (chown(chemin.c_str(), static_cast<uid_t>(-1), modele.st_gid) != 0) return;
}

int shmPrivee(Regions& regions, int region, int octets, int etendre, void volatile** ou) {
  const auto rang = static_cast<std::size_t>(region);
  const auto mots = static_cast<std::size_t>(octets) / sizeof(std::uint64_t);
  *ou = nullptr;
  if (rang >= regions.size() && etendre == 0) return SQLITE_OK;
  try {
    while (rang >= regions.size()) regions.push_back(std::make_unique<std::uint64_t[]>(mots));
  } catch (const std::bad_alloc&) {
    return SQLITE_NOMEM;
  }
  *ou = regions[rang].get();
  return SQLITE_OK;
}

int shmOuvrir(sqlite3_file* f, int region, int octets, int etendre, void volatile** ou) {
  Fichier& fichier = notre(f);
  if (fichier.regions != nullptr) return shmPrivee(*fichier.regions, region, octets, etendre, ou);
  const int code = dessous(f)->pMethods->xShmMap(dessous(f), region, octets, etendre, ou);
  if (code == SQLITE_OK && !std::exchange(fichier.groupeDonne, true) && fichier.nom != nullptr) {
    donnerGroupe(fichier, std::string(fichier.nom) + "-shm");
  }
  return code;
}
int shmVerrouiller(sqlite3_file* f, int debut, int n, int modes) {
  if (notre(f).regions != nullptr) return SQLITE_OK;
  return dessous(f)->pMethods->xShmLock(dessous(f), debut, n, modes);
}
void shmBarriere(sqlite3_file* f) {
  if (notre(f).regions == nullptr) dessous(f)->pMethods->xShmBarrier(dessous(f));
}
int shmFermer(sqlite3_file* f, int supprimer) {
  if (notre(f).regions != nullptr) return SQLITE_OK;
  return dessous(f)->pMethods->xShmUnmap(dessous(f), supprimer);
}

// Version 2 has the shared memory of the log and no memory-mapped pages, which would be read
// without us.
constexpr sqlite3_io_methods kMethodes = {
    2,        fermer,      lire,           ecrire,      couper,    synchroniser,
    taille,   verrouiller, deverrouiller,  estReserve,  commander, secteur,
    qualites, shmOuvrir,   shmVerrouiller, shmBarriere, shmFermer, nullptr,
    nullptr};

// A log is read and written by the same layer, without seals and without shared memory.
constexpr sqlite3_io_methods kMethodesJournal = {
    1,           fermer,        lireJournal, ecrireJournal, couper,  synchroniser, taille,
    verrouiller, deverrouiller, estReserve,  commander,     secteur, qualites,     nullptr,
    nullptr,     nullptr,       nullptr,     nullptr,       nullptr};

int ouvrirJournal(sqlite3_vfs* base, sqlite3_filename nom, sqlite3_file* f, int modes,
                  int* obtenu) {
  Fichier& fichier = *new (f) Fichier{};
  fichier.principal = static_cast<Fichier*>(sqlite3_database_file_object(nom));
  const bool prive = fichier.principal->regions != nullptr;
  if (prive) modes = (modes & ~(SQLITE_OPEN_READWRITE | SQLITE_OPEN_CREATE)) | SQLITE_OPEN_READONLY;
  const int code = base->xOpen(base, nom, dessous(f), modes, obtenu);
  f->pMethods = code == SQLITE_OK ? &kMethodesJournal : nullptr;
  if (code == SQLITE_OK && !prive) donnerGroupe(*fichier.principal, nom);
  return code;
}

int ouvrir(sqlite3_vfs* vfs, sqlite3_filename nom, sqlite3_file* f, int modes, int* obtenu) {
  sqlite3_vfs* base = vfsDessous(vfs);
  if ((modes & SQLITE_OPEN_WAL) != 0) return ouvrirJournal(base, nom, f, modes, obtenu);
  if ((modes & SQLITE_OPEN_MAIN_DB) == 0) return base->xOpen(base, nom, f, modes, obtenu);
  Fichier& fichier = *new (f) Fichier{};
  const int code = base->xOpen(base, nom, dessous(f), modes, obtenu);
  f->pMethods = code == SQLITE_OK ? &kMethodes : nullptr;
  if (code != SQLITE_OK) return code;
  fichier.nom = nom;
  if (sqlite3_uri_boolean(nom, "prive", 0) != 0) {
    fichier.regions = new (std::nothrow) Regions;
    if (fichier.regions == nullptr) {
      fermer(f);
      f->pMethods = nullptr;
      return SQLITE_NOMEM;
    }
  }
  return code;
}

// The methods that concern no open file are those of the layer below: they look at nothing in the
// structure but its path length.
sqlite3_vfs couche(sqlite3_vfs* base) {
  sqlite3_vfs vfs = *base;
  vfs.szOsFile = base->szOsFile + static_cast<int>(sizeof(Fichier));
  vfs.pNext = nullptr;
  vfs.zName = "contrats-pages";
  vfs.pAppData = base;
  vfs.xOpen = ouvrir;
  return vfs;
}

// Registered once, for the life of the program; null when that failed.
sqlite3_vfs* enregistree() {
  if (sqlite3_initialize() != SQLITE_OK) return nullptr;
  sqlite3_vfs* base = sqlite3_vfs_find(nullptr);
  if (base == nullptr) return nullptr;
  // A limit on the size of files is then an error of the write, not the end of the program.
  struct sigaction avant {};
  if (sigaction(SIGXFSZ, nullptr, &avant) == 0 && avant.sa_handler == SIG_DFL) {
    std::signal(SIGXFSZ, SIG_IGN);
  }
  static sqlite3_vfs vfs = couche(base);
  return sqlite3_vfs_register(&vfs, 0) == SQLITE_OK ? &vfs : nullptr;
}

}  // namespace

const char* nomVfsPages() {
  static const sqlite3_vfs* const vfs = enregistree();
  return vfs == nullptr ? nullptr : vfs->zName;
}

int refusDuSysteme() {
  return refusSysteme;
}

std::int64_t derniereMauvaisePage(sqlite3* db) {
  std::int64_t numero = 0;
  sqlite3_file_control(db, "main", kDemandePage, &numero);
  return numero;
}

Tailles taillesFichier(sqlite3* db) {
  constexpr sqlite3_int64 kLieuPages = 28;  // of the header: number of pages, big-endian
  sqlite3_file* fichier = nullptr;
  sqlite3_file_control(db, "main", SQLITE_FCNTL_FILE_POINTER, &fichier);
  Tailles tailles;
  sqlite3_int64 octets = 0;
  std::array<unsigned char, 4> pages{};
  if (fichier == nullptr || fichier->pMethods == nullptr || taille(fichier, &octets) != SQLITE_OK ||
      lire(fichier, pages.data(), static_cast<int>(pages.size()), kLieuPages) != SQLITE_OK) {
    return tailles;
  }
  for (const unsigned char octet : pages) tailles.attendue = tailles.attendue * 256 + octet;
  tailles.attendue *= kOctetsPage;
  tailles.trouvee = octets;
  return tailles;
}

bool pageSaine(sqlite3_file* fichier, std::int64_t numero) {
  std::array<char, kOctetsPage> page;
  const int code =
      fichier->pMethods->xRead(fichier, page.data(), kOctetsPage, (numero - 1) * kOctetsPage);
  notre(fichier).mauvaisePage = 0;
  return code == SQLITE_OK;
}

}  // namespace storage
