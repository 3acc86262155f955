#pragma once
// Texts that a person reads, taken character by character. Lengths, positions, cuts and paddings
// here count characters of UTF-8, so that "Hélène" is six long and is never cut inside a letter.
// Keys and periods are ASCII and may be cut by bytes elsewhere.
//
//   longueur("Hélène")           6
//   gauche("Hélène", 2)          "Hé"
//   milieu("Hélène", 4, 2)       "èn"
//   majuscules("Œuvre à côté")   "ŒUVRE À CÔTÉ"
//
// Positions are numbered from 1. A place outside the text reads "", a negative count is 0. A byte
// that belongs to no well-formed character counts as one character and is kept as it is: no text,
// however damaged, is refused here or read beyond its end.

#include <cstddef>
#include <string>
#include <string_view>
#include <vector>

namespace data {

constexpr bool estChiffre(char c) {
  return c >= '0' && c <= '9';
}

// The bytes of the well-formed UTF-8 character that begins at byte `i`, which lies inside the text:
// 1 to 4, or 0 where none begins (a stray or cut sequence, an overlong form, a surrogate, or above
// U+10FFFF).
std::size_t octetsCaractere(std::string_view texte, std::size_t i);

// Whether the whole text is well-formed UTF-8. The empty text is.
bool utf8Valide(std::string_view texte);

int longueur(std::string_view texte);

// The first n characters, the last n, the n from `debut` on, and all from `debut` on; fewer where
// the text ends before. A `debut` below 1 counts as 1.
std::string gauche(std::string_view texte, int n);
std::string droite(std::string_view texte, int n);
std::string milieu(std::string_view texte, int debut, int n);
std::string milieu(std::string_view texte, int debut);

// Where `partie` first stands in `texte`; 0 when it does not, or when it is empty.
int position(std::string_view texte, std::string_view partie);

// Completed to `largeur` characters with an ASCII character, at the right end or at the left one.
// A text already that long comes back whole.
std::string completeADroite(std::string_view texte, int largeur, char remplissage = ' ');
std::string completeAGauche(std::string_view texte, int largeur, char remplissage = ' ');
// Exactly `largeur` characters, cut or completed with blanks at the right: a column of a row.
std::string colonne(std::string_view texte, int largeur);

// Without leading blanks, without trailing ones, without both. Only the blank itself goes.
std::string sansBlancsAGauche(std::string_view texte);
std::string sansBlancsADroite(std::string_view texte);
std::string sansBlancs(std::string_view texte);
// Without any blank, inner ones too, as for reading a number with parted thousands.
std::string sansAucunBlanc(std::string_view texte);

// Every no-break blank, wide or narrow, as a blank: what other programs part thousands with.
std::string blancsSimples(std::string_view texte);

// Without control characters: below U+0020, U+007F, and U+0080 to U+009F.
std::string sansControles(std::string_view texte);

// Upper case with accents kept, for the ASCII, Latin-1 and Latin Extended-A letters; every other
// character stays, the German sharp s too, which has no capital of its own.
std::string majuscules(std::string_view texte);

// In capitals without accents, ligatures opened: "Cœur à l'Été" becomes "COEUR A L'ETE".
std::string sansAccents(std::string_view texte);
// A person's name as people search it: sansAccents without apostrophes, hyphens, and the quotes and
// brackets that no name has. "N'Diaye" and "ndiaye" are the same.
std::string plier(std::string_view nom);
// Dictionary order: letters without regard to case and accents, equal texts by bytes. Below 0, 0 or
// above 0. `a` and `b` come with their sansAccents, for a sort that makes it once.
int ordreDictionnaire(std::string_view a, std::string_view aPlie, std::string_view b,
                      std::string_view bPlie);

// The pieces between blanks; neighbouring blanks part only once. Empty for a text of blanks.
std::vector<std::string> mots(std::string_view texte);

}  // namespace data
