#pragma once
// The text of an OpenDocument letter as a page of rich text, for a look at it inside the program.
// Paragraphs, headings, tables and line ends; pictures and the finer layout are the word
// processor's.

#include <QByteArray>
#include <QString>

class QTextDocument;

namespace hote {

// An ArchiveIllisible for what is no OpenDocument text.
QString apercuHtml(const QByteArray& octets);
// Shows it in the letters' own font.
void remplirApercu(QTextDocument& document, const QString& html);

// The same page of rich text on A4 pages, each with the letter's foot, as the bytes of a PDF file.
// For a station without a program that converts letters. As apercuHtml() on what is no text.
QByteArray apercuPdf(const QByteArray& octets);

}  // namespace hote
