#include "lettres/apercu.h"

#include <QAbstractTextDocumentLayout>
#include <QBuffer>
#include <QPainter>
#include <QPdfWriter>
#include <QTextBlock>
#include <QTextCursor>
#include <QTextDocument>
#include <QXmlStreamReader>
#include <algorithm>

#include "lettres/archive_zip.h"

namespace hote {

namespace {

// What an element, of a style where one is named, becomes.
struct Rendu {
  QLatin1StringView element;
  QLatin1StringView style;
  const char* debut;
  const char* fin;
};

constexpr Rendu Rendus[] = {
    {QLatin1StringView("text:p"), QLatin1StringView("Titre"),
     "<p style='font-size:15pt;font-weight:bold' align='center'>", "</p>"},
    {QLatin1StringView("text:p"), QLatin1StringView("Partie"), "<p style='margin-left:30px'>",
     "</p>"},
    {QLatin1StringView("text:p"), {}, "<p>", "</p>"},
    {QLatin1StringView("text:h"), {}, "<p><b>", "</b></p>"},
    {QLatin1StringView("text:line-break"), {}, "<br>", ""},
    {QLatin1StringView("text:tab"), {}, " &nbsp; ", ""},
    {QLatin1StringView("text:s"), {}, "&nbsp;", ""},
    {QLatin1StringView("table:table"), {}, "<table width='100%'>", "</table>"},
    {QLatin1StringView("table:table-row"), {}, "<tr>", "</tr>"},
    {QLatin1StringView("table:table-cell"), {}, "<td width='50%'>", "</td>"},
};

const Rendu* rendu(QStringView element, QStringView style) {
  const auto* const trouve =
      std::find_if(std::begin(Rendus), std::end(Rendus), [&](const Rendu& r) {
        return r.element == element && (r.style.isEmpty() || r.style == style);
      });
  return trouve == std::end(Rendus) ? nullptr : trouve;
}

constexpr double Millimetre = 1 / 25.4;  // inches
constexpr int PointsParPouce = 600;
constexpr double MargeMm = 23;
constexpr double HauteurPiedMm = 10;
constexpr double CorpsPied = 8;

int enPoints(double millimetres) {
  return qRound(millimetres * Millimetre * PointsParPouce);
}

// The text at the foot of each page, "%1" and "%2" where the page's number and their count stand.
QString piedDePage(const QByteArray& styles) {
  QXmlStreamReader xml(styles);
  xml.setNamespaceProcessing(false);
  QString texte;
  bool pied = false;
  while (!xml.atEnd()) {
    const auto lu = xml.readNext();
    const auto nom = xml.qualifiedName();
    if (nom == u"style:footer") pied = lu == QXmlStreamReader::StartElement;
    if (!pied) continue;
    if (lu == QXmlStreamReader::Characters) texte += xml.text().toString().replace('%', "%%");
    if (lu != QXmlStreamReader::StartElement) continue;
    if (nom == u"text:s" || nom == u"text:tab" || nom == u"text:p") texte += ' ';
    const bool numero = nom == u"text:page-number";
    if (!numero && nom != u"text:page-count") continue;
    texte += numero ? "%1" : "%2";
    // What the word processor last counted.
    xml.skipCurrentElement();
  }
  return texte.simplified();
}

// What a record brought along is no mark: a "%" of its own is written twice.
QString numerote(const QString& pied, int page, int pages) {
  QString texte;
  for (qsizetype i = 0; i < pied.size(); ++i) {
    if (pied[i] != '%' || i + 1 == pied.size()) {
      texte += pied[i];
      continue;
    }
    const QChar marque = pied[++i];
    texte += marque == '1' ? QString::number(page) : marque == '2' ? QString::number(pages) : "%";
  }
  return texte;
}

// Of the sizes in screen pixels, the layout brings all but this one to the paper's resolution.
void mettreRetraits(QTextDocument& document) {
  constexpr double PixelsParPouce = 96;
  for (QTextBlock bloc = document.begin(); bloc.isValid(); bloc = bloc.next()) {
    QTextBlockFormat format = bloc.blockFormat();
    format.setLeftMargin(format.leftMargin() * PointsParPouce / PixelsParPouce);
    QTextCursor(bloc).setBlockFormat(format);
  }
}

void dessiner(QTextDocument& document, QPdfWriter& pdf, const QString& pied) {
  const QSizeF page = document.pageSize();
  const int marge = enPoints(MargeMm);
  QFont petite = document.defaultFont();
  petite.setPointSizeF(CorpsPied);
  QPainter pinceau(&pdf);
  for (int i = 0; i < document.pageCount(); ++i) {
    if (i > 0) pdf.newPage();
    const QRectF vue(0, i * page.height(), page.width(), page.height());
    pinceau.save();
    pinceau.translate(marge, marge - vue.top());
    document.drawContents(&pinceau, vue);
    pinceau.restore();
    pinceau.setFont(petite);
    pinceau.drawText(QRectF(marge, marge + page.height(), page.width(), enPoints(HauteurPiedMm)),
                     Qt::AlignHCenter | Qt::AlignBottom,
                     numerote(pied, i + 1, document.pageCount()));
  }
}

}  // namespace

void remplirApercu(QTextDocument& document, const QString& html) {
  document.setDefaultFont(QFont("Liberation Serif", 11));
  document.setHtml(html);
}

QByteArray apercuPdf(const QByteArray& octets) {
  const QString html = apercuHtml(octets);
  ArchiveZip archive(octets);
  const QByteArray* const styles = archive.Trouver("styles.xml");
  QBuffer fichier;
  fichier.open(QIODevice::WriteOnly);
  {
    QPdfWriter pdf(&fichier);
    pdf.setPageSize(QPageSize(QPageSize::A4));
    pdf.setPageMargins(QMarginsF(0, 0, 0, 0));
    pdf.setResolution(PointsParPouce);
    pdf.setTitle("Lettre");
    QTextDocument document;
    document.documentLayout()->setPaintDevice(&pdf);
    document.setDocumentMargin(0);
    remplirApercu(document, html);
    mettreRetraits(document);
    document.setPageSize(
        QSizeF(pdf.width() - 2 * enPoints(MargeMm), pdf.height() - 2 * enPoints(MargeMm)));
    dessiner(document, pdf, styles == nullptr ? "" : piedDePage(*styles));
  }
  return fichier.data();
}

QString apercuHtml(const QByteArray& octets) {
  ArchiveZip archive(octets);
  const QByteArray* const contenu = archive.Trouver("content.xml");
  if (contenu == nullptr) throw ArchiveIllisible("ce n'est pas un texte OpenDocument (.odt)");
  QXmlStreamReader xml(*contenu);
  xml.setNamespaceProcessing(false);
  QString html;
  bool corps = false;
  // What ends the elements that stand open, the innermost last.
  QStringList fins;
  while (!xml.atEnd()) {
    xml.readNext();
    if (xml.isStartElement()) {
      corps = corps || xml.qualifiedName() == u"office:text";
      const Rendu* const r = rendu(xml.qualifiedName(), xml.attributes().value("text:style-name"));
      if (corps && r != nullptr) html += r->debut;
      fins << (r == nullptr ? "" : r->fin);
    } else if (xml.isEndElement()) {
      const QString fin = fins.takeLast();
      if (corps) html += fin;
    } else if (xml.isCharacters() && corps) {
      html += xml.text().toString().toHtmlEscaped();
    }
  }
  if (xml.hasError()) throw ArchiveIllisible("le document est abîmé");
  return html;
}

}  // namespace hote
