#include "fenetre/fichiers_recents.h"

#include <QFileInfo>
#include <QSettings>

#include "liaison/textes_qt.h"
#include "storage/adresse.h"

namespace hote {

namespace {

constexpr const char* Cle = "hote/recents";

QString absolu(const QString& chemin) {
  if (storage::estAdresseServeur(versModele(chemin))) return chemin;
  return QFileInfo(chemin).absoluteFilePath();
}

}  // namespace

QStringList FichiersRecents::Chemins() const {
  return reglages_.value(Cle).toStringList();
}

void FichiersRecents::Noter(const QString& chemin) {
  QStringList chemins = Chemins();
  chemins.removeAll(absolu(chemin));
  chemins.prepend(absolu(chemin));
  reglages_.setValue(Cle, QStringList(chemins.mid(0, Nombre)));
}

void FichiersRecents::Oublier(const QString& chemin) {
  QStringList chemins = Chemins();
  chemins.removeAll(absolu(chemin));
  reglages_.setValue(Cle, chemins);
}

}  // namespace hote
