#pragma once
// A letter template: an OpenDocument text whose fields are "user fields", the ones that a word
// processor lists under its variables. A name stands in an element of its own, so that no
// formatting by the clerk parts it.
//
//   ModeleOdt modele(octets);
//   modele.Champs()                          {"salarie_nom", "prime"}
//   modele.Fusionner([](auto& nom) {...})    the letter's bytes, each field become plain text
//
// Body, headers and footers are merged; every other part of the document stays as it is.

#include <QByteArray>
#include <functional>
#include <string>
#include <vector>

#include "lettres/archive_zip.h"

namespace hote {

inline constexpr const char* GenreOdt = "application/vnd.oasis.opendocument.text";

class ModeleOdt {
 public:
  using Valeur = std::function<std::string(const std::string& nom)>;

  // An ArchiveIllisible for what is no OpenDocument text.
  explicit ModeleOdt(const QByteArray& octets);

  // The names, in the order in which they stand; one may stand several times.
  std::vector<std::string> Champs() const;
  // Lines of a value parted by "\n" become lines of the letter, and runs of blanks stay.
  QByteArray Fusionner(const Valeur& valeur) const;

 private:
  ArchiveZip Copier(const Valeur& valeur) const;

  ArchiveZip archive_;
};

// A text as it stands inside a paragraph of an OpenDocument text.
QByteArray texteOdf(const std::string& texte);

}  // namespace hote
