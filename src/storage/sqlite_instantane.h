#pragma once
// A data file and its log as the system shows them at one moment, for a reader that takes no locks:
// whether somebody has written since, and whether what was read until now still holds.

#include <cstdint>
#include <string>

namespace storage {

class Instantane {
 public:
  // `journal` is the path of the log, which may be absent. Waits a few milliseconds when the file
  // has just been written: the system's clock could not tell the next write from that one.
  Instantane(std::string chemin, std::string journal);

  // Nothing was written.
  bool Inchange() const;
  // At most writes were added at the end of the log. What was read before them stays whole.
  bool Tient() const;

 private:
  struct Fiche {
    bool presente = false;
    std::uint64_t disque = 0;
    std::uint64_t numero = 0;
    std::int64_t octets = 0;
    std::int64_t modifieNs = 0;
    bool operator==(const Fiche&) const = default;
  };
  struct Etat {
    Fiche fichier;
    Fiche journal;
    std::string entete;  // of the log: another one when it was begun again
    bool operator==(const Etat&) const = default;
  };
  static Fiche Lire(const std::string& chemin);
  Etat Lire() const;

  std::string chemin_;
  std::string journal_;
  Etat etat_;
};

}  // namespace storage
