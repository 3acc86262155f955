#pragma once
// Numbers as texts. Records and screens hold numbers as texts only; they are read, rounded and
// formatted here on their decimal digits, never through a binary fraction.
//
//   entier("12,5")                    12
//   enUnites("12,345", 2)             1235, the hundredths
//   formateNombre("-5", 5, 2, true)   "-    5,00"
//   formeMilliers("  12345,60")       "12 345,60"
//
// A number text is an optional sign, digits, and one optional separator, "," or ".", whatever the
// workstation's; at least one digit stands somewhere ("5," and ",5" are numbers). Blanks around it
// and after the sign are ignored, and so are single blanks between groups of three digits of the
// integer part. Rounding is half away from zero.

#include <optional>
#include <stdexcept>
#include <string>
#include <string_view>

namespace data {

// A text that should have been a number, or a number too large for its place. The text is French
// and quotes the value.
class NombreInvalide : public std::runtime_error {
 public:
  using std::runtime_error::runtime_error;
};

// A number text in its pieces.
struct NombreEcrit {
  bool negatif = false;
  std::string entiers;    // without leading zeros; empty for 0
  std::string decimales;  // as written
  char separateur = ',';  // as written
};
std::optional<NombreEcrit> lireNombre(std::string_view texte);
bool estNombre(std::string_view texte);

// The number of the longest beginning that is one, without its decimals, blanks passed over: for
// values read from records, where "12,5" counts as 12, "0045" as 45, and "" or any text that does
// not begin with a number as 0. "-0,5" is 0. Held at the bounds of 64 bits.
long long entier(std::string_view texte);

// The number times 10 to the power `echelle` (0 to 9), rounded to a whole one. Nothing when the
// text is no number or the result passes 64 bits.
std::optional<long long> enUnites(std::string_view texte, int echelle);

// The fixed-width text of a number field: `avant` digits before the separator, right-aligned with
// blanks, the separator and exactly `apres` decimals (neither when `apres` is 0). With `signe`, one
// more column stands in front for "-" or a blank. Nothing when the text is no number, when it
// rounds to more digits than `avant`, and for a negative number without `signe`.
std::optional<std::string> formateNombre(std::string_view texte, int avant, int apres, bool signe,
                                         std::string_view separateur);

// Groups of three digits of the integer part parted by one blank; blanks around go, the sign stands
// next to the digits, the decimals stay. A text that is no number comes back as it is.
std::string formeMilliers(std::string_view nombre);

}  // namespace data
