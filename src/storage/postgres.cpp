#include "storage/postgres.h"

#include "storage/controle.h"
#include "storage/parcours.h"
#include "storage/postgres_index.h"
#include "storage/postgres_moteur.h"
#include "storage/postgres_schema.h"
#include "storage/signature_index.h"

namespace storage {

namespace {

constexpr Acte kComptage{"Comptage des articles de"};
constexpr Acte kHistorique{"Lecture de l'historique de"};
constexpr Acte kOubli{"Effacement dans"};
constexpr Acte kCompactage{"Compactage de"};
constexpr int kPage = 2000;

constexpr Ordre kFichiers{
    "fichiers", "SELECT fichier, count(*) FROM contrats.article GROUP BY fichier ORDER BY fichier"};
constexpr Ordre kAnciens{"anciens",
                         "SELECT numero, texte, horodatage, utilisateur, supprime, controle "
                         "FROM contrats.ancien WHERE fichier = $1::bytea AND cle = $2::bytea "
                         "ORDER BY numero"};
constexpr Ordre kCompterAnciens{
    "compter_anciens",
    "SELECT fichier, cle, count(*) FROM contrats.ancien "
    "WHERE $1::bytea = ''::bytea OR horodatage < $1::bytea GROUP BY fichier, cle "
    "ORDER BY fichier, cle"};
constexpr Ordre kOublierAvant{"oublier_avant",
                              "DELETE FROM contrats.ancien WHERE horodatage < $1::bytea"};
constexpr Ordre kOublierAnciens{
    "oublier_anciens", "DELETE FROM contrats.ancien WHERE fichier = $1::bytea AND cle = $2::bytea"};
constexpr Ordre kOublierArticle{
    "oublier_article",
    "DELETE FROM contrats.article WHERE fichier = $1::bytea AND cle = $2::bytea"};
constexpr Ordre kHistoire{
    "histoire",
    "SELECT fichier, cle, numero, texte, horodatage, utilisateur, supprime, controle "
    "FROM contrats.ancien WHERE (fichier, cle, numero) > ($1::bytea, $2::bytea, $3::int8) "
    "ORDER BY fichier, cle, numero LIMIT $4::int8"};
constexpr Ordre kReprendre{
    "reprendre",
    "INSERT INTO contrats.ancien(fichier, cle, numero, texte, horodatage, utilisateur, supprime, "
    "controle) VALUES($1::bytea, $2::bytea, $3::int8, $4::bytea, $5::bytea, $6::bytea, "
    "$7::int8 <> 0, $8::int8)"};

// Of the columns number, text, time, user, removed from that one on, and the checksum behind them.
data::AncienTexte ancien(const Reponse& r, int ligne, int colonne, std::string_view fichier,
                         std::string_view cle, const std::string& adresse) {
  data::AncienTexte lu{static_cast<long>(r.Nombre(ligne, colonne)),
                       std::string(r.Texte(ligne, colonne + 1)),
                       std::string(r.Texte(ligne, colonne + 2)),
                       std::string(r.Texte(ligne, colonne + 3)), r.Vrai(ligne, colonne + 4)};
  if (r.Nombre(ligne, colonne + 5) != controleArticle(fichier, cle, lu.texte)) {
    throw erreurRelecture(adresse, {"Lecture", fichier, cle});
  }
  return lu;
}

}  // namespace

PostgresStorage::PostgresStorage(std::unique_ptr<Moteur> moteur) : moteur_(std::move(moteur)) {}
PostgresStorage::~PostgresStorage() = default;

std::unique_ptr<PostgresStorage> PostgresStorage::Ouvrir(const std::string& adresse,
                                                         const data::Poste& poste,
                                                         const PostgresOptions& options) {
  auto moteur = std::make_unique<Moteur>(adresse, poste, options, false);
  const std::int64_t signature = preparerSchema(moteur->LaLigne(), false);
  if (signature != signatureIndex()) {
    try {
      Controleur(*moteur).Refaire(options.avanceIndex);
    } catch (const data::StoreError&) {
      // A damaged record, a missing right, others who write: none of them keeps from working.
      // Questions are answered by scans until the next opening.
    }
  }
  return std::unique_ptr<PostgresStorage>(new PostgresStorage(std::move(moteur)));
}

std::unique_ptr<PostgresStorage> PostgresStorage::OuvrirEnLecture(const std::string& adresse,
                                                                  const data::Poste& poste,
                                                                  const PostgresOptions& options) {
  auto moteur = std::make_unique<Moteur>(adresse, poste, options, true);
  preparerSchema(moteur->LaLigne(), true);
  return std::unique_ptr<PostgresStorage>(new PostgresStorage(std::move(moteur)));
}

std::unique_ptr<PostgresStorage> PostgresStorage::Creer(const std::string& adresse,
                                                        const data::Poste& poste,
                                                        const PostgresOptions& options) {
  auto moteur = std::make_unique<Moteur>(adresse, poste, options, false);
  creerSchema(moteur->LaLigne());
  return std::unique_ptr<PostgresStorage>(new PostgresStorage(std::move(moteur)));
}

const std::string& PostgresStorage::Adresse() const {
  return moteur_->LaLigne().Adresse();
}

long PostgresStorage::Voyages() const {
  return moteur_->LaLigne().Voyages();
}

const std::string& PostgresStorage::Avis() const {
  static const std::string kRien;
  return kRien;
}

bool PostgresStorage::Get(std::string_view fichier, std::string_view cle, std::string& texte) {
  return moteur_->Lire({"Lecture", fichier, cle}, texte);
}

void PostgresStorage::Put(std::string_view fichier, std::string_view cle, std::string_view texte) {
  data::VerifierEcriture(fichier, cle, texte);
  moteur_->Poser({"Écriture", fichier, cle}, texte);
}

bool PostgresStorage::Erase(std::string_view fichier, std::string_view cle) {
  return moteur_->Oter({"Suppression", fichier, cle});
}

void PostgresStorage::Scan(std::string_view fichier, const data::KeyRange& cles,
                           const Visiteur& visiteur) {
  if (!cles.Vide()) moteur_->Parcourir({"Parcours", fichier}, cles, visiteur);
}

std::optional<std::size_t> PostgresStorage::Compter(std::string_view fichier,
                                                    const data::Chemin& chemin,
                                                    std::size_t plafond) {
  return moteur_->Compter({"Parcours", fichier}, chemin, plafond);
}

bool PostgresStorage::ScanChemins(std::string_view fichier,
                                  const std::vector<data::Chemin>& chemins,
                                  const Visiteur& visiteur) {
  return moteur_->ParcourirChemins({"Parcours", fichier}, chemins, visiteur);
}

std::vector<data::FichierCompte> PostgresStorage::Fichiers() {
  const auto reponses = moteur_->Interroger(
      kComptage, 1, [&] { moteur_->LaLigne().Envoyer(kFichiers, {}, kComptage); });
  std::vector<data::FichierCompte> comptes;
  comptes.reserve(static_cast<std::size_t>(reponses.front().Lignes()));
  for (int i = 0; i < reponses.front().Lignes(); ++i) {
    comptes.push_back({std::string(reponses.front().Texte(i, 0)),
                       static_cast<long>(reponses.front().Nombre(i, 1))});
  }
  return comptes;
}

std::vector<data::AncienTexte> PostgresStorage::Historique(std::string_view fichier,
                                                           std::string_view cle) {
  const Acte acte{"Lecture de l'historique", fichier, cle};
  const auto reponses = moteur_->Interroger(acte, 1, [&] {
    moteur_->LaLigne().Envoyer(kAnciens, Parametres().Texte(fichier).Texte(cle), acte);
  });
  std::vector<data::AncienTexte> anciens;
  anciens.reserve(static_cast<std::size_t>(reponses.front().Lignes()));
  for (int i = 0; i < reponses.front().Lignes(); ++i) {
    anciens.push_back(ancien(reponses.front(), i, 0, fichier, cle, Adresse()));
  }
  return anciens;
}

void PostgresStorage::EnUnBloc(const std::function<void()>& travail) {
  moteur_->EnUnBloc(travail);
}

void PostgresStorage::DebuterRoute() {
  moteur_->Route().Debuter();
}

void PostgresStorage::FinirRoute() noexcept {
  moteur_->FinirRoute();
}

void PostgresStorage::OublierRoute() noexcept {
  moteur_->OublierRoute();
}

void PostgresStorage::Annoncer(const std::vector<data::Annonce>& annonces) {
  moteur_->Annoncer(annonces);
}

void PostgresStorage::AnnoncerBloc() {
  moteur_->Promettre();
}

void PostgresStorage::AnnoncerSuite(const std::vector<data::Annonce>& annonces) {
  moteur_->NoterSuite(annonces);
}

void PostgresStorage::ParcourirAnciens(std::string_view avant, const VisiteurAnciens& visiteur) {
  const auto reponses = moteur_->Interroger(kHistorique, 1, [&] {
    moteur_->LaLigne().Envoyer(kCompterAnciens, Parametres().Texte(avant), kHistorique);
  });
  const Reponse& comptes = reponses.front();
  for (int i = 0; i < comptes.Lignes(); ++i) {
    visiteur(comptes.Texte(i, 0), comptes.Texte(i, 1), static_cast<long>(comptes.Nombre(i, 2)));
  }
}

void PostgresStorage::OublierAvant(std::string_view avant) {
  moteur_->Ecrire(kOubli, 1, [&] {
    moteur_->LaLigne().Envoyer(kOublierAvant, Parametres().Texte(avant), kOubli);
  });
}

void PostgresStorage::Oublier(std::string_view fichier, std::string_view cle) {
  const Acte acte{"Effacement", fichier, cle};
  const bool indexe = data::aDesIndex(fichier);
  moteur_->Ecrire(acte, indexe ? 5 : 2, [&] {
    for (const Ordre* ordre : {&kOublierArticle, &kOublierAnciens}) {
      moteur_->LaLigne().Envoyer(*ordre, Parametres().Texte(fichier).Texte(cle), acte);
    }
    if (indexe) moteur_->EnvoyerEntrees(acte, {});
  });
}

bool PostgresStorage::Compacter() {
  moteur_->ExigerRepos();
  for (const char* const sql : {"VACUUM ANALYZE contrats.article", "VACUUM ANALYZE contrats.ancien",
                                "VACUUM ANALYZE contrats.entree"}) {
    moteur_->Interroger(kCompactage, 1, [&] {
      moteur_->LaLigne().Envoyer({"", sql}, {}, kCompactage);
    });
  }
  return true;
}

void PostgresStorage::ParcourirHistorique(const VisiteurTexte& visiteur) {
  std::string fichier;
  std::string cle;
  std::int64_t numero = 0;
  moteur_->EnUnEtat(kHistorique, [&] {
    for (bool encore = true; encore;) {
      const auto reponses = moteur_->Interroger(kHistorique, 1, [&] {
        moteur_->LaLigne().Envoyer(
            kHistoire, Parametres().Texte(fichier).Texte(cle).Nombre(numero).Nombre(kPage),
            kHistorique);
      });
      const Reponse& page = reponses.front();
      encore = page.Lignes() == kPage;
      for (int i = 0; i < page.Lignes(); ++i) {
        fichier = page.Texte(i, 0);
        cle = page.Texte(i, 1);
        numero = page.Nombre(i, 2);
        visiteur(fichier, cle, ancien(page, i, 2, fichier, cle, Adresse()));
      }
    }
  });
}

void PostgresStorage::Reprendre(std::string_view fichier, std::string_view cle,
                                const data::AncienTexte& ancien) {
  const Acte acte{"Écriture", fichier, cle};
  moteur_->Ecrire(acte, 1, [&] {
    moteur_->LaLigne().Envoyer(kReprendre,
                               Parametres()
                                   .Texte(fichier)
                                   .Texte(cle)
                                   .Nombre(ancien.numero)
                                   .Texte(ancien.texte)
                                   .Texte(ancien.horodatage)
                                   .Texte(ancien.utilisateur)
                                   .Nombre(ancien.supprime ? 1 : 0)
                                   .Nombre(controleArticle(fichier, cle, ancien.texte)),
                               acte);
  });
}

void PostgresStorage::Verifier(const std::function<void(const Dommage&)>& signaler,
                               const std::function<void(long)>& avance) {
  Controleur(*moteur_).Textes(signaler, avance);
}

bool PostgresStorage::VerifierIndex(const std::function<void(const Dommage&)>& signaler,
                                    const std::function<void(long)>& avance) {
  return Controleur(*moteur_).Index(signaler, avance);
}

void PostgresStorage::RefaireIndex(const std::function<void(long)>& avance) {
  Controleur(*moteur_).Refaire(avance);
}

}  // namespace storage
