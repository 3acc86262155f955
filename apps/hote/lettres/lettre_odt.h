#pragma once
// A letter as a document on the disk: the template that serves, merged with the contract.

#include <QDate>
#include <QString>
#include <QStringList>

#include "documents/lettre.h"
#include "lettres/modeles.h"

namespace hote {

struct LettreOdt {
  QString fichier;
  QString modele;
  // Names of fields: none that the letters have, and those for which the contract has nothing.
  QStringList inconnus, vides;

  // What the user should know of it, "" when there is nothing.
  QString Reserves() const;
};

// Writes the letter into `dossier`, made when absent, under a name that is not taken yet: a letter
// that a clerk has finished is never written over. screen::ErreurImpression, which names the file,
// when the template is no document or the letter cannot be written; nothing of it stands then.
LettreOdt ecrireLettre(const documents::DossierLettre& contrat, const DossierModeles& modeles,
                       const QString& dossier);

}  // namespace hote
