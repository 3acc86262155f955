#include "storage/sqlite.h"

#include "storage/sqlite_moteur.h"
#include "storage/sqlite_schema.h"
#include "storage/sqlite_verifier.h"

namespace storage {

SqliteStorage::SqliteStorage(std::unique_ptr<Moteur> moteur, const data::Poste& poste,
                             const SqliteOptions& options)
    : moteur_(std::move(moteur)), poste_(poste), options_(options) {}
SqliteStorage::~SqliteStorage() = default;

std::unique_ptr<SqliteStorage> SqliteStorage::Ouvrir(const std::string& chemin,
                                                     const data::Poste& poste,
                                                     const SqliteOptions& options) {
  Veille veille(chemin);
  auto moteur =
      std::make_unique<Moteur>(ouvrirFichier(chemin, options), std::move(veille), poste, options);
  moteur->Garde().Exiger({"Ouverture de"});
  moteur->PreparerIndex(options.avanceIndex);
  return std::unique_ptr<SqliteStorage>(new SqliteStorage(std::move(moteur), poste, options));
}

std::unique_ptr<SqliteStorage> SqliteStorage::OuvrirEnLecture(const std::string& chemin,
                                                              const data::Poste& poste,
                                                              const SqliteOptions& options) {
  Veille veille(chemin);
  return std::unique_ptr<SqliteStorage>(
      new SqliteStorage(std::make_unique<Moteur>(ouvrirFichierEnLecture(chemin, options),
                                                 std::move(veille), poste, options),
                        poste, options));
}

std::unique_ptr<SqliteStorage> SqliteStorage::Creer(const std::string& chemin,
                                                    const data::Poste& poste,
                                                    const SqliteOptions& options) {
  auto connexion = creerFichier(chemin, options);
  return std::unique_ptr<SqliteStorage>(new SqliteStorage(
      std::make_unique<Moteur>(std::move(connexion), Veille(chemin), poste, options), poste,
      options));
}

SqliteStorage::Moteur& SqliteStorage::Lecteur() {
  if (moteur_->Perime()) {
    const std::string& chemin = moteur_->Lien().Chemin();
    moteur_ = std::make_unique<Moteur>(ouvrirFichierEnLecture(chemin, options_), Veille(chemin),
                                       poste_, options_);
  }
  return *moteur_;
}

const std::string& SqliteStorage::Avis() const {
  return moteur_->Lien().Avis();
}

std::string SqliteStorage::Defaut() const {
  return moteur_->Garde().Defaut();
}

bool SqliteStorage::Remplace() const {
  return moteur_->Garde().Remplace();
}

bool SqliteStorage::Get(std::string_view fichier, std::string_view cle, std::string& texte) {
  return Lecteur().Lire({"Lecture", fichier, cle}, texte);
}

void SqliteStorage::Put(std::string_view fichier, std::string_view cle, std::string_view texte) {
  data::VerifierEcriture(fichier, cle, texte);
  const Acte acte{"Écriture", fichier, cle};
  moteur_->Ecrire(acte, [&] { moteur_->Poser(acte, texte); });
}

bool SqliteStorage::Erase(std::string_view fichier, std::string_view cle) {
  const Acte acte{"Suppression", fichier, cle};
  bool presente = false;
  moteur_->Ecrire(acte, [&] { presente = moteur_->Oter(acte); });
  return presente;
}

void SqliteStorage::Scan(std::string_view fichier, const data::KeyRange& cles,
                         const Visiteur& visiteur) {
  if (!cles.Vide()) Lecteur().Parcourir({"Parcours", fichier}, cles, visiteur);
}

std::optional<std::size_t> SqliteStorage::Compter(std::string_view fichier,
                                                  const data::Chemin& chemin, std::size_t plafond) {
  return Lecteur().Compter({"Parcours", fichier}, chemin, plafond);
}

bool SqliteStorage::ScanChemins(std::string_view fichier, const std::vector<data::Chemin>& chemins,
                                const Visiteur& visiteur) {
  return Lecteur().ParcourirChemins({"Parcours", fichier}, chemins, visiteur);
}

std::vector<data::FichierCompte> SqliteStorage::Fichiers() {
  return Lecteur().Compter();
}

std::vector<data::AncienTexte> SqliteStorage::Historique(std::string_view fichier,
                                                         std::string_view cle) {
  return Lecteur().Anciens({"Lecture de l'historique", fichier, cle});
}

void SqliteStorage::EnUnBloc(const std::function<void()>& travail) {
  moteur_->EnUnBloc(travail);
}

void SqliteStorage::ParcourirAnciens(std::string_view avant, const VisiteurAnciens& visiteur) {
  Lecteur().CompterAnciens(avant, visiteur);
}

void SqliteStorage::OublierAvant(std::string_view avant) {
  const Acte acte{"Effacement d'anciens textes dans"};
  moteur_->Ecrire(acte, [&] { moteur_->OterAnciens(acte, avant); });
}

void SqliteStorage::Oublier(std::string_view fichier, std::string_view cle) {
  const Acte acte{"Effacement", fichier, cle};
  moteur_->Ecrire(acte, [&] { moteur_->OterTout(acte); });
}

void SqliteStorage::ParcourirHistorique(const VisiteurTexte& visiteur) {
  Lecteur().Histoire(visiteur);
}

void SqliteStorage::Reprendre(std::string_view fichier, std::string_view cle,
                              const data::AncienTexte& ancien) {
  const Acte acte{"Écriture", fichier, cle};
  moteur_->Ecrire(acte, [&] { moteur_->Ranger(acte, ancien); });
}

bool SqliteStorage::Compacter() {
  return moteur_->Compacter();
}

void SqliteStorage::Verifier(const std::function<void(const Dommage&)>& signaler,
                             const std::function<void(long)>& avance) {
  moteur_->ExigerRepos();
  Connexion& lien = Lecteur().Lien();
  verifierFichier(lien, signaler, avance);
  lien.ExigerTenue({"Contrôle de"});
}

bool SqliteStorage::VerifierIndex(const std::function<void(const Dommage&)>& signaler,
                                  const std::function<void(long)>& avance) {
  moteur_->ExigerRepos();
  return Lecteur().VerifierIndex(signaler, avance);
}

void SqliteStorage::RefaireIndex(const std::function<void(long)>& avance) {
  moteur_->ExigerRepos();
  moteur_->RefaireIndex(avance);
}

}  // namespace storage
