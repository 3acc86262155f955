#include "fenetre/fichier_demonstration.h"

#include <QCoreApplication>
#include <QDir>
#include <QFileInfo>
#include <QStandardPaths>

namespace hote {

QString fichierDemonstration() {
  const QString installe =
      QStandardPaths::locate(QStandardPaths::GenericDataLocation, "contrats/demo.contrats");
  if (!installe.isEmpty()) return installe;
  const QDir programme(QCoreApplication::applicationDirPath());
  for (const char* const lieu : {"demo.contrats", "../../demo.contrats"}) {
    const QString chemin = QDir::cleanPath(programme.filePath(lieu));
    if (QFileInfo(chemin).isFile()) return chemin;
  }
  return {};
}

}  // namespace hote
