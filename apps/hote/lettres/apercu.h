#pragma once
// The text of an OpenDocument letter as a page of rich text, for a look at it inside the program.
// Paragraphs, headings, tables and line ends; pictures and the finer layout are the word
// processor's.

#include <QByteArray>
#include <QString>

namespace hote {

// An ArchiveIllisible for what is no OpenDocument text.
QString apercuHtml(const QByteArray& octets);

}  // namespace hote
