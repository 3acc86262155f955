// Draws the forms under the printed declarations from their lists of boxes.
//
//   contrat-formulaires URSSAF.txt URSSAF.jpg
//
// The words of a list are told at the head of URSSAF.txt.

#include <QFile>
#include <QGuiApplication>
#include <QImage>
#include <QPainter>
#include <QTextStream>
#include <cstdio>

namespace {

// A page of 11800 by 16895 twips.
constexpr double LargeurCm = 11800.0 / 567;
constexpr double HauteurCm = 16895.0 / 567;
constexpr double PointsParCm = 60;
constexpr double TailleLibelle = 6;
constexpr double HauteurCases = 0.33;

class Formulaire {
 public:
  Formulaire()
      : image_(qRound(LargeurCm * PointsParCm), qRound(HauteurCm * PointsParCm),
               QImage::Format_Grayscale8) {
    image_.fill(Qt::white);
    pinceau_.begin(&image_);
    pinceau_.setRenderHint(QPainter::Antialiasing);
    pinceau_.scale(PointsParCm, PointsParCm);
  }

  // False for a line that is none of the list's.
  bool Tracer(const QString& ligne) {
    QStringList mots = ligne.simplified().split(' ');
    const QString genre = mots.takeFirst();
    const auto nombre = [&] { return mots.isEmpty() ? -1.0 : mots.takeFirst().toDouble(); };
    if (genre.isEmpty() || genre.startsWith('#')) return true;
    const double x = nombre();
    const double y = nombre();
    if (genre == "titre") {
      const double taille = nombre();
      Ecrire(QRectF(x, y, LargeurCm - x, 1), taille, mots.join(' '), Qt::AlignTop);
    } else if (genre == "case") {
      const double largeur = nombre();
      const QRectF boite(x, y, largeur, nombre());
      Boite(boite, 0.02);
      Ecrire(boite.adjusted(0.08, 0, 0, 0), TailleLibelle, mots.join(' '), Qt::AlignVCenter);
    } else if (genre == "cases") {
      for (const QString& place : mots) {
        Boite(QRectF(place.toDouble() - (y - Chiffre) / 2, x, y, HauteurCases), 0.012);
      }
    } else {
      return false;
    }
    return true;
  }

  bool Enregistrer(const QString& fichier) {
    pinceau_.end();
    image_.setDotsPerMeterX(qRound(PointsParCm * 100));
    image_.setDotsPerMeterY(qRound(PointsParCm * 100));
    return image_.save(fichier, "JPG", 85);
  }

 private:
  // Width of the character that falls into a small box.
  static constexpr double Chiffre = 0.22;

  void Boite(const QRectF& boite, double trait) {
    pinceau_.setPen(QPen(Qt::darkGray, trait));
    pinceau_.drawRect(boite);
  }
  void Ecrire(const QRectF& lieu, double points, const QString& texte, int cadrage) {
    QFont police("Sans");
    police.setStyleHint(QFont::SansSerif);
    // Drawn in a unit of a hundredth, where a font has whole pixels.
    police.setPixelSize(qRound(points / 72 * 2.54 * 100));
    pinceau_.save();
    pinceau_.scale(0.01, 0.01);
    pinceau_.setFont(police);
    pinceau_.setPen(Qt::black);
    const QRectF agrandi(lieu.x() * 100, lieu.y() * 100, lieu.width() * 100, lieu.height() * 100);
    pinceau_.drawText(agrandi, Qt::AlignLeft | cadrage, texte);
    pinceau_.restore();
  }

  QImage image_;
  QPainter pinceau_;
};

}  // namespace

int main(int argc, char** argv) {
  const QGuiApplication application(argc, argv);
  QFile liste(argc == 3 ? QString::fromLocal8Bit(argv[1]) : QString());
  if (!liste.open(QIODevice::ReadOnly)) {
    std::fputs("usage: contrat-formulaires LIST PICTURE\n", stderr);
    return 2;
  }
  Formulaire formulaire;
  QTextStream lignes(&liste);
  for (int numero = 1; !lignes.atEnd(); ++numero) {
    if (!formulaire.Tracer(lignes.readLine())) {
      std::fprintf(stderr, "%s:%d: no such word\n", argv[1], numero);
      return 1;
    }
  }
  if (formulaire.Enregistrer(QString::fromLocal8Bit(argv[2]))) return 0;
  std::fprintf(stderr, "%s cannot be written\n", argv[2]);
  return 1;
}
