#pragma once
// The command line of the pilot.

#include <optional>
#include <stdexcept>
#include <string>
#include <vector>

#include "session/droits.h"

namespace pilote {

struct Options {
  std::string base;
  std::string aidant;
  int niveau = session::Droit::Plein;
  // Internal day number; the workstation's day when it is not given.
  std::optional<long> jour;
  std::string contrat;
  bool memeEnReseau = false;
  bool etatSupprime = false;
  // "" for the standard input.
  std::string scenario;
  bool aide = false;
};

// A command line that cannot be understood; what() is French and says what to do.
class OptionFausse : public std::runtime_error {
 public:
  using std::runtime_error::runtime_error;
};

// With `aide`, the other options are not checked.
Options lireOptions(std::vector<std::string> arguments);
std::string texteAide();

}  // namespace pilote
