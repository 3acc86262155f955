#pragma once
// How every store on a disk or a server words its errors: what was being done, where, and why it
// could not be.

#include <string>
#include <string_view>

#include "data/store_error.h"

namespace storage {

// What was being done, to word an error. The views are only read while the call lasts.
struct Acte {
  // With a file: "Lecture", "Parcours". Without one, up to the data file's name: "Ouverture de".
  std::string_view nom;
  std::string_view fichier = {};
  std::string_view cle = {};
  bool apres = false;  // at some place after that key, not at its record
};

// `chemin` is the data file, or the server's address, as users see it; `suite` is the cause and
// what to do, in whole sentences.
data::StoreError erreur(data::NumeroErreur numero, const std::string& chemin, const Acte& acte,
                        const std::string& suite);

}  // namespace storage
