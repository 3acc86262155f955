#pragma once
// One record as JSON, in both directions. The reader and the writer of data files, and `lire` and
// `ecrire` of the data tool, stand on this.
//
//   {"fichier":"CONTRAT","cle":"00001001","item":["02","001","",["0","01"],[["a","b"],"c"]]}
//
// The item is the array of its attributes. An attribute is a text or the array of its values, a
// value a text or the array of its subvalues. Nothing but texts stands inside: a code such as "02"
// would lose its zero as a number. The writer gives one form for one content (the shortest, without
// empty ends), so that writing what was read from the writer gives the same bytes.
//
// What the reader refuses, it refuses with the place: invalid JSON, invalid UTF-8, a separator of
// an item or U+0000 inside a text, a member that is unknown, missing or given twice, and anything
// else than texts in the item. Other control characters come as JSON escapes and are content.

#include <stdexcept>
#include <string>
#include <string_view>

namespace base {

struct Enregistrement {
  std::string fichier;
  std::string cle;
  std::string texte;  // canonical text form of the item
};

// A text that is no record. The line and the column count from 1, the column in characters.
class RefusJson : public std::runtime_error {
 public:
  RefusJson(long ligne, long colonne, const std::string& raison)
      : std::runtime_error(raison), ligne_(ligne), colonne_(colonne) {}

  long Ligne() const { return ligne_; }
  long Colonne() const { return colonne_; }

 private:
  long ligne_;
  long colonne_;
};

// A whole record; its file name and its key are such as a store accepts. RefusJson otherwise.
Enregistrement lireEnregistrement(std::string_view json);
// An item alone, as the array of its attributes; it may span lines. Comes back as its text form.
std::string lireItem(std::string_view json);

// Each appends to `sortie`, without a line end. `texte` is the text form of an item.
void ecrireEnregistrement(std::string& sortie, std::string_view fichier, std::string_view cle,
                          std::string_view texte);
void ecrireItem(std::string& sortie, std::string_view texte);
// One text, between quotes; with subvalue separators inside, the array of the subvalues.
void ecrireValeur(std::string& sortie, std::string_view valeur);

// The column, from 1, of the byte at `position` of one line.
long colonneDe(std::string_view ligne, std::size_t position);

}  // namespace base
