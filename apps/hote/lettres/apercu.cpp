#include "lettres/apercu.h"

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

}  // namespace

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
