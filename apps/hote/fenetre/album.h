#pragma once
// The pictures of one run, as files of one folder.

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
  // Makes the folder when it is absent. `taille`: what the windows are sized to; an invalid size
  // leaves each window its own.
  Album(const QString& dossier, const QSize& taille) : dossier_(dossier), taille_(taille) {
    if (!dossier_.mkpath(".")) {
      throw std::runtime_error(versModele("Le dossier « " + dossier + " » ne peut pas être créé."));
    }
  }
  const QSize& Taille() const { return taille_; }
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
  QSize taille_;
  QStringList images_;
};

}  // namespace hote
