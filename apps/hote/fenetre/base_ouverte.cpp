#include "fenetre/base_ouverte.h"

#include <QFileInfo>

#include "fenetre/avertir.h"
#include "liaison/textes_qt.h"
#include "storage/sqlite.h"

namespace hote {

namespace {

constexpr int AttenteEcritureMs = 2000;

std::unique_ptr<data::Storage> ouvrir(const std::string& chemin, const data::Poste& poste,
                                      bool reseauAdmis) {
  storage::SqliteOptions options;
  options.attenteMs = AttenteEcritureMs;
  options.reseauAdmis = reseauAdmis;
  auto stockage = storage::SqliteStorage::Ouvrir(chemin, poste, options);
  if (!stockage->Avis().empty()) informer(versQt(stockage->Avis()));
  return stockage;
}

}  // namespace

std::unique_ptr<data::Storage> ouvrirSqlite(const std::string& chemin, const data::Poste& poste) {
  return ouvrir(chemin, poste, false);
}

std::unique_ptr<data::Storage> ouvrirSqliteEnReseau(const std::string& chemin,
                                                    const data::Poste& poste) {
  return ouvrir(chemin, poste, true);
}

BaseOuverte::BaseOuverte(const QString& chemin, const data::Poste& poste, const Ouvreur& ouvrir)
    : chemin_(QFileInfo(chemin).absoluteFilePath()),
      veille_(versModele(chemin_)),
      db_(ouvrir(versModele(chemin_), poste)) {
  veille_.SuivreJournal();
  // A write in the file makes a signal too.
  connect(&signaux_, &QFileSystemWatcher::fileChanged, this, [this] { Regarder(); });
  Veiller();
}

// A file that leaves its name leaves the watch.
void BaseOuverte::Veiller() {
  signaux_.addPath(chemin_);
}

QString BaseOuverte::Nom() const {
  return QFileInfo(chemin_).fileName();
}

QString BaseOuverte::Defaut() const {
  return versQt(veille_.Defaut());
}

bool BaseOuverte::Remplacee() const {
  return veille_.Remplace();
}

QString BaseOuverte::EcarterJournal() {
  return versQt(veille_.EcarterJournal());
}

void BaseOuverte::Regarder() {
  if (!Defaut().isEmpty()) emit disparue();
}

}  // namespace hote
