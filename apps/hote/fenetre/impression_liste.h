#pragma once
// The contract list on paper: what the list shows of a carer, in the order in which it stands
// there.

#include <QString>
#include <memory>

#include "fenetre/tableau_liste.h"

class QPagedPaintDevice;
class QTextDocument;

namespace hote {

// The table under its title and filters, laid out for the pages of `papier`: as wide as the page,
// each column as its texts ask for, their captions on each page. A list without a row says so.
std::unique_ptr<QTextDocument> mettreEnPage(const Tableau& tableau, QPagedPaintDevice& papier);

// Prints the table to a PDF file of that name, without its ending, in the user's documents; beside
// one of that name it gets a number. With the date and a number on each page. Answers the file; a
// std::runtime_error, with its reason in French, when it cannot be written.
QString imprimerListe(const Tableau& tableau, const QString& nom);

}  // namespace hote
