#pragma once
// A small ZIP archive held in memory, as OpenDocument texts are: its entries in their order.

#include <QByteArray>
#include <QString>
#include <stdexcept>
#include <vector>

namespace hote {

// What cannot be read or written as an archive. The text is French, without the file's name.
class ArchiveIllisible : public std::runtime_error {
 public:
  using std::runtime_error::runtime_error;
};

class ArchiveZip {
 public:
  struct Entree {
    QByteArray nom;
    QByteArray contenu;
  };

  ArchiveZip() = default;
  // An ArchiveIllisible for what is no archive, is damaged, or unpacks to more than a letter can
  // be.
  explicit ArchiveZip(const QByteArray& octets);

  // nullptr when there is none of that name.
  QByteArray* Trouver(const QByteArray& nom);
  const std::vector<Entree>& Entrees() const { return entrees_; }
  void Ajouter(const QByteArray& nom, const QByteArray& contenu);
  // The archive's bytes. The first entry is stored as it is: whoever looks at the file tells its
  // kind by it.
  QByteArray Octets() const;

 private:
  std::vector<Entree> entrees_;
};

}  // namespace hote
