#include "storage/sqlite_verifier.h"

#include <algorithm>
#include <charconv>
#include <chrono>
#include <set>
#include <string_view>
#include <thread>
#include <utility>

#include "storage/controle.h"
#include "storage/sqlite_erreur.h"
#include "storage/sqlite_pages.h"

namespace storage {

namespace {

constexpr Acte kControle{"Contrôle de"};
constexpr long kPasAvance = 10000;  // records between two calls of `avance`

using Lieu = std::pair<std::string, std::string>;  // file and key

// One of the two tables, in the order of its keys and against it.
struct Table {
  bool anciens;
  const char* montante;
  const char* descendante;
};
constexpr Table kTables[] = {
    {false, "SELECT fichier, cle, controle, texte FROM article ORDER BY fichier, cle",
     "SELECT fichier, cle, controle, texte FROM article ORDER BY fichier DESC, cle DESC"},
    {true,
     "SELECT fichier, cle, controle, texte, numero, horodatage, utilisateur, supprime FROM ancien "
     "ORDER BY fichier, cle, numero",
     "SELECT fichier, cle, controle, texte, numero, horodatage, utilisateur, supprime FROM ancien "
     "ORDER BY fichier DESC, cle DESC, numero DESC"},
};

// The number after the first "page " or "Page " of `ligne` that a number follows, 0 without one.
std::int64_t pageNommee(std::string_view ligne) {
  constexpr std::string_view kPage = "age ";
  for (auto i = ligne.find(kPage); i != std::string_view::npos; i = ligne.find(kPage, i + 1)) {
    const std::string_view suite = ligne.substr(i + kPage.size());
    std::int64_t numero = 0;
    if (std::from_chars(suite.data(), suite.data() + suite.size(), numero).ec == std::errc{}) {
      return numero;
    }
  }
  return 0;
}

class Controleur {
 public:
  Controleur(Connexion& connexion, const std::function<void(const Dommage&)>& signaler,
             const std::function<void(long)>& avance)
      : connexion_(connexion), signaler_(signaler), avance_(avance) {}

  void Pages();
  void Structure();
  void Lignes(const Table& table);

 private:
  void Signaler(std::string message) { signaler_({{}, {}, std::move(message)}); }
  void Page(std::int64_t numero);
  bool Constat(std::string_view constat);
  bool PageTient(sqlite3_file* fichier, std::int64_t numero) const;
  bool Parcourir(const Table& table, bool montant, const Lieu* jusque, Lieu& dernier);
  void Ligne(const Table& table, const Requete& requete);

