// The store's transactions and writes.

#include "storage/postgres_moteur.h"

#include <random>
#include <stdexcept>
#include <thread>

#include "storage/controle.h"
#include "storage/postgres_schema.h"
#include "storage/signature_index.h"

namespace storage {

namespace {

using data::NumeroErreur;

constexpr Acte kOuverture{"Ouverture de"};
constexpr Acte kBloc{"Écriture groupée dans"};
// Orders of a block that may be on their way without an answer.
constexpr std::size_t kEnvoisMax = 500;
// Records of a block that are read back when its end is not sure.
constexpr std::size_t kEcritsNotes = 100;
constexpr std::chrono::milliseconds kPremierePause{2};
constexpr std::chrono::milliseconds kPauseMax{200};

constexpr Ordre kDebut{"", "BEGIN ISOLATION LEVEL SERIALIZABLE"};
constexpr Ordre kDebutLecture{"", "BEGIN ISOLATION LEVEL REPEATABLE READ READ ONLY"};
constexpr Ordre kFin{"", "COMMIT"};
constexpr Ordre kAnnuler{"", "ROLLBACK"};

// The former text goes to the history with the checksum that it had. A text equal to the stored
// one writes nothing. The last number is looked for from the end of the key: a plan for max() that
// was made while the history was short goes through all of it.
constexpr Ordre kPoser{
    "poser",
    "WITH avant AS (INSERT INTO contrats.ancien"
    "(fichier, cle, numero, texte, horodatage, utilisateur, supprime, controle) "
    "SELECT a.fichier, a.cle, coalesce((SELECT n.numero FROM contrats.ancien n "
    "WHERE n.fichier = $1::bytea AND n.cle = $2::bytea ORDER BY n.numero DESC LIMIT 1), 0) + 1, "
    "a.texte, $5::bytea, $6::bytea, false, a.controle FROM contrats.article a "
    "WHERE a.fichier = $1::bytea AND a.cle = $2::bytea AND a.texte <> $3::bytea) "
    "INSERT INTO contrats.article(fichier, cle, texte, controle) "
    "VALUES($1::bytea, $2::bytea, $3::bytea, $4::int8) "
    "ON CONFLICT (fichier, cle) DO UPDATE SET texte = excluded.texte, controle = excluded.controle "
    "WHERE article.texte <> excluded.texte"};
constexpr Ordre kOter{
    "oter",
    "WITH avant AS (INSERT INTO contrats.ancien"
    "(fichier, cle, numero, texte, horodatage, utilisateur, supprime, controle) "
    "SELECT a.fichier, a.cle, coalesce((SELECT n.numero FROM contrats.ancien n "
    "WHERE n.fichier = $1::bytea AND n.cle = $2::bytea ORDER BY n.numero DESC LIMIT 1), 0) + 1, "
    "a.texte, $3::bytea, $4::bytea, true, a.controle FROM contrats.article a "
    "WHERE a.fichier = $1::bytea AND a.cle = $2::bytea) "
    "DELETE FROM contrats.article WHERE fichier = $1::bytea AND cle = $2::bytea"};

// A record's entries in the indexes $1 become those that $3 and $4 list.
constexpr Ordre kOterEntrees{
    "oter_entrees",
    "DELETE FROM contrats.entree e WHERE e.indice = ANY($1::int8[]) AND e.cle = $2::bytea "
    "AND NOT EXISTS (SELECT 1 FROM unnest($3::int8[], $4::bytea[]) AS n(indice, valeur) "
    "WHERE n.indice = e.indice AND n.valeur = e.valeur)"};
constexpr Ordre kPoserEntrees{
    "poser_entrees",
    "INSERT INTO contrats.entree(indice, valeur, cle) "
    "SELECT n.indice, n.valeur, $1::bytea FROM unnest($2::int8[], $3::bytea[]) "
    "AS n(indice, valeur) ON CONFLICT DO NOTHING"};
// A program with other indexes cannot know of what is written here.
constexpr Ordre kPerimer{
    "perimer",
    "UPDATE contrats.etat SET signature = 0 WHERE ligne = 1 AND signature <> $1::int8 "
    "AND signature <> 0"};

constexpr const char* kIncertain =
    "la liaison avec le serveur est coupée, et on ne sait pas si cette écriture est faite. "
    "Vérifiez "
    "le réseau, puis enregistrez de nouveau : rien ne sera écrit deux fois.";
constexpr const char* kPasFait =
    "la liaison avec le serveur a été coupée, et rien de cette écriture n'est fait. Recommencez.";

}  // namespace

std::vector<std::int64_t> indicesDe(std::string_view fichier) {
  std::vector<std::int64_t> indices;
  for (const data::Index& index : data::IndexTenus) {
    if (index.fichier == fichier) indices.push_back(data::rangIndex(index));
  }
  return indices;
}

// Between two attempts: longer each time, and by chance, so that two stations do not meet again.
class PostgresStorage::Moteur::Attente {
 public:
  explicit Attente(int attenteMs)
      : limite_(Horloge::now() + std::chrono::milliseconds(attenteMs)) {}
  bool Finie() const { return Horloge::now() >= limite_; }
  void Patienter() {
    thread_local std::minstd_rand hasard(std::random_device{}());
    std::uniform_int_distribution<std::chrono::milliseconds::rep> tirage(1, pause_.count());
    std::this_thread::sleep_for(std::chrono::milliseconds(tirage(hasard)));
    pause_ = std::min(pause_ * 2, kPauseMax);
  }

