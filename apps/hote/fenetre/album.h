#pragma once
// The pictures of one run, as files of one folder.

#include <QApplication>
#include <QDir>
#include <QFile>
#include <QImage>
#include <QPainter>
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
  // The widget with its title, and what pops up over it.
  void Prendre(QWidget& widget, const QString& nom) {
    QCoreApplication::processEvents();
    const QString chemin = dossier_.filePath(nom + ".png");
    if (!Peindre(widget).save(chemin)) {
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
  static constexpr int HauteurTitre = 24;  // pixels

  static QImage Peindre(QWidget& widget) {
    const QList<QWidget*> fenetres = QApplication::topLevelWidgets();
    QRect cadre(widget.mapToGlobal(QPoint()), widget.size());
    const QPoint origine = cadre.topLeft();
    QList<QWidget*> surgies;
    for (QWidget* const fenetre : fenetres) {
      const auto genre = fenetre->windowFlags() & Qt::WindowType_Mask;
      const bool surgie = genre == Qt::Popup || genre == Qt::ToolTip;
      if (!surgie || !fenetre->isVisible() || fenetre == &widget) continue;
      surgies << fenetre;
      cadre |= fenetre->geometry();
    }
    const int titre = widget.isWindow() ? HauteurTitre : 0;
    QImage image(cadre.size() + QSize(0, titre), QImage::Format_RGB32);
    image.fill(Qt::darkGray);
    QPainter pinceau(&image);
    pinceau.setPen(Qt::white);
    pinceau.drawText(QRect(8, 0, cadre.width() - 16, titre), Qt::AlignVCenter,
                     widget.windowTitle());
    pinceau.translate(QPoint(0, titre) - cadre.topLeft());
    pinceau.drawPixmap(origine, widget.grab());
    for (QWidget* const surgie : surgies) {
      pinceau.drawPixmap(surgie->geometry().topLeft(), surgie->grab());
    }
    return image;
  }

  QDir dossier_;
  QSize taille_;
  QStringList images_;
};

}  // namespace hote
