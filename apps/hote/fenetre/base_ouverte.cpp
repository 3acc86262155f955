#include "fenetre/base_ouverte.h"

#include <QFileInfo>

#include "fenetre/stockage_veille.h"
#include "liaison/textes_qt.h"
#include "storage/sqlite.h"

namespace hote {

namespace {

constexpr int AttenteEcritureMs = 2000;

// The name is noted before the opening: a file that changes place meanwhile is noticed.
std::shared_ptr<StockageVeille> ouvrirVeille(const std::string& chemin, const data::Poste& poste,
                                             const Ouvreur& ouvrir) {
  FichierSuivi fichier(chemin);
  return std::make_shared<StockageVeille>(std::move(fichier), ouvrir(chemin, poste));
}

}  // namespace

std::unique_ptr<data::Storage> ouvrirSqlite(const std::string& chemin, const data::Poste& poste) {
  storage::SqliteOptions options;
  options.attenteMs = AttenteEcritureMs;
  return storage::SqliteStorage::Ouvrir(chemin, poste, options);
}

BaseOuverte::BaseOuverte(const QString& chemin, const data::Poste& poste, const Ouvreur& ouvrir)
    : chemin_(QFileInfo(chemin).absoluteFilePath()),
      stockage_(ouvrirVeille(versModele(chemin_), poste, ouvrir)),
      db_(stockage_) {
  // The store refuses to write into a file that is gone; the watch tells so before a clerk types
  // for nothing. A write in the file makes a signal too.
  connect(&veille_, &QFileSystemWatcher::fileChanged, this, [this] { Regarder(); });
  Veiller();
}

// A file that leaves its name leaves the watch.
void BaseOuverte::Veiller() {
  veille_.addPath(chemin_);
}

QString BaseOuverte::Nom() const {
  return QFileInfo(chemin_).fileName();
}

QString BaseOuverte::Defaut() const {
  return versQt(stockage_->Defaut());
}

bool BaseOuverte::Remplacee() const {
  return stockage_->Fichier().Regarder() == FichierSuivi::Etat::Remplace;
}

QString BaseOuverte::EcarterJournal() {
  return versQt(stockage_->EcarterJournal());
}

void BaseOuverte::Regarder() {
  if (!Defaut().isEmpty()) emit disparue();
}

}  // namespace hote
