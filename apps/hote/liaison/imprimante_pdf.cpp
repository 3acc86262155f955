#include <QBuffer>
#include <QDateTime>
#include <QDir>
#include <QPainter>
#include <QPdfWriter>
#include <QStandardPaths>
#include <stdexcept>

#include "liaison/bureau.h"
#include "liaison/ecriture.h"
#include "liaison/imprimantes_qt.h"
#include "liaison/services_qt.h"
#include "liaison/textes_qt.h"

namespace hote {

namespace {

constexpr int PointsParPouce = 600;

int enPoints(int twips) {
  return qRound(twips * PointsParPouce / TwipsParPouce);
}

}  // namespace

ImprimantePdf::ImprimantePdf(Bureau& bureau, CurseurQt& curseur)
    : bureau_(bureau), curseur_(curseur) {}
ImprimantePdf::~ImprimantePdf() = default;

void ImprimantePdf::Choisir(int imprimante) {
  if (imprimante != 0) {
    throw std::out_of_range("no printer of index " + std::to_string(imprimante));
  }
}

void ImprimantePdf::Police(const std::string& nom, double points, bool gras) {
  police_ = policeImprimee(nom, points, gras);
}

QPainter& ImprimantePdf::Pinceau() {
  if (!document_) {
    octets_.clear();
    fichier_ = std::make_unique<QBuffer>(&octets_);
    fichier_->open(QIODevice::WriteOnly);
    document_ = std::make_unique<QPdfWriter>(fichier_.get());
    document_->setPageMargins(QMarginsF(0, 0, 0, 0));
    document_->setResolution(PointsParPouce);
    pinceau_ = std::make_unique<QPainter>(document_.get());
  } else if (pageFinie_) {
    document_->newPage();
  }
  pageFinie_ = false;
  return *pinceau_;
}

void ImprimantePdf::Texte(int x, int y, const std::string& texte, int largeur) {
  QPainter& pinceau = Pinceau();
  pinceau.setFont(police_);
  ecrireLigne(pinceau, QPoint(enPoints(x), enPoints(y)), versQt(texte), enPoints(largeur));
}

QFont policeImprimee(const std::string& nom, double points, bool gras) {
  QFont police(versQt(nom));
  police.setPointSizeF(points);
  police.setBold(gras);
  police.setStyleHint(QFont::TypeWriter);
  return police;
}

void ecrireLigne(QPainter& pinceau, const QPoint& place, const QString& ligne, int largeur) {
  const QFontMetrics mesures = pinceau.fontMetrics();
  const QPoint base = place + QPoint(0, mesures.ascent());
  const int pris = mesures.horizontalAdvance(ligne);
  if (largeur == 0 || pris <= largeur) {
    pinceau.drawText(base, ligne);
    return;
  }
  pinceau.save();
  pinceau.translate(base);
  pinceau.scale(static_cast<double>(largeur) / pris, 1);
  pinceau.drawText(QPoint(0, 0), ligne);
  pinceau.restore();
}

void ImprimantePdf::Image(int x, int y, int largeur, int hauteur, const std::string& fichier) {
  const QImage image(versQt(fichier));
  if (image.isNull()) return;
  Pinceau().drawImage(QRect(enPoints(x), enPoints(y), enPoints(largeur), enPoints(hauteur)), image);
}

void ImprimantePdf::FinPage() {
  Pinceau();
  pageFinie_ = true;
}

void ImprimantePdf::FinDocument() {
  if (!document_) return;
  pinceau_->end();
  pinceau_.reset();
  document_.reset();
  pageFinie_ = false;
  fichier_.reset();
  const QDir dossier(QStandardPaths::writableLocation(QStandardPaths::DocumentsLocation));
  dossier.mkpath(".");
  const QString heure = QDateTime::currentDateTime().toString("yyyy-MM-dd HH-mm-ss-zzz");
  const QString fichier = dossier.filePath("Impression " + heure + ".pdf");
  ecrireDocument(fichier, octets_);
  // The user may be told of it, and asked.
  const CurseurQt::Levee levee(curseur_);
  if (bureau_.SurImpression) bureau_.SurImpression(fichier);
}

}  // namespace hote
