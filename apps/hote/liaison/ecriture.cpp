#include "liaison/ecriture.h"

#include <QSaveFile>

#include "liaison/textes_qt.h"
#include "screen/platform.h"

namespace hote {

bool ecrireFichier(const QString& fichier, const QByteArray& octets) {
  QSaveFile sortie(fichier);
  // (The commit does not tell when its own last write fails.)
  return sortie.open(QIODevice::WriteOnly) && sortie.write(octets) == octets.size() &&
         sortie.flush() && sortie.commit();
}

void ecrireDocument(const QString& fichier, const QByteArray& octets) {
  if (ecrireFichier(fichier, octets)) return;
  throw screen::ErreurImpression(
      versModele("Le document ne peut pas être écrit : " + fichier +
                 ". Vérifiez la place sur le disque et vos droits sur ce dossier."));
}

}  // namespace hote
