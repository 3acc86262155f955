#pragma once
// The contract list as a table of texts, as it stands on the screen: what is printed, copied and
// exported.

#include <QList>
#include <QString>
#include <QStringList>

class QMimeData;

namespace control {
class Ctr_Contrat;
}

namespace hote {

struct Tableau {
  QString titre;    // "Contrats de 00036 DURAND Gwenaëlle"
  QString filtres;  // "Entité Juridique : toutes; Validité : Actifs; ..."
  QString jour;     // "22/11/2026"
  QStringList colonnes;
  QList<QStringList> rangees;
};

Tableau tableauDe(const control::Ctr_Contrat& liste);
// The same with one row alone.
Tableau tableauDe(const control::Ctr_Contrat& liste, int ligne);

// Parted by semicolons, a line for the columns and one for each row, "\r\n" at their ends, UTF-8
// with its mark in front, as spreadsheets read it. A text with a semicolon, a quote or a line end
// stands in quotes. No text is taken for a formula there: one that would be has an apostrophe in
// front.
QByteArray enCsv(const Tableau& tableau);
// For the clipboard: texts parted by tabulators, and a table for whoever takes one.
QMimeData* pourPressePapiers(const Tableau& tableau);

// "Contrats 00036 DURAND Gwenaëlle 2026-11-22", without what a file's name cannot hold.
QString nomFichier(const control::Ctr_Contrat& liste);

}  // namespace hote
