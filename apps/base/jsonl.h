#pragma once
// Records from JSON Lines: one record a line (see article_json.h), in UTF-8, lines ended by LF or
// CR LF, a byte order mark at the start passed over. Lines of nothing but blanks are skipped and
// counted.

#include <cstddef>
#include <istream>
#include <stdexcept>
#include <string>

#include "base/article_json.h"

namespace base {

// The input itself cannot be read; what() says why in French.
class EntreeIllisible : public std::runtime_error {
 public:
  using std::runtime_error::runtime_error;
};

class LecteurJsonl {
 public:
  // Above this a line is refused instead of filling the memory: no record comes near it.
  static constexpr std::size_t LongueurMaximale = std::size_t{256} << 20;

  explicit LecteurJsonl(std::istream& entree, std::size_t longueurMaximale = LongueurMaximale)
      : entree_(entree), longueurMaximale_(longueurMaximale) {}

  // False at the end. RefusJson, with the number of the line in the input, for a line that is no
  // record; the next call goes on with the line after it. EntreeIllisible when reading fails.
  bool Suivant(Enregistrement& enregistrement);

  // The line that Suivant looked at last.
  long Ligne() const { return numero_; }

 private:
  bool LigneSuivante();
  bool Remplir();
  void VerifieLongueur() const;

  std::istream& entree_;
  std::size_t longueurMaximale_;
  std::string tampon_;
  std::size_t lu_ = 0;  // first byte of tampon_ that is not yet in a line
  std::string ligne_;
  std::size_t longueur_ = 0;  // of the line in the input; above the limit ligne_ holds its start
  long numero_ = 0;
};

}  // namespace base
