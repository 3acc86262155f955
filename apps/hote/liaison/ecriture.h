#pragma once
// Files that stand whole on the disk or not at all. What is to be written is handed over in one
// piece: a writer that streams into a file does not tell of a disk that filled on the way.

#include <QByteArray>
#include <QString>

namespace hote {

// Nothing stands under the name after a failure but what stood there. False then.
bool ecrireFichier(const QString& fichier, const QByteArray& octets);

// The same for what goes on paper: a screen::ErreurImpression, which names the file.
void ecrireDocument(const QString& fichier, const QByteArray& octets);

}  // namespace hote
