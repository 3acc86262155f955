#pragma once
// The two contracts between which leave passes, as one of them sees it: the contract that its leave
// is carried onto, and the one that its leave comes from. A link that may still be undone is a box
// to clear; any other is a line to read.
//
// Clearing a box empties the link in the contract in hand; the other contract's side goes when this
// one is stored, in the same block, so that a link never points one way only.

#include <string>
#include <vector>

#include "rules/conges.h"
#include "screen/field.h"
#include "session/dossier.h"

namespace editor {

class LiensConges {
 public:
  explicit LiensConges(screen::Frame& page);

  // A link to a contract that is not there any more disappears without a word, from what was opened
  // too: nobody is asked to save that.
  void Afficher(session::Dossier& dossier);
  // The links as the boxes leave them; those on file where there is no box.
  void Ecrire(session::Dossier& dossier) const;

 private:
  struct Cote {
    rules::SensLien sens;
    screen::CheckBox& coche;
    screen::Label& texte;
  };
  std::vector<Cote> Cotes();

  screen::Frame& page_;
  screen::CheckBox Cac_ReportConges{page_, "Cac_ReportConges", ""};
  screen::Label Etq_ReportConges{page_, "Etq_ReportConges", ""};
  screen::CheckBox Cac_RepriseConges{page_, "Cac_RepriseConges", ""};
  screen::Label Etq_RepriseConges{page_, "Etq_RepriseConges", ""};
};

// Before the contract is stored. A last payslip that was moved onto the linked contract's period
// undoes the link in the contract in hand: what is to be told of it.
std::vector<std::string> RompreParBulletin(session::Dossier& dossier);
// Inside the block that stores it: the other side of every link that is on file and not in hand.
void RompreEnRetour(const session::Dossier& dossier);
// Inside the block of a deletion: whatever points to that contract.
void Nettoyer_LiensConges(const session::Dossier& dossier, const std::string& cle);

}  // namespace editor
