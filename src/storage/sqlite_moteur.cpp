#include "storage/sqlite_moteur.h"

#include <stdexcept>

#include "storage/controle.h"
#include "storage/parcours.h"
#include "storage/sqlite_schema.h"

namespace storage {

namespace {

constexpr Acte kOuverture{"Ouverture de"};
constexpr Acte kBloc{"Écriture groupée dans"};

constexpr const char* kLire = "SELECT texte, controle FROM article WHERE fichier = ?1 AND cle = ?2";
constexpr const char* kPoser =
    "INSERT INTO article(fichier, cle, texte, controle) VALUES(?1, ?2, ?3, ?4) "
    "ON CONFLICT(fichier, cle) DO UPDATE SET texte = excluded.texte, controle = excluded.controle";
constexpr const char* kOter = "DELETE FROM article WHERE fichier = ?1 AND cle = ?2";
constexpr const char* kArchiver =
    "INSERT INTO ancien(fichier, cle, numero, texte, horodatage, utilisateur, supprime, controle) "
    "VALUES(?1, ?2, ?3, ?4, ?5, ?6, ?7, ?8)";
constexpr const char* kDernierNumero =
    "SELECT max(numero) FROM ancien WHERE fichier = ?1 AND cle = ?2";
constexpr const char* kAnciens =
    "SELECT numero, texte, horodatage, utilisateur, supprime, controle FROM ancien "
    "WHERE fichier = ?1 AND cle = ?2 ORDER BY numero";
constexpr const char* kHistoire =
    "SELECT fichier, cle, numero, texte, horodatage, utilisateur, supprime, controle FROM ancien "
    "ORDER BY fichier, cle, numero";
constexpr const char* kScan =
    "SELECT cle, texte, controle FROM article "
    "WHERE fichier = ?1 AND cle >= ?2 AND cle < ?3 ORDER BY cle";
constexpr const char* kScanSansFin =
    "SELECT cle, texte, controle FROM article WHERE fichier = ?1 AND cle >= ?2 ORDER BY cle";
constexpr const char* kCompter =
    "SELECT fichier, count(*) FROM article GROUP BY fichier ORDER BY fichier";

constexpr const char* kCompterAnciens =
    "SELECT fichier, cle, count(*) FROM ancien WHERE ?1 = '' OR horodatage < ?1 "
    "GROUP BY fichier, cle ORDER BY fichier, cle";
constexpr const char* kOterAnciens = "DELETE FROM ancien WHERE horodatage < ?1";
constexpr const char* kOterSesAnciens = "DELETE FROM ancien WHERE fichier = ?1 AND cle = ?2";

// A statement of the reserve, and a scan under way, for as long as it lives.
class Emprunt {
 public:
  Emprunt(ReserveRequetes& reserve, int& parcours, const Acte& acte)
      : reserve_(reserve), parcours_(parcours), requete_(reserve.Prendre(acte)) {
    ++parcours_;
  }
  ~Emprunt() {
    --parcours_;
    requete_->Finir();
    reserve_.Rendre(std::move(requete_));
  }
  Emprunt(const Emprunt&) = delete;
  Emprunt& operator=(const Emprunt&) = delete;
  Requete* operator->() const { return requete_.get(); }

