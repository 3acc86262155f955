#pragma once
// The printers of the workstation as the dialogs know them, and long texts on paper.

#include <string>
#include <vector>

#include "screen/platform.h"

namespace dialogs {

// A dot-matrix printer, which takes no fonts, by the name that it bears.
bool estMatricielle(const std::string& nom);

// The printer on which the planning's incidences are printed: the one of that name in the
// workstation's settings, else the one that it prepares; never beyond the list.
int PrinterIndex(const screen::Platform& platform);

// Prints the title, then the lines, on as many pages as they need. A line that is too wide goes on
// under itself.
void imprimerTexte(screen::Imprimante& imprimante, bool matricielle, const std::string& titre,
                   const std::vector<std::string>& lignes);

// The lines of a text as fields hold it, parted by CR LF or LF.
std::vector<std::string> lignesDe(const std::string& texte);

}  // namespace dialogs
