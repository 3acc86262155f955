#pragma once
// The contract list on paper: what the list shows of a carer, in the order in which it stands
// there.

#include "control/ctr_contrat.h"

namespace hote {

// Prints the rows of the list under the carer's name and the columns' captions, with the date and a
// number on each page; a list without a row gives one page that says so. What does not fit its
// column is cut. A std::runtime_error, with its reason in French, when the document cannot be
// written.
void imprimerListe(const control::Ctr_Contrat& liste, screen::Platform& plateforme);

}  // namespace hote
