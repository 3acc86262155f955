#pragma once
// The folder of letter templates, which the clerk edits in the word processor. A template that does
// not stand there is made from the component's own list.

#include <QByteArray>
#include <QString>
#include <utility>

namespace hote {

// A template as a workstation first gets it, from a list of paragraphs (the words are told in
// apps/hote/modeles/cdi.txt). A std::logic_error for a list that does not stand, or a line that is
// none of its words.
QByteArray modeleInitial(const QString& nom);

class DossierModeles {
 public:
  // `dossier`: made when it is absent.
  explicit DossierModeles(QString dossier) : dossier_(std::move(dossier)) {}

  const QString& Dossier() const { return dossier_; }
  // The file of the template of that name, made when it is absent.
  QString Fichier(const QString& nom) const;
  // Makes every template that is absent. Both raise screen::ErreurImpression, with the file's name,
  // when the folder takes none.
  void Completer() const;

 private:
  QString dossier_;
};

}  // namespace hote
