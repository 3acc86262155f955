#pragma once
// A row of the list of replaced carers: one text of fixed columns, which is all that the screen
// keeps of it.
//
//   columns, in characters from 1
//     1 -   5   carer's code
//     6 -   7   blanks
//     8 -  45   name, cut at 35
//    46 - 125   label of the absence, cut at 60
//   126 -       key of the absence, may be missing
//
// A replaced person who is in free text on the contract has seven blanks, then the text.

#include <string>
#include <string_view>

namespace dialogs {

struct LigneRemplace {
  std::string code;  // "" for a person in free text
  std::string nom;
  std::string absence;
  std::string cleAbsence;
  bool operator==(const LigneRemplace&) const = default;
};

std::string FaireLigne(const LigneRemplace& ligne);
std::string FaireLigneLibre(std::string_view texte);

// The row back in its columns, without the padding. Of a free text the name alone is read.
LigneRemplace LireLigne(std::string_view ligne);
// The text of a free row as it is written to the contract: what stands in columns 7 to 41.
std::string TexteLibre(std::string_view ligne);

// The absence as the test of an entry made twice reads it, from columns 38 to 97 and not where it
// stands. The offset is kept on purpose: two long labels that begin alike, or a name of more than
// 30 characters, pass as different, and users count on entering them.
std::string AbsenceComparee(std::string_view ligne);

}  // namespace dialogs
