#pragma once
// The word processor of the workstation: the one that the settings name, else one that is found,
// else whatever the system opens such files with. It is started with its program and a list of
// arguments, never through a shell.

#include <QSettings>
#include <QString>
#include <stdexcept>

namespace hote {

// A conversion that did not come about. The text is French and names the file.
class ConversionManquee : public std::runtime_error {
 public:
  using std::runtime_error::runtime_error;
};

class TraitementTexte {
 public:
  // Where the settings store keeps the word processor, as every station of the suite does.
  static constexpr const char* CleChemin = "Office/Word/Chemin";
  // In its place: the system's own choice.
  static constexpr const char* AuSysteme = "Système";

  explicit TraitementTexte(const QSettings& reglages) : reglages_(reglages) {}

  // What this station answers for a word processor that nobody has chosen: a program's path,
  // AuSysteme, or "" for a station without any.
  static QString Trouver();

  // Shows the file. False when no program took it.
  bool Ouvrir(const QString& fichier) const;

  // Whether this station has a program that makes PDF files.
  bool SaitConvertir() const { return !Convertisseur().isEmpty(); }
  // Makes a PDF file of the document, beside it, and answers its name. Shows its progress over
  // `parente`, and lets the user give up: "" then. A ConversionManquee when it fails, as of the
  // next.
  QString EnPdf(const QString& fichier, QWidget* parente) const;
  // The same without any program, in the plainer layout of the preview.
  static QString EnPdfSimple(const QString& fichier);

 private:
  // The program's path, "" when there is none.
  QString Programme() const;
  QString Convertisseur() const;

  const QSettings& reglages_;
};

}  // namespace hote
