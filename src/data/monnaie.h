#pragma once
// Amounts, hours, rates and shares: a fixed-point number with four decimals, exact in every sum.
//
//   Monnaie::DeCentiemes("15167").Texte(2)                   "151,67"
//   (Monnaie::DeTexte("10") / Monnaie::Entier(3)).Texte(4)   "3,3333"
//   Monnaie::DeTexte("3 428,5").Centiemes()                  342850, as a record holds it
//
// Values go up to about 922 thousand billion either side of 0. Every result that four decimals
// cannot hold is rounded half away from zero: 0,00005 is 0,0001 and -0,00005 is -0,0001. A result
// out of bounds, a division by zero and a text that is no number raise NombreInvalide; the empty
// text is 0.

#include <compare>
#include <cstdint>
#include <string>
#include <string_view>

#include "data/nombre.h"

namespace data {

class Monnaie {
 public:
  constexpr Monnaie() = default;

  static Monnaie Entier(std::int64_t nombre);
  // A number text as typed or shown: see nombre.h.
  static Monnaie DeTexte(std::string_view texte);
  // Number texts of records, in hundredths, thousandths, ten-thousandths.
  static Monnaie DeCentiemes(std::string_view texte);
  static Monnaie DeMilliemes(std::string_view texte);
  static Monnaie DeDixMilliemes(std::string_view texte);
  // The longest beginning of the text that is a number, 0 if none is: for sums over fields that
  // may hold anything. Never raises for a wrong text.
  static Monnaie Valeur(std::string_view texte);

  // Whole numbers for a record, rounded half away from zero.
  std::int64_t Centiemes() const;
  std::int64_t Milliemes() const;
  std::int64_t DixMilliemes() const { return unites_; }

  // With exactly that many decimals, 0 to 4, rounded; no padding, no separator when 0.
  std::string Texte(int decimales, std::string_view separateur = ",") const;
  // With as few decimals as the value needs: "12", "12,5".
  std::string TexteCourt(std::string_view separateur = ",") const;

  // The greatest whole number not above: 2 for 2,5 and -3 for -2,5.
  Monnaie PartieEntiere() const;
  // Whole days and half-days, the only ones that leave counters take.
  bool EntierOuDemi() const;
  Monnaie Absolue() const { return unites_ < 0 ? -*this : *this; }

  Monnaie operator-() const { return Monnaie() - *this; }
  friend Monnaie operator+(Monnaie a, Monnaie b);
  friend Monnaie operator-(Monnaie a, Monnaie b);
  friend Monnaie operator*(Monnaie a, Monnaie b);
  friend Monnaie operator/(Monnaie a, Monnaie b);
  Monnaie& operator+=(Monnaie b) { return *this = *this + b; }
  Monnaie& operator-=(Monnaie b) { return *this = *this - b; }

  // NOLINTNEXTLINE(modernize-use-nullptr): the checker takes the comparison's own 0 for a pointer.
  friend constexpr auto operator<=>(Monnaie a, Monnaie b) = default;

 private:
  static Monnaie DUnites(std::int64_t unites);

  std::int64_t unites_ = 0;  // ten-thousandths
};

}  // namespace data
