#pragma once
// The keys that an import has met, with the line of each, so that a key given twice is refused with
// both its places. Exact, and small: about 30 bytes for each key, in two blocks per file.

#include <cstddef>
#include <cstdint>
#include <map>
#include <string>
#include <string_view>
#include <vector>

namespace base {

class ClesVues {
 public:
  // Notes the key. Comes back with the line that gave it before, or 0 when it is new.
  long Ajoute(std::string_view fichier, std::string_view cle, long ligne);

 private:
  struct UnFichier {
    std::string cles;                  // line (8 bytes), length (4 bytes) and bytes of each key
    std::vector<std::uint64_t> table;  // open addressing: 1 + place in `cles`, 0 for a free cell
    std::size_t nombre = 0;
  };
  struct Entree {
    std::int64_t ligne;
    std::string_view cle;
  };
  static Entree Lit(const UnFichier& fichier, std::uint64_t place);
  static std::size_t Cellule(const UnFichier& fichier, std::string_view cle);
  static void Agrandit(UnFichier& fichier);

  std::map<std::string, UnFichier, std::less<>> fichiers_;
};

}  // namespace base
