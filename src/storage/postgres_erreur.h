#pragma once
// From a server's states to the store's errors, with a French text that a clerk can read out to the
// person in charge.

#include <string>
#include <string_view>

#include "data/store_error.h"
#include "storage/acte.h"

namespace storage {

class PanneServeur : public data::StoreError {
 public:
  enum class Sorte {
    Autre,
    AReprendre,  // another station got in between: the same transaction can be run again
    Coupure,     // the line is cut: whether what was sent was done is not known
  };
  PanneServeur(const data::StoreError& erreur, Sorte sorte) : StoreError(erreur), sorte_(sorte) {}
  bool AReprendre() const { return sorte_ == Sorte::AReprendre; }
  bool Coupure() const { return sorte_ == Sorte::Coupure; }

 private:
  Sorte sorte_;
};

// `etat` is the server's SQLSTATE, five characters; `message` its own sentence, for the states that
// have none of ours.
PanneServeur erreurServeur(std::string_view etat, std::string_view message,
                           const std::string& adresse, const Acte& acte);
// The line is cut, or no server answers.
PanneServeur erreurCoupure(const std::string& adresse, const Acte& acte);
// The server was not reached: `message` is all that libpq has to say, with the state in it if the
// server gave one.
PanneServeur erreurConnexion(std::string_view message, const std::string& adresse,
                             const Acte& acte);
// What came back differs from what was written.
data::StoreError erreurRelecture(const std::string& adresse, const Acte& acte);

}  // namespace storage
