#pragma once
// A letter that was just written: where it went, what it lacks, how it reads, and what to do with
// it.

#include <QDialog>

#include "lettres/lettre_odt.h"

namespace hote {

class FenetreLettre : public QDialog {
 public:
  enum class Suite { Fermer, Ouvrir, Pdf };

  FenetreLettre(const LettreOdt& lettre, QWidget* parente);
  // What the user chose.
  Suite Choix() const { return choix_; }

 private:
  Suite choix_ = Suite::Fermer;
};

}  // namespace hote
