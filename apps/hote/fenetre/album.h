#pragma once
// A folder of pictures.

#include <QCoreApplication>
#include <QDir>
#include <QFile>
#include <QStringList>
#include <QWidget>
#include <stdexcept>

#include "liaison/textes_qt.h"

namespace hote {

class Album {
 public:
  explicit Album(const QString& dossier) : dossier_(dossier) {
    if (!dossier_.mkpath(".")) {
      throw std::runtime_error(versModele("Le dossier « " + dossier + " » ne peut pas être créé."));
    }
  }
  void Prendre(QWidget& widget, const QString& nom) {
    QCoreApplication::processEvents();
    const QString chemin = dossier_.filePath(nom + ".png");
    if (!widget.grab().save(chemin)) {
      throw std::runtime_error(versModele("L'image « " + chemin + " » ne s'écrit pas."));
    }
    images_ << chemin;
  }
  // A picture that was made elsewhere.
  void Reprendre(const QString& image, const QString& nom) {
    const QString chemin = dossier_.filePath(nom + ".png");
    QFile::remove(chemin);
    if (!QFile::copy(image, chemin)) {
      throw std::runtime_error(versModele("L'image « " + chemin + " » ne s'écrit pas."));
    }
    images_ << chemin;
  }
  const QStringList& Images() const { return images_; }

 private:
  QDir dossier_;
  QStringList images_;
};

}  // namespace hote
