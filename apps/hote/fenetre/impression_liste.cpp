#include "fenetre/impression_liste.h"

#include <QAbstractTextDocumentLayout>
#include <QBuffer>
#include <QDir>
#include <QFontMetricsF>
#include <QPainter>
#include <QPdfWriter>
#include <QStandardPaths>
#include <QTextCursor>
#include <QTextDocument>
#include <QTextTable>
#include <algorithm>
#include <numeric>

#include "liaison/ecriture.h"

namespace hote {

namespace {

constexpr double Marge = 15;  // millimetres
constexpr int PointsParPouce = 300;
constexpr double Points = 9;
constexpr double PointsTitre = 13;
// Of the page's height, for the date and the page's number.
constexpr double PartPied = 0.03;
constexpr double PixelsCellule = 3;
// Number, dates and type.
constexpr int ColonnesFixes = 4;

// The layout of a document counts in pixels of a screen.
double enPixels(const QPagedPaintDevice& papier, double pixelsEcran) {
  return pixelsEcran * papier.logicalDpiY() / 96;
}

QTextCharFormat police(double points, bool gras) {
  QTextCharFormat format;
  format.setFontPointSize(points);
  format.setFontWeight(gras ? QFont::Bold : QFont::Normal);
  return format;
}

// As wide as the widest text of each column, so far as the page has room: numbers and dates never
// break, the names share what is left by their widths.
QList<QTextLength> largeurs(const Tableau& tableau, const QPagedPaintDevice& papier) {
  QFont gras;
  gras.setPointSizeF(Points);
  gras.setBold(true);
  const QFontMetricsF mesures(gras, &papier);
  const double air = enPixels(papier, 2 * PixelsCellule + 2);
  QList<double> voulues;
  for (int c = 0; c < tableau.colonnes.size(); ++c) {
    double largeur = mesures.horizontalAdvance(tableau.colonnes[c]);
    for (const QStringList& rangee : tableau.rangees) {
      largeur = std::max(largeur, mesures.horizontalAdvance(rangee.value(c)));
    }
    voulues << largeur + air;
  }
  const double fixes = std::accumulate(voulues.begin(), voulues.begin() + ColonnesFixes, 0.0);
  const double noms = std::accumulate(voulues.begin() + ColonnesFixes, voulues.end(), 0.0);
  const double reste = papier.width() - fixes;
  QList<QTextLength> resultat;
  for (int c = 0; c < voulues.size(); ++c) {
    const double largeur = c < ColonnesFixes ? voulues[c] : reste * voulues[c] / noms;
    resultat << QTextLength(QTextLength::PercentageLength, 100 * largeur / papier.width());
  }
  return resultat;
}

QTextTableFormat formatTable(const Tableau& tableau, const QPagedPaintDevice& papier) {
  QTextTableFormat format;
  format.setHeaderRowCount(1);
  format.setWidth(QTextLength(QTextLength::PercentageLength, 100));
  format.setCellPadding(PixelsCellule);
  format.setCellSpacing(0);
  format.setBorder(1);
  format.setBorderBrush(Qt::lightGray);
  format.setBorderStyle(QTextFrameFormat::BorderStyle_Solid);
  format.setBorderCollapse(true);
  format.setColumnWidthConstraints(largeurs(tableau, papier));
  return format;
}

void remplirTable(QTextCursor& curseur, const Tableau& tableau, const QPagedPaintDevice& papier) {
  const qsizetype colonnes = tableau.colonnes.size();
  QTextTable* const table =
      curseur.insertTable(static_cast<int>(tableau.rangees.size()) + 1, static_cast<int>(colonnes),
                          formatTable(tableau, papier));
  const auto ecrire = [&](int rang, const QStringList& cellules, bool gras) {
    for (int c = 0; c < colonnes; ++c) {
      QTextCursor cellule = table->cellAt(rang, c).firstCursorPosition();
      cellule.insertText(cellules.value(c), police(Points, gras));
    }
  };
  ecrire(0, tableau.colonnes, true);
  for (int i = 0; i < tableau.rangees.size(); ++i) ecrire(i + 1, tableau.rangees[i], false);
}

// The place of one page of the document on the paper.
void peindre(const QTextDocument& document, const Tableau& tableau, QPdfWriter& papier) {
  QPainter pinceau(&papier);
  const QSizeF page = document.pageSize();
  const int pages = document.pageCount();
  for (int i = 0; i < pages; ++i) {
    if (i > 0) papier.newPage();
    pinceau.save();
    pinceau.translate(0, -i * page.height());
    QAbstractTextDocumentLayout::PaintContext contexte;
    contexte.palette.setColor(QPalette::Text, Qt::black);
    contexte.clip = QRectF(0, i * page.height(), page.width(), page.height());
    pinceau.setClipRect(contexte.clip);
    document.documentLayout()->draw(&pinceau, contexte);
    pinceau.restore();
    QFont petite = document.defaultFont();
    petite.setPointSizeF(Points);
    pinceau.setFont(petite);
    const QRectF pied(0, page.height(), page.width(), papier.height() - page.height());
    pinceau.drawText(pied, Qt::AlignBottom | Qt::AlignLeft, "Imprimé le " + tableau.jour);
    pinceau.drawText(pied, Qt::AlignBottom | Qt::AlignRight,
                     QString("Page %1 sur %2").arg(i + 1).arg(pages));
  }
}

QString cheminLibre(const QString& nom) {
  const QDir dossier(QStandardPaths::writableLocation(QStandardPaths::DocumentsLocation));
  dossier.mkpath(".");
  QString chemin = dossier.filePath(nom + ".pdf");
  for (int i = 2; QFile::exists(chemin); ++i) {
    chemin = dossier.filePath(QString("%1 (%2).pdf").arg(nom).arg(i));
  }
  return chemin;
}

}  // namespace

std::unique_ptr<QTextDocument> mettreEnPage(const Tableau& tableau, QPagedPaintDevice& papier) {
  auto document = std::make_unique<QTextDocument>();
  document->documentLayout()->setPaintDevice(&papier);
  document->setDocumentMargin(0);
  document->setPageSize(QSizeF(papier.width(), papier.height() * (1 - PartPied)));
  QTextCursor curseur(document.get());
  // Laid out once, not at each cell.
  curseur.beginEditBlock();
  curseur.insertText(tableau.titre, police(PointsTitre, true));
  curseur.insertBlock(QTextBlockFormat(), police(Points, false));
  curseur.insertText(tableau.filtres);
  const qsizetype nombre = tableau.rangees.size();
  curseur.insertBlock();
  curseur.insertText(nombre == 0   ? "Aucun contrat."
                     : nombre == 1 ? "1 contrat"
                                   : QString("%1 contrats").arg(nombre));
  if (nombre > 0) remplirTable(curseur, tableau, papier);
  curseur.endEditBlock();
  return document;
}

QString imprimerListe(const Tableau& tableau, const QString& nom) {
  QByteArray octets;
  {
    QBuffer tampon(&octets);
    tampon.open(QIODevice::WriteOnly);
    QPdfWriter papier(&tampon);
    papier.setTitle(tableau.titre);
    papier.setResolution(PointsParPouce);
    papier.setPageLayout(QPageLayout(QPageSize(QPageSize::A4), QPageLayout::Portrait,
                                     QMarginsF(Marge, Marge, Marge, Marge),
                                     QPageLayout::Millimeter));
    peindre(*mettreEnPage(tableau, papier), tableau, papier);
  }
  const QString fichier = cheminLibre(nom);
  ecrireDocument(fichier, octets);
  return fichier;
}

}  // namespace hote
