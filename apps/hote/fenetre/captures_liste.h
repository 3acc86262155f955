#pragma once
// Pictures of the list's screen in the states that a clerk meets.

namespace hote {

class Album;
class FenetreHote;

// Of the carer who is open: the filters that leave nothing, a selected row, a name that is typed
// beside him, the menu of the list, and consultation. The filters are as they were afterwards.
void capturerEtatsListe(Album& album, FenetreHote& fenetre);

}  // namespace hote
