#pragma once
// Pictures of what leaves the screen: paper, letters, the controls of the suite.

namespace control {
class Ctr_Contrat;
}

namespace hote {

class Album;
class Bureau;

// The declarations and the letter of the first contract of the list.
void capturerPapiers(Album& album, Bureau& bureau, const control::Ctr_Contrat& liste);
// The windows of the hosted controls, as they stand when they open.
void capturerHebergees(Album& album, Bureau& bureau, const control::Ctr_Contrat& liste);

}  // namespace hote
