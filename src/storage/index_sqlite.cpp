#include "storage/index_sqlite.h"

#include <algorithm>

#include "data/citem.h"
#include "data/dictionary.h"
#include "storage/controle.h"
#include "storage/sqlite_erreur.h"

namespace storage {

namespace {

constexpr Acte kRefaire{"Indexation de"};
constexpr long kPasAvance = 10000;  // records between two calls of `avance`

constexpr const char* kTables = R"(
  CREATE TABLE entree(
    indice INTEGER NOT NULL, valeur TEXT NOT NULL, cle TEXT NOT NULL,
    PRIMARY KEY(indice, valeur, cle)) WITHOUT ROWID;
  CREATE TABLE indice(signature INTEGER NOT NULL);)";

constexpr const char* kEtat = "SELECT signature FROM indice";
constexpr const char* kAjouter =
    "INSERT OR IGNORE INTO entree(indice, valeur, cle) VALUES(?1, ?2, ?3)";
constexpr const char* kOter = "DELETE FROM entree WHERE indice = ?1 AND valeur = ?2 AND cle = ?3";
// Counted only under the signature ?5, in the one statement: each takes and lets go of a lock.
constexpr const char* kCompterEntrees =
    "SELECT CASE (SELECT signature FROM indice) WHEN ?5 THEN (SELECT count(*) FROM ("
    "SELECT 1 FROM entree WHERE indice = ?1 AND valeur >= ?2 AND valeur < ?3 LIMIT ?4)) "
    "ELSE -1 END";
constexpr const char* kCompterCles =
    "SELECT CASE (SELECT signature FROM indice) WHEN ?5 THEN (SELECT count(*) FROM ("
    "SELECT 1 FROM article WHERE fichier = ?1 AND cle >= ?2 AND cle < ?3 LIMIT ?4)) "
    "ELSE -1 END";
constexpr const char* kClesParValeur =
    "SELECT cle FROM entree WHERE indice = ?1 AND valeur >= ?2 AND valeur < ?3";
constexpr const char* kCles =
    "SELECT cle FROM article WHERE fichier = ?1 AND cle >= ?2 AND cle < ?3";
constexpr const char* kArticles =
    "SELECT cle, texte, controle FROM article WHERE fichier = ?1 ORDER BY cle";

// Above every text that is valid UTF-8.
constexpr std::string_view kFin = "\xFF";

std::string_view finDe(const data::KeyRange& valeurs) {
  return valeurs.sansFin ? kFin : std::string_view(valeurs.fin);
}

// Every letter that a name may be written with, and numbers in several forms: what an index takes
// of them differently than before gives another signature.
std::string exemples() {
  std::string texte;
  for (char c = ' '; c <= '~'; ++c) texte += c;
  for (int point = 0xC0; point <= 0x17F; ++point) {
    texte += static_cast<char>(0xC0 | (point >> 6));
    texte += static_cast<char>(0x80 | (point & 0x3F));
  }
  for (const char* nombre : {"+12.50", ".50", "012", "-0"}) (texte += data::SepValeur) += nombre;
  return texte;
}

// A contract with each of the days that must not be missed, as far as its type has them.
std::string contratExemple(const char* type) {
  namespace C = data::Contrat;
  data::CItem contrat;
  contrat.Set(C::Type, type);
  contrat.Set(C::DateDebut, "21520");
  contrat.Set(C::PeriodeEssai, "30");
  contrat.Set(C::DateFinPresumee, "21600");
  contrat.Set(C::Modulation, "C");
  contrat.Set(C::SuiviPeriode, "202701");
  return contrat.Text();
}

std::int64_t calculerSignature() {
  Controle controle;
  const std::string contenu = exemples();
  for (const data::Index& index : data::IndexTenus) {
    controle.Texte(index.fichier);
    controle.Texte(data::champIndex(index));
    data::CItem exemple;
    if (index.valeurs != nullptr) {
      for (const char* type : {"D", "I"}) {
        for (const auto& valeur : index.valeurs(contratExemple(type))) controle.Texte(valeur);
      }
      continue;
    }
    exemple.Set(
        index.nom.empty() ? index.attribut : data::findDefinition(index.fichier, index.nom)->a,
        contenu);
    for (const auto& entree : data::entreesDe(index.fichier, "00001001", exemple.Text())) {
      controle.Texte(entree.valeur);
    }
  }
  const std::int64_t signature = controle.Valeur();
  return signature == 0 ? 1 : signature;
}

std::int64_t signatureVoulue() {
  static const std::int64_t signature = calculerSignature();
  return signature;
}

std::string sqlSignature(std::int64_t signature) {
  return "UPDATE indice SET signature = " + std::to_string(signature);
}

void lierChemin(const Usage& requete, std::string_view fichier, const data::Chemin& chemin) {
  if (chemin.index == nullptr) {
    requete->Lier(1, fichier);
  } else {
    requete->Lier(1, std::int64_t{data::rangIndex(*chemin.index)});
  }
  requete->Lier(2, chemin.valeurs.debut);
  requete->Lier(3, finDe(chemin.valeurs));
}

void ecrireEntree(Requete& requete, const Acte& acte, const data::EntreeIndex& entree,
                  std::string_view cle) {
  requete.Lier(1, std::int64_t{data::rangIndex(*entree.index)});
  requete.Lier(2, entree.valeur);
  requete.Lier(3, cle);
  requete.Executer(acte);
}

// Every record of those files; StoreError at one that does not read back as it was written.
template <typename Visite>
void parcourirArticles(Connexion& connexion, const Acte& acte, const Visite& visite) {
  Requete articles(connexion, kArticles, acte);
  for (const std::string_view fichier : data::fichiersIndexes()) {
    const Usage usage(articles);
    usage->Lier(1, fichier);
    while (usage->Avancer({acte.nom, fichier, {}, true})) {
      const std::string_view cle = usage->Texte(0);
      const std::string_view texte = usage->Texte(1);
      if (usage->Nombre(2) != controleArticle(fichier, cle, texte)) {
        throw erreurControle(connexion.Chemin(), {"Lecture", fichier, cle});
      }
      visite(fichier, cle, texte);
    }
  }
}

}  // namespace