  Connexion& connexion_;
  const std::function<void(const Dommage&)>& signaler_;
  const std::function<void(long)>& avance_;
  std::set<std::int64_t> pages_;  // told as damaged
  long lues_ = 0;
};

// Another process may be writing the very page: only one that stays wrong is damaged.
bool Controleur::PageTient(sqlite3_file* fichier, std::int64_t numero) const {
  constexpr int kEssais = 3;
  for (int essai = 0; essai < kEssais; ++essai) {
    if (pageSaine(fichier, numero)) return true;
    std::this_thread::sleep_for(std::chrono::milliseconds(20));
  }
  return false;
}

void Controleur::Pages() {
  sqlite3_file* fichier = connexion_.Fichier();
  sqlite3_int64 octets = 0;
  const int code = fichier->pMethods->xFileSize(fichier, &octets);
  if (code != SQLITE_OK) connexion_.Echouer(code, kControle);
  const std::int64_t pages = (octets + kOctetsPage - 1) / kOctetsPage;
  for (std::int64_t numero = 1; numero <= pages; ++numero) {
    if (!PageTient(fichier, numero)) Page(numero);
  }
  // A damaged first page says nothing of the file's size that could be believed.
  if (pages_.contains(1)) return;
  std::string manque = finManquante(connexion_.Db(), connexion_.Chemin());
  if (manque.empty()) return;
  manque.replace(0, 1, "L");
  Signaler(manque + '.');
}

void Controleur::Page(std::int64_t numero) {
  if (!pages_.insert(numero).second) return;
  Signaler("La page " + std::to_string(numero) + " du fichier est endommagée.");
}

void Controleur::Structure() {
  bool sansPage = false;
  try {
    Requete requete(connexion_, "PRAGMA integrity_check(100)", kControle);
    while (requete.Avancer(kControle)) {
      if (requete.Texte(0) == "ok") return;
      sansPage = !Constat(requete.Texte(0)) || sansPage;
    }
  } catch (const data::StoreError& refus) {
    if (refus.Numero() != data::NumeroErreur::Endommage) throw;
    sansPage = sansPage || pages_.empty();
  }
  if (sansPage) Signaler("La structure du fichier est endommagée : des articles peuvent manquer.");
}

// SQLite's own findings are English lines, of which the page numbers are kept. False when a line
// names no page.
bool Controleur::Constat(std::string_view constat) {
  bool toutes = true;
  while (!constat.empty()) {
    const std::string_view ligne = constat.substr(0, constat.find('\n'));
    constat.remove_prefix(std::min(constat.size(), ligne.size() + 1));
    if (ligne.starts_with("***")) continue;  // the heading of the lines that follow
    const std::int64_t page = pageNommee(ligne);
    if (page > 0) Page(page);
    toutes = toutes && page > 0;
  }
  return toutes;
}

void Controleur::Ligne(const Table& table, const Requete& requete) {
  const std::string_view fichier = requete.Texte(0);
  const std::string_view cle = requete.Texte(1);
  const std::int64_t controle = requete.Nombre(2);
  std::string quoi;
  if (!table.anciens) {
    if (controle == controleArticle(fichier, cle, requete.Texte(3))) return;
    quoi = "L'article";
  } else {
    const data::AncienTexte ancien{static_cast<long>(requete.Nombre(4)),
                                   std::string(requete.Texte(3)), std::string(requete.Texte(5)),
                                   std::string(requete.Texte(6)), requete.Nombre(7) != 0};
    if (controle == controleAncien(fichier, cle, ancien)) return;
    quoi = "L'ancien texte " + std::to_string(ancien.numero) + " de l'article";
  }
  signaler_({std::string(fichier), std::string(cle),
             quoi.append(" « ").append(cle).append(" » du fichier ").append(fichier) +
                 " ne se relit pas tel qu'il a été écrit."});
}

// Reads rows until the end, or the place `jusque`, which it leaves out; `dernier` is the last place
// read. False when a damaged page cut the way.
bool Controleur::Parcourir(const Table& table, bool montant, const Lieu* jusque, Lieu& dernier) {
  try {
    Requete requete(connexion_, montant ? table.montante : table.descendante, kControle);
    while (requete.Avancer(kControle)) {
      Lieu lieu(requete.Texte(0), requete.Texte(1));
      if (jusque != nullptr && lieu <= *jusque) return true;
      Ligne(table, requete);
      dernier = std::move(lieu);
      if (++lues_ % kPasAvance == 0 && avance_) avance_(lues_);
    }
    return true;
  } catch (const data::StoreError& refus) {
    if (refus.Numero() == data::NumeroErreur::Endommage) return false;
    throw;
  }
}

void Controleur::Lignes(const Table& table) {
  Lieu avant;
  if (Parcourir(table, true, nullptr, avant)) return;
  Lieu apres;
  Parcourir(table, false, &avant, apres);
  const auto nommer = [](const Lieu& lieu, const char* sinon) {
    return lieu.first.empty() ? std::string(sinon) : lieu.first + " « " + lieu.second + " »";
  };
  Signaler(std::string(table.anciens ? "Les anciens textes" : "Les articles") + " entre " +
           nommer(avant, "le début") + " et " + nommer(apres, "la fin") +
           " ne peuvent pas être tous lus.");
}

}  // namespace

void verifierFichier(Connexion& connexion, const std::function<void(const Dommage&)>& signaler,
                     const std::function<void(long)>& avance) {
  Controleur controleur(connexion, signaler, avance);
  controleur.Pages();
  controleur.Structure();
  for (const Table& table : kTables) controleur.Lignes(table);
}

}  // namespace storage
