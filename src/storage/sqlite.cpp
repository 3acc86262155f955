#include "storage/sqlite.h"

#include "storage/sqlite_moteur.h"
#include "storage/sqlite_schema.h"
#include "storage/sqlite_verifier.h"

namespace storage {

SqliteStorage::SqliteStorage(std::unique_ptr<Moteur> moteur) : moteur_(std::move(moteur)) {}
SqliteStorage::~SqliteStorage() = default;

std::unique_ptr<SqliteStorage> SqliteStorage::Ouvrir(const std::string& chemin,
                                                     const data::Poste& poste,
                                                     const SqliteOptions& options) {
  std::unique_ptr<SqliteStorage> stockage(new SqliteStorage(
      std::make_unique<Moteur>(ouvrirFichier(chemin, options.attenteMs), poste, options)));
  stockage->moteur_->PreparerIndex(options.avanceIndex);
  return stockage;
}

std::unique_ptr<SqliteStorage> SqliteStorage::OuvrirEnLecture(const std::string& chemin,
                                                              const data::Poste& poste,
                                                              const SqliteOptions& options) {
  return std::unique_ptr<SqliteStorage>(new SqliteStorage(
      std::make_unique<Moteur>(ouvrirFichierEnLecture(chemin, options.attenteMs), poste, options)));
}

std::unique_ptr<SqliteStorage> SqliteStorage::Creer(const std::string& chemin,
                                                    const data::Poste& poste,
                                                    const SqliteOptions& options) {
  return std::unique_ptr<SqliteStorage>(new SqliteStorage(
      std::make_unique<Moteur>(creerFichier(chemin, options.attenteMs), poste, options)));
}

bool SqliteStorage::Get(std::string_view fichier, std::string_view cle, std::string& texte) {
  return moteur_->Lire({"Lecture", fichier, cle}, texte);
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
  if (!cles.Vide()) moteur_->Parcourir({"Parcours", fichier}, cles, visiteur);
}

std::optional<std::size_t> SqliteStorage::Compter(std::string_view fichier,
                                                  const data::Chemin& chemin, std::size_t plafond) {
  return moteur_->Index().Compter({"Parcours", fichier}, chemin, plafond);
}

bool SqliteStorage::ScanChemins(std::string_view fichier, const std::vector<data::Chemin>& chemins,
                                const Visiteur& visiteur) {
  return moteur_->ParcourirChemins({"Parcours", fichier}, chemins, visiteur);
}

std::vector<data::FichierCompte> SqliteStorage::Fichiers() {
  return moteur_->Compter();
}

std::vector<data::AncienTexte> SqliteStorage::Historique(std::string_view fichier,
                                                         std::string_view cle) {
  return moteur_->Anciens({"Lecture de l'historique", fichier, cle});
}

void SqliteStorage::EnUnBloc(const std::function<void()>& travail) {
  moteur_->EnUnBloc(travail);
}

void SqliteStorage::Verifier(const std::function<void(const Dommage&)>& signaler,
                             const std::function<void(long)>& avance) {
  moteur_->ExigerRepos();
  verifierFichier(moteur_->Lien(), signaler, avance);
}

bool SqliteStorage::VerifierIndex(const std::function<void(const Dommage&)>& signaler,
                                  const std::function<void(long)>& avance) {
  moteur_->ExigerRepos();
  return moteur_->Index().Verifier(signaler, avance);
}

void SqliteStorage::RefaireIndex(const std::function<void(long)>& avance) {
  moteur_->ExigerRepos();
  moteur_->RefaireIndex(avance);
}

}  // namespace storage
