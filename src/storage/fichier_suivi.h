#pragma once
// Which file stood under a name, to tell later whether that very file still does.

#include <cstdint>
#include <optional>
#include <string>

namespace storage {

class FichierSuivi {
 public:
  enum class Etat {
    EnPlace,
    Absent,       // moved or removed
    Remplace,     // another file has the name
    Inaccessible  // the folder or the disk does not answer
  };

  // Follows what has that name now. A name that nothing has is never EnPlace.
  explicit FichierSuivi(std::string chemin);

  const std::string& Chemin() const { return chemin_; }
  bool Existait() const { return identite_.has_value(); }
  Etat Regarder() const;

 private:
  // As long as somebody has the file open, the system gives its number to no other.
  struct Identite {
    std::uint64_t disque;
    std::uint64_t numero;
    bool operator==(const Identite&) const = default;
  };
  // `absente`: why there is none, an errno value.
  static std::optional<Identite> Lire(const std::string& chemin, int& absente);

  std::string chemin_;
  std::optional<Identite> identite_;
};

}  // namespace storage
