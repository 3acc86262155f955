#pragma once
// The host's rights object and one right.

#include <string_view>

namespace session {

// Only the value 2 is ever tested: full rights. Any other level is read-only.
struct Droit {
  static constexpr int Plein = 2;
  int Level = 0;
  bool Complet() const { return Level == Plein; }
};

class Droits {
 public:
  virtual ~Droits() = default;
  // The right of that name; level 0 for one that the host does not know.
  virtual Droit Lookup(std::string_view nom) const = 0;
};

// The right that every screen of this component consults.
inline constexpr std::string_view DroitContrat = "DOSAIDANTCONTRAT";

// The same level for every right: for trial hosts, scenarios and tests.
class DroitsUniformes : public Droits {
 public:
  explicit DroitsUniformes(int niveau) : niveau_(niveau) {}
  Droit Lookup(std::string_view) const override { return {niveau_}; }

 private:
  int niveau_;
};

// What holds until the host has given its rights.
inline const DroitsUniformes SansDroits{0};

}  // namespace session