std::string sqlTablesIndex() {
  return kTables + ("INSERT INTO indice(signature) VALUES(" + std::to_string(signatureVoulue())) +
         ");";
}

IndexSqlite::Requetes::Requetes(Connexion& connexion)
    : etat(connexion, kEtat, kRefaire),
      ajouter(connexion, kAjouter, kRefaire),
      oter(connexion, kOter, kRefaire),
      compterEntrees(connexion, kCompterEntrees, kRefaire),
      compterCles(connexion, kCompterCles, kRefaire),
      clesParValeur(connexion, kClesParValeur, kRefaire),
      cles(connexion, kCles, kRefaire) {}

bool IndexSqlite::Tables(const Acte& acte) {
  if (requetes_) return true;
  if (connexion_.Nombre("PRAGMA user_version", acte) < kVersionIndex) return false;
  requetes_ = std::make_unique<Requetes>(connexion_);
  return true;
}

std::int64_t IndexSqlite::Signature(const Acte& acte) {
  if (!Tables(acte)) return 0;
  const Usage etat(requetes_->etat);
  return etat->Avancer(acte) ? etat->Nombre(0) : 0;
}

bool IndexSqlite::Tenu(const Acte& acte) {
  return Signature(acte) == signatureVoulue();
}

void IndexSqlite::Suivre(const Acte& acte, const std::optional<std::string_view>& avant,
                         const std::optional<std::string_view>& apres) {
  const std::int64_t signature = Signature(acte);
  if (signature != signatureVoulue()) {
    if (signature != 0) connexion_.Executer(sqlSignature(0).c_str(), acte);
    return;
  }
  const auto [retraits, ajouts] = data::changementIndex(acte.fichier, acte.cle, avant, apres);
  for (const auto& entree : retraits) ecrireEntree(requetes_->oter, acte, entree, acte.cle);
  for (const auto& entree : ajouts) ecrireEntree(requetes_->ajouter, acte, entree, acte.cle);
}

std::optional<std::size_t> IndexSqlite::Compter(const Acte& acte, const data::Chemin& chemin,
                                                std::size_t plafond) {
  if (!Tables(acte)) return std::nullopt;
  const Usage compter(chemin.index == nullptr ? requetes_->compterCles : requetes_->compterEntrees);
  lierChemin(compter, acte.fichier, chemin);
  compter->Lier(4, static_cast<std::int64_t>(plafond));
  compter->Lier(5, signatureVoulue());
  compter->Avancer(acte);
  const std::int64_t compte = compter->Nombre(0);
  if (compte < 0) return std::nullopt;
  return static_cast<std::size_t>(compte);
}

std::optional<std::vector<std::string>> IndexSqlite::Cles(
    const Acte& acte, const std::vector<data::Chemin>& chemins) {
  if (!Tenu(acte)) return std::nullopt;
  std::vector<std::string> trouvees;
  for (const data::Chemin& chemin : chemins) {
    const Usage cles(chemin.index == nullptr ? requetes_->cles : requetes_->clesParValeur);
    lierChemin(cles, acte.fichier, chemin);
    while (cles->Avancer(acte)) trouvees.emplace_back(cles->Texte(0));
  }
  std::sort(trouvees.begin(), trouvees.end());
  trouvees.erase(std::unique(trouvees.begin(), trouvees.end()), trouvees.end());
  return trouvees;
}

void IndexSqlite::Refaire(const std::function<void(long)>& avance) {
  if (!Tables(kRefaire)) {
    connexion_.Executer(sqlTablesIndex().c_str(), kRefaire);
    connexion_.Executer(("PRAGMA user_version = " + std::to_string(kVersionIndex)).c_str(),
                        kRefaire);
  }
  connexion_.Executer("DELETE FROM entree", kRefaire);
  Requete ajouter(connexion_, kAjouter, kRefaire);
  long lus = 0;
  parcourirArticles(connexion_, kRefaire,
                    [&](std::string_view fichier, std::string_view cle, std::string_view texte) {
                      for (const auto& entree : data::entreesDe(fichier, cle, texte)) {
                        ecrireEntree(ajouter, kRefaire, entree, cle);
                      }
                      if (++lus % kPasAvance == 0 && avance) avance(lus);
                    });
  connexion_.Executer(sqlSignature(signatureVoulue()).c_str(), kRefaire);
}

LectureUnie::LectureUnie(Connexion& connexion, bool tenue, const Acte& acte)
    : connexion_(connexion), tenue_(tenue) {
  if (!tenue_) connexion_.Executer("BEGIN", acte);
}

LectureUnie::~LectureUnie() {
  // Nothing was written: there is nothing to keep or to lose.
  if (!tenue_) sqlite3_exec(connexion_.Db(), "COMMIT", nullptr, nullptr, nullptr);
}

}  // namespace storage