 private:
  ReserveRequetes& reserve_;
  int& parcours_;
  std::unique_ptr<Requete> requete_;
};

std::unique_ptr<Connexion> borner(std::unique_ptr<Connexion> connexion,
                                  const SqliteOptions& options) {
  if (options.pagesMax > 0) {
    const std::string borne = "PRAGMA max_page_count = " + std::to_string(options.pagesMax);
    connexion->Executer(borne.c_str(), kOuverture);
  }
  return connexion;
}

}  // namespace

Transaction::Transaction(Connexion& connexion, const Acte& acte) : connexion_(connexion) {
  // SQLite would let the transaction begin and refuse the first change only.
  if (sqlite3_db_readonly(connexion_.Db(), "main") != 0) connexion_.Echouer(SQLITE_READONLY, acte);
  connexion_.Executer("BEGIN IMMEDIATE", acte);
}

Transaction::~Transaction() {
  // SQLite has undone it already after some failures. If this fails, the next BEGIN says so.
  if (connexion_.EnTransaction()) {
    sqlite3_exec(connexion_.Db(), "ROLLBACK", nullptr, nullptr, nullptr);
  }
}

void Transaction::Valider(const Acte& acte) {
  connexion_.Executer("COMMIT", acte);
}

std::unique_ptr<Requete> ReserveRequetes::Prendre(const Acte& acte) {
  if (libres_.empty()) {
    auto requete = std::make_unique<Requete>(connexion_, sql_, acte);
    libres_.reserve(++faites_);
    return requete;
  }
  auto requete = std::move(libres_.back());
  libres_.pop_back();
  return requete;
}

void ReserveRequetes::Rendre(std::unique_ptr<Requete> requete) noexcept {
  libres_.push_back(std::move(requete));
}

SqliteStorage::Moteur::Moteur(std::unique_ptr<Connexion> connexion, Veille veille,
                              const data::Poste& poste, const SqliteOptions& options)
    : connexion_(borner(std::move(connexion), options)),
      veille_(std::move(veille)),
      poste_(poste),
      lire_(*connexion_, kLire, kOuverture),
      poser_(*connexion_, kPoser, kOuverture),
      oter_(*connexion_, kOter, kOuverture),
      archiver_(*connexion_, kArchiver, kOuverture),
      dernierNumero_(*connexion_, kDernierNumero, kOuverture),
      index_(*connexion_),
      scans_(*connexion_, kScan),
      scansSansFin_(*connexion_, kScanSansFin) {
  veille_.Suivre(*connexion_);
}

SqliteStorage::Moteur::~Moteur() {
  if (veille_.Substitue()) connexion_->LaisserJournal();
  veille_.EcarterJournal();
}

bool SqliteStorage::Moteur::Lire(const Acte& acte, std::string& texte) {
  const Usage lire(lire_);
  lire->Lier(1, acte.fichier);
  lire->Lier(2, acte.cle);
  const bool trouve = lire->Avancer(acte);
  connexion_->ExigerTenue(acte);
  if (!trouve) return false;
  const std::string_view lu = lire->Texte(0);
  if (lire->Nombre(1) != controleArticle(acte.fichier, acte.cle, lu)) {
    throw erreurControle(connexion_->Chemin(), acte);
  }
  texte.assign(lu);
  return true;
}

void SqliteStorage::Moteur::Parcourir(const Acte& acte, const data::KeyRange& cles,
                                      const Visiteur& visiteur) {
  const Emprunt scan(cles.sansFin ? scansSansFin_ : scans_, parcours_, acte);
  scan->Lier(1, acte.fichier);
  scan->Lier(2, cles.debut);
  if (!cles.sansFin) scan->Lier(3, cles.fin);
  std::string derniere;
  while (scan->Avancer({acte.nom, acte.fichier, derniere, true})) {
    connexion_->ExigerTenue(acte);
    const std::string_view cle = scan->Texte(0);
    const std::string_view texte = scan->Texte(1);
    if (scan->Nombre(2) != controleArticle(acte.fichier, cle, texte)) {
      throw erreurControle(connexion_->Chemin(), {"Lecture", acte.fichier, cle});
    }
    derniere.assign(cle);
    if (!visiteur(cle, texte)) return;
  }
  connexion_->ExigerTenue(acte);
}

std::vector<data::FichierCompte> SqliteStorage::Moteur::Compter() {
  const Acte acte{"Comptage des articles de"};
  Requete compter(*connexion_, kCompter, acte);
  std::vector<data::FichierCompte> comptes;
  while (compter.Avancer(acte)) {
    comptes.push_back({std::string(compter.Texte(0)), static_cast<long>(compter.Nombre(1))});
  }
  connexion_->ExigerTenue(acte);
  return comptes;
}

std::vector<data::AncienTexte> SqliteStorage::Moteur::Anciens(const Acte& acte) {
  Requete lire(*connexion_, kAnciens, acte);
  lire.Lier(1, acte.fichier);
  lire.Lier(2, acte.cle);
  std::vector<data::AncienTexte> anciens;
  while (lire.Avancer(acte)) {
    anciens.push_back({static_cast<long>(lire.Nombre(0)), std::string(lire.Texte(1)),
                       std::string(lire.Texte(2)), std::string(lire.Texte(3)),
                       lire.Nombre(4) != 0});
    if (lire.Nombre(5) != controleAncien(acte.fichier, acte.cle, anciens.back())) {
      throw erreurControle(connexion_->Chemin(), acte);
    }
  }
  connexion_->ExigerTenue(acte);
  return anciens;
}

void SqliteStorage::Moteur::Histoire(const VisiteurTexte& visiteur) {
  const Acte acte{"Lecture de l'historique de"};
  Requete lire(*connexion_, kHistoire, acte);
  const Parcours parcours(parcours_);
  while (lire.Avancer(acte)) {
    const std::string_view fichier = lire.Texte(0);
    const std::string_view cle = lire.Texte(1);
    const data::AncienTexte ancien{static_cast<long>(lire.Nombre(2)), std::string(lire.Texte(3)),
                                   std::string(lire.Texte(4)), std::string(lire.Texte(5)),
                                   lire.Nombre(6) != 0};
    if (lire.Nombre(7) != controleAncien(fichier, cle, ancien)) {
      throw erreurControle(connexion_->Chemin(), {"Lecture", fichier, cle});
    }
    visiteur(fichier, cle, ancien);
  }
  connexion_->ExigerTenue(acte);
}

void SqliteStorage::Moteur::Poser(const Acte& acte, std::string_view texte) {
  std::string avant;
  const bool present = Lire(acte, avant);
  if (present) {
    if (avant == texte) return;
    Archiver(acte, avant, false);
  }
  index_.Suivre(acte, present ? std::optional<std::string_view>(avant) : std::nullopt, texte);
  poser_.Lier(1, acte.fichier);
  poser_.Lier(2, acte.cle);
  poser_.Lier(3, texte);
  poser_.Lier(4, controleArticle(acte.fichier, acte.cle, texte));
  poser_.Executer(acte);
}

bool SqliteStorage::Moteur::Oter(const Acte& acte) {
  std::string avant;
  if (!Lire(acte, avant)) return false;
  Archiver(acte, avant, true);
  index_.Suivre(acte, avant, std::nullopt);
  oter_.Lier(1, acte.fichier);
  oter_.Lier(2, acte.cle);
  oter_.Executer(acte);
  return true;
}

void SqliteStorage::Moteur::CompterAnciens(std::string_view avant,
                                           const VisiteurAnciens& visiteur) {
  const Acte acte{"Lecture de l'historique de"};
  Requete compter(*connexion_, kCompterAnciens, acte);
  compter.Lier(1, avant);
  while (compter.Avancer(acte)) {
    visiteur(compter.Texte(0), compter.Texte(1), static_cast<long>(compter.Nombre(2)));
  }
  connexion_->ExigerTenue(acte);
}

void SqliteStorage::Moteur::OterAnciens(const Acte& acte, std::string_view avant) {
  Requete oter(*connexion_, kOterAnciens, acte);
  oter.Lier(1, avant);
  oter.Executer(acte);
}

// Unlike Oter, it asks for no sound record: what cannot be read can be removed.
void SqliteStorage::Moteur::OterTout(const Acte& acte) {
  for (const char* sql : {kOter, kOterSesAnciens}) {
    Requete oter(*connexion_, sql, acte);
    oter.Lier(1, acte.fichier);
    oter.Lier(2, acte.cle);
    oter.Executer(acte);
  }
}

bool SqliteStorage::Moteur::Compacter() {
  const Acte acte{"Compactage de"};
  ExigerRepos();
  veille_.Exiger(acte);
  connexion_->Executer("VACUUM", acte);
  const int code = sqlite3_wal_checkpoint_v2(connexion_->Db(), nullptr, SQLITE_CHECKPOINT_TRUNCATE,
                                             nullptr, nullptr);
  if (code != SQLITE_OK && (code & 0xFF) != SQLITE_BUSY) connexion_->Echouer(code, acte);
  // A log is begun at once: without one, who has the file open could not tell it from another.
  const std::string debut = "PRAGMA user_version = " + std::to_string(kVersion);
  connexion_->Executer(debut.c_str(), acte);
  veille_.Exiger(acte);
  return code == SQLITE_OK;
}

void SqliteStorage::Moteur::Archiver(const Acte& acte, std::string_view texte, bool supprime) {
  data::AncienTexte ancien{1, std::string(texte), poste_.Horodatage(), poste_.NomUtilisateur(),
                           supprime};
  {
    const Usage dernier(dernierNumero_);
    dernier->Lier(1, acte.fichier);
    dernier->Lier(2, acte.cle);
    if (dernier->Avancer(acte)) ancien.numero = static_cast<long>(dernier->Nombre(0)) + 1;
  }
  Ranger(acte, ancien);
}

void SqliteStorage::Moteur::Ranger(const Acte& acte, const data::AncienTexte& ancien) {
  archiver_.Lier(1, acte.fichier);
  archiver_.Lier(2, acte.cle);
  archiver_.Lier(3, std::int64_t{ancien.numero});
  archiver_.Lier(4, ancien.texte);
  archiver_.Lier(5, ancien.horodatage);
  archiver_.Lier(6, ancien.utilisateur);
  archiver_.Lier(7, std::int64_t{ancien.supprime ? 1 : 0});
  archiver_.Lier(8, controleAncien(acte.fichier, acte.cle, ancien));
  archiver_.Executer(acte);
}

void SqliteStorage::Moteur::ExigerRepos() const {
  if (enBloc_) throw std::logic_error("SqliteStorage: block under way");
  if (parcours_ > 0) throw std::logic_error("SqliteStorage: scan under way");
}

// SQLite undoes a whole transaction after some failures of the disk, a read's included: what would
// follow must not stand alone.
void SqliteStorage::Moteur::ExigerBlocSain(const Acte& acte) {
  if (rupture_) std::rethrow_exception(rupture_);
  if (connexion_->EnTransaction()) return;
  throw erreur(data::NumeroErreur::EntreeSortie, connexion_->Chemin(), acte,
               "une lecture a échoué pendant l'écriture groupée, qui est annulée. Vérifiez le "
               "fichier par la commande verifier de contrat-base, puis recommencez.");
}

void SqliteStorage::Moteur::Ecrire(const Acte& acte, const std::function<void()>& ecriture) {
  if (parcours_ > 0) throw std::logic_error("SqliteStorage: write from a visitor");
  if (!enBloc_) {
    veille_.Exiger(acte);
    Transaction transaction(*connexion_, acte);
    veille_.Exiger(acte);
    ecriture();
    transaction.Valider(acte);
    veille_.Exiger(acte);
    return;
  }
  ExigerBlocSain(acte);
  try {
    ecriture();
  } catch (...) {
    rupture_ = std::current_exception();
    throw;
  }
}

void SqliteStorage::Moteur::EnUnBloc(const std::function<void()>& travail) {
  ExigerRepos();
  veille_.Exiger(kBloc);
  Transaction transaction(*connexion_, kBloc);
  // Declared after the transaction: the block is over before it is undone or kept.
  struct Bloc {
    Moteur& moteur;
    explicit Bloc(Moteur& m) : moteur(m) { moteur.enBloc_ = true; }
    ~Bloc() {
      moteur.enBloc_ = false;
      moteur.rupture_ = nullptr;
    }
    Bloc(const Bloc&) = delete;
    Bloc& operator=(const Bloc&) = delete;
  } const bloc(*this);
  travail();
  ExigerBlocSain(kBloc);
  veille_.Exiger(kBloc);
  transaction.Valider(kBloc);
  veille_.Exiger(kBloc);
}

}  // namespace storage