 private:
  Horloge::time_point limite_;
  std::chrono::milliseconds pause_ = kPremierePause;
};

PostgresStorage::Moteur::Moteur(const std::string& adresse, const data::Poste& poste,
                                const PostgresOptions& options, bool lecture)
    : lien_(adresse, options.attenteMs, kOuverture),
      poste_(poste),
      options_(options),
      lecture_(lecture) {}

PostgresStorage::Moteur::~Moteur() = default;

void PostgresStorage::Moteur::ExigerRepos() const {
  if (enBloc_) throw std::logic_error("PostgresStorage: block under way");
  if (parcours_ > 0 || enUnEtat_) throw std::logic_error("PostgresStorage: scan under way");
}

void PostgresStorage::Moteur::ExigerEcriture(const Acte& acte) const {
  if (parcours_ > 0) throw std::logic_error("PostgresStorage: write from a visitor");
  if (!lecture_) return;
  throw erreur(NumeroErreur::LectureSeule, lien_.Adresse(), acte,
               "la base est ouverte en lecture seule.");
}

// The server undoes a whole transaction after any failure: what would follow must not stand alone.
void PostgresStorage::Moteur::ExigerBlocSain() const {
  if (rupture_) std::rethrow_exception(rupture_);
}

void PostgresStorage::Moteur::Rompre(const PanneServeur& panne) {
  if (!rupture_) {
    aReprendre_ = panne.AReprendre();
    coupure_ = panne.Coupure();
    const data::StoreError cause =
        panne.Coupure() ? erreur(NumeroErreur::EntreeSortie, lien_.Adresse(), kBloc, kPasFait)
                        : data::StoreError(panne);
    rupture_ = std::make_exception_ptr(cause);
  }
  std::rethrow_exception(rupture_);
}

// Of a transaction that failed, or has written nothing: nobody waits for the answer. Over a line
// that is cut, the server does so itself, and the next act finds it.
void PostgresStorage::Moteur::Annuler() noexcept {
  try {
    lien_.Envoyer(kAnnuler, {}, kBloc);
    lien_.Partir();
  } catch (const data::StoreError&) {
    return;
  }
}

std::vector<Reponse> PostgresStorage::Moteur::Exiger(std::vector<Reponse> reponses,
                                                     std::size_t nombre) const {
  // Before them may stand those of orders that went out without a wait.
  reponses.erase(reponses.begin(), reponses.end() - static_cast<std::ptrdiff_t>(nombre));
  return reponses;
}

std::vector<Reponse> PostgresStorage::Moteur::Interroger(const Acte& acte, std::size_t nombre,
                                                         const std::function<void()>& envoyer) {
  if (enUnEtat_) {
    envoyer();
    return Exiger(lien_.Attendre(), nombre);
  }
  if (enBloc_) {
    ExigerBlocSain();
    try {
      envoyer();
      return Exiger(lien_.Attendre(), nombre);
    } catch (const PanneServeur& panne) {
      Rompre(panne);
    }
  }
  if (!lien_.Assurer(acte)) promis_ = false;
  try {
    envoyer();
    return Exiger(lien_.Attendre(), nombre);
  } catch (const PanneServeur& panne) {
    if (panne.Coupure()) {
      promis_ = false;
      lien_.Reconnecter(acte);
    } else if (promis_) {
      // Not for the sake of a block that may not come.
      Renoncer();
    } else {
      throw;
    }
  }
  envoyer();
  return Exiger(lien_.Attendre(), nombre);
}

void PostgresStorage::Moteur::EnUnEtat(const Acte& acte, const std::function<void()>& travail) {
  if (enBloc_ || enUnEtat_) return travail();
  Renoncer();
  lien_.Assurer(acte);
  lien_.Envoyer(kDebutLecture, {}, acte);
  enUnEtat_ = true;
  const auto finir = [&] {
    enUnEtat_ = false;
    Annuler();  // nothing was written
  };
  try {
    travail();
  } catch (...) {
    finir();
    throw;
  }
  finir();
}

std::vector<Reponse> PostgresStorage::Moteur::Ecrire(const Acte& acte, std::size_t nombre,
                                                     const std::function<void()>& envoyer) {
  ExigerEcriture(acte);
  route_.Oublier(acte.fichier, acte.cle);
  if (enBloc_) {
    ExigerBlocSain();
    ecrit_ = true;
    try {
      envoyer();
      if (lien_.Attendus() > kEnvoisMax) lien_.Attendre();
      return {};
    } catch (const PanneServeur& panne) {
      Rompre(panne);
    }
  }
  Renoncer();
  bool coupee = false;
  for (Attente attente(options_.attenteMs);;) {
    try {
      lien_.Assurer(acte);
    } catch (const PanneServeur&) {
      if (coupee) throw erreur(NumeroErreur::EntreeSortie, lien_.Adresse(), acte, kIncertain);
      throw;
    }
    try {
      lien_.Envoyer(kDebut, {}, acte);
      envoyer();
      lien_.Envoyer(kFin, {}, acte);
      auto reponses = Exiger(lien_.Attendre(), nombre + 1);
      return reponses;
    } catch (const PanneServeur& panne) {
      // Done twice, one record's write is the same as done once.
      if (panne.Coupure()) {
        if (coupee) throw erreur(NumeroErreur::EntreeSortie, lien_.Adresse(), acte, kIncertain);
        coupee = true;
        continue;
      }
      Annuler();
      if (!panne.AReprendre() || attente.Finie()) throw;
    }
    attente.Patienter();
  }
}

void PostgresStorage::Moteur::Noter(const Acte& acte, std::optional<std::int64_t> controle) {
  if (!enBloc_) return;
  std::pair<std::string, std::string> lieu(acte.fichier, acte.cle);
  if (ecrits_.size() < kEcritsNotes || ecrits_.contains(lieu)) ecrits_[std::move(lieu)] = controle;
}

void PostgresStorage::Moteur::EnvoyerEntrees(const Acte& acte,
                                             const std::vector<data::EntreeIndex>& entrees) {
  std::vector<std::int64_t> indices;
  std::vector<std::string_view> valeurs;
  for (const auto& entree : entrees) {
    indices.push_back(data::rangIndex(*entree.index));
    valeurs.emplace_back(entree.valeur);
  }
  lien_.Envoyer(kOterEntrees,
                Parametres()
                    .Nombres(indicesDe(acte.fichier))
                    .Texte(acte.cle)
                    .Nombres(indices)
                    .Textes(valeurs),
                acte);
  lien_.Envoyer(kPoserEntrees, Parametres().Texte(acte.cle).Nombres(indices).Textes(valeurs), acte);
  lien_.Envoyer(kPerimer, Parametres().Nombre(signatureIndex()), acte);
}

void PostgresStorage::Moteur::Poser(const Acte& acte, std::string_view texte) {
  const std::string jour = poste_.Horodatage();
  const std::string utilisateur = poste_.NomUtilisateur();
  const bool indexe = data::aDesIndex(acte.fichier);
  const std::int64_t controle = controleArticle(acte.fichier, acte.cle, texte);
  Ecrire(acte, indexe ? 4 : 1, [&] {
    lien_.Envoyer(kPoser,
                  Parametres()
                      .Texte(acte.fichier)
                      .Texte(acte.cle)
                      .Texte(texte)
                      .Nombre(controle)
                      .Texte(jour)
                      .Texte(utilisateur),
                  acte);
    if (indexe) EnvoyerEntrees(acte, data::entreesDe(acte.fichier, acte.cle, texte));
  });
  Noter(acte, controle);
}

bool PostgresStorage::Moteur::Oter(const Acte& acte) {
  // Before, in a block: its answers are not waited for.
  std::string texte;
  const bool present = enBloc_ && Lire(acte, texte);
  const std::string jour = poste_.Horodatage();
  const std::string utilisateur = poste_.NomUtilisateur();
  const bool indexe = data::aDesIndex(acte.fichier);
  const auto reponses = Ecrire(acte, indexe ? 4 : 1, [&] {
    lien_.Envoyer(kOter,
                  Parametres().Texte(acte.fichier).Texte(acte.cle).Texte(jour).Texte(utilisateur),
                  acte);
    if (indexe) EnvoyerEntrees(acte, {});
  });
  Noter(acte, std::nullopt);
  return enBloc_ ? present : reponses.front().Touchees() > 0;
}

bool PostgresStorage::Moteur::ToutEcrit(const Acte& acte) {
  lien_.Reconnecter(acte);
  for (const auto& [lieu, attendu] : ecrits_) {
    std::string texte;
    const bool present = Lire({"Lecture", lieu.first, lieu.second}, texte);
    if (present != attendu.has_value()) return false;
    if (present && *attendu != controleArticle(lieu.first, lieu.second, texte)) return false;
  }
  return true;
}

bool PostgresStorage::Moteur::Confirmer(const Acte& acte) {
  // The server may be at the end of the block still.
  constexpr std::chrono::milliseconds kDelai{300};
  try {
    if (ToutEcrit(acte)) return true;
    std::this_thread::sleep_for(kDelai);
    return ToutEcrit(acte);
  } catch (const data::StoreError&) {
    throw erreur(NumeroErreur::EntreeSortie, lien_.Adresse(), acte, kIncertain);
  }
}

// What the road has read so far does not belong to the block that is to come.
void PostgresStorage::Moteur::Promettre() {
  if (!route_.Ouverte() || enBloc_ || enUnEtat_ || lecture_) return;
  if (!lien_.Assurer(kBloc)) promis_ = false;
  if (std::exchange(promis_, true)) return;
  route_.Vider();
  try {
    lien_.Envoyer(kDebut, {}, kBloc);
  } catch (const PanneServeur&) {
    promis_ = false;  // the line was cut: the next read finds it
  }
}

void PostgresStorage::Moteur::Renoncer() noexcept {
  if (std::exchange(promis_, false)) Annuler();
}

void PostgresStorage::Moteur::NoterSuite(const std::vector<data::Annonce>& annonces) {
  if (enBloc_ && route_.Ouverte()) suite_ = annonces;
}

// False when it can be run again, and nothing of it stands: another station got in between, or the
// line was cut for the first time.
bool PostgresStorage::Moteur::Tenter(const std::function<void()>& travail, bool& coupee) {
  bool tenue = promis_;
  try {
    tenue = lien_.Assurer(kBloc) && tenue;
  } catch (const PanneServeur&) {
    promis_ = false;
    if (coupee) throw erreur(NumeroErreur::EntreeSortie, lien_.Adresse(), kBloc, kPasFait);
    throw;
  }
  promis_ = false;
  OublierAnnonces();
  if (!tenue) {
    lien_.Envoyer(kDebut, {}, kBloc);
    route_.Vider();
  }
  struct Bloc {
    Moteur& moteur;
    explicit Bloc(Moteur& m) : moteur(m) {
      moteur.enBloc_ = true;
      moteur.ecrit_ = false;
      moteur.ecrits_.clear();
      moteur.suite_.clear();
    }
    ~Bloc() {
      moteur.enBloc_ = false;
      moteur.aReprendre_ = false;
      moteur.coupure_ = false;
      moteur.rupture_ = nullptr;
      if (!moteur.promis_) moteur.route_.Vider();
    }
    Bloc(const Bloc&) = delete;
    Bloc& operator=(const Bloc&) = delete;
  } const bloc(*this);
  try {
    travail();
    ExigerBlocSain();
  } catch (...) {
    const bool reprendre = aReprendre_ || (coupure_ && !coupee);
    coupee = coupee || coupure_;
    Annuler();
    if (reprendre) return false;
    throw;
  }
  if (!ecrit_) {
    suite_.clear();
    // What it has read serves the next block.
    promis_ = route_.Ouverte();
    if (!promis_) Annuler();
    return true;
  }
  return Finir(coupee);
}

bool PostgresStorage::Moteur::Finir(bool& coupee) {
  try {
    lien_.Envoyer(kFin, {}, kBloc);
    if (!route_.Ouverte()) suite_.clear();
    if (!suite_.empty()) {
      lien_.Borner(kBloc);
      lien_.Envoyer(kDebut, {}, kBloc);
      route_.Vider();
      demandesSuite_ = Inconnues(suite_);
      EnvoyerDemandes(demandesSuite_);
    }
    lien_.Attendre();
    return true;
  } catch (const PanneServeur& panne) {
    suite_.clear();
    if (panne.Coupure()) {
      enBloc_ = false;
      route_.Vider();
      if (Confirmer(kBloc)) return true;
      if (!std::exchange(coupee, true)) return false;
      throw erreur(NumeroErreur::EntreeSortie, lien_.Adresse(), kBloc, kPasFait);
    }
    Annuler();
    if (panne.AReprendre()) return false;
    throw;
  }
}

// What came back behind the end of a block, which stands. When it did not come, it is read when it
// is asked for.
void PostgresStorage::Moteur::RetenirSuite() {
  if (suite_.empty()) return;
  promis_ = true;
  try {
    RetenirDemandes(demandesSuite_, Exiger(lien_.Attendre(), demandesSuite_.size()));
  } catch (const data::StoreError&) {
    route_.Vider();
    Renoncer();
  }
  suite_.clear();
}

void PostgresStorage::Moteur::EnUnBloc(const std::function<void()>& travail) {
  ExigerRepos();
  ExigerEcriture(kBloc);
  bool coupee = false;
  for (Attente attente(options_.attenteMs); !Tenter(travail, coupee);) {
    if (attente.Finie()) throw erreurServeur("40001", "", lien_.Adresse(), kBloc);
    attente.Patienter();
  }
  RetenirSuite();
}

}  // namespace storage
