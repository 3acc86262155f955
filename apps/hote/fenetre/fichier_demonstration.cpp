#include "fenetre/fichier_demonstration.h"

#include <QCoreApplication>
#include <QDir>
#include <QFileInfo>
#include <QStandardPaths>

namespace hote {

QString fichierDemonstration() {
  const QDir programme(QCoreApplication::applicationDirPath());
  for (const char* const lieu : {"demo.contrats", "../../demo.contrats"}) {
    const QString chemin = QDir::cleanPath(programme.filePath(lieu));
    if (QFileInfo(chemin).isFile()) return chemin;
  }
  return QStandardPaths::locate(QStandardPaths::GenericDataLocation, "contrats/demo.contrats");
}

}  // namespace hote
