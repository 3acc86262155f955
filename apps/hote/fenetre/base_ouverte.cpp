#include "fenetre/base_ouverte.h"

#include <QFileInfo>

#include "liaison/textes_qt.h"
#include "storage/sqlite.h"

namespace hote {

BaseOuverte::BaseOuverte(const QString& chemin, const data::Poste& poste)
    : chemin_(QFileInfo(chemin).absoluteFilePath()),
      db_(storage::SqliteStorage::Ouvrir(versModele(chemin_), poste)) {
  // A write in the file makes a signal too; a store that never answers for a file that is gone
  // would let a clerk type for nothing.
  veille_.addPath(chemin_);
  connect(&veille_, &QFileSystemWatcher::fileChanged, this, [this] { Regarder(); });
}

QString BaseOuverte::Nom() const {
  return QFileInfo(chemin_).fileName();
}

void BaseOuverte::Regarder() {
  if (QFileInfo::exists(chemin_)) return;
  veille_.disconnect(this);
  emit disparue();
}

}  // namespace hote
