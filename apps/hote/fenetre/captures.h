#pragma once
// Pictures of the main forms, for a machine without a display and for a look at all of them at
// once.

#include <QSize>
#include <QString>
#include <QStringList>
#include <string>

namespace hote {

// Opens a copy of the data file, walks through the list in its states, also of the carer with most
// contracts, the editor of the carer's first contract and the dialogs, and writes a PNG of each
// into `dossier`, made when absent. `aidant`: a code, or "" for the first carer with a contract.
// `taille`: of the windows, in place of their own, where it is valid; `sombre`: light letters on a
// dark ground. Answers the files written; a std::runtime_error in French tells what could not be
// done.
QStringList capturerFormes(const QString& fichier, const std::string& aidant,
                           const QString& dossier, const QSize& taille, bool sombre);

}  // namespace hote
