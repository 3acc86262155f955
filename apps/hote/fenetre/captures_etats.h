#pragma once
// Pictures of the states in which a clerk needs help most: what is refused, asked, found, empty,
// and only to be read.

#include <QString>
#include <string>

namespace hote {

class Album;
class FenetreHote;

// Of the open file, the copy `base` of the user's, which takes what they need: a carer with sixty
// contracts, one with none, one who is deleted, and a contract that another station saves
// meanwhile. `aidant` is open, with a contract in the list. The rights are full afterwards.
void capturerEtats(Album& album, FenetreHote& fenetre, const QString& base,
                   const std::string& aidant);

}  // namespace hote
