#pragma once
// The utility service of the screens: every date that is shown or typed and every amount of a
// number field passes through here. Below it stand the pure functions of jour.h, nombre.h and
// texte.h; what is here are the services and routines as the screens know them.
//
//   Lib lib(poste);
//   lib.DateToInternal("22/11/2026")       "21511"
//   lib.DateFromInternal("21511")          "22/11/2026"
//   lib.NormaliseDateText("22.11.26")      "22/11/2026", DateError() is false
//   lib.FormatNumber("12,5", 5, 2, true)   "    12,50", nine characters

#include <optional>
#include <stdexcept>
#include <string>
#include <string_view>

#include "data/monnaie.h"
#include "data/poste.h"

namespace data {

// A text that should have been a date. The text is French and quotes it.
class DateInvalide : public std::runtime_error {
 public:
  using std::runtime_error::runtime_error;
};

class Lib {
 public:
  // The workstation must outlive the service.
  explicit Lib(const Poste& poste) : poste_(poste) {}

  // The internal date of a displayed date, also of one written as a clerk may type it. "" and
  // blanks give "". Any other text raises DateInvalide: giving "" for it would turn a wrong end
  // date into an open-ended contract. Handlers that look at a date still being typed use LireDate.
  std::string DateToInternal(std::string_view date) const;
  std::string DateToInternal(long jour) const { return std::to_string(jour); }
  // The day number, or nothing for an empty or unreadable text.
  std::optional<long> LireDate(std::string_view date) const;
  // The displayed date of an internal one; "" gives "". A text that is no day number, or one beyond
  // the year 9999, comes back as it is, so that a wrong record is seen and not silently emptied.
  std::string DateFromInternal(std::string_view interne) const;

  // The typed text in displayed form. A text that is no date comes back unchanged and raises
  // DateError, which holds until the next call.
  std::string NormaliseDateText(std::string_view saisie);
  bool DateError() const { return dateError_; }

  // For KeyPress of a number field: drops (sets to 0) a key that cannot stand in a number. `texte`
  // is what the field holds beside its selection. Digits and control keys pass; "." and "," both
  // become the workstation's separator, so that the numeric pad serves, and pass once; "-" passes
  // once and only when `moins`.
  void FilterKey(std::string_view texte, char32_t& touche, bool moins) const;

  // The fixed-width text of a number, see formateNombre. Raises NombreInvalide when the value does
  // not fit or is no number, the empty text included.
  std::string FormatNumber(std::string_view texte, int avant, int apres, bool signe) const;
  std::string FormatNumber(Monnaie valeur, int avant, int apres, bool signe) const;
  // The same for what was typed in a field, where a wrong text is an ordinary outcome: nothing when
  // it does not fit or is no number.
  std::optional<std::string> FormatNumberField(std::string_view texte, int avant, int apres,
                                               bool signe) const;

  std::string DecimalSeparator() const { return poste_.SeparateurDecimal(); }

 private:
  int AnneeCourante() const;

  const Poste& poste_;
  bool dateError_ = false;
};

// Closes the gap that the fixed width leaves between sign and digits: without `signe`, or without
// "-" in the text, leading blanks go; otherwise the first character becomes "-" and the blanks
// behind it go. "-    5,00" gives "-5,00".
std::string CadrerMontant(std::string_view texte, bool signe);

// The other fixed-width form: the integer part in `avant` columns, always a comma, decimals
// completed with zeros to `apres`; too many decimals are cut, not rounded, to their first two
// whatever `apres` is. With `signe` a negative value has its "-" in front of it all, otherwise
// none. The value is a number text with either separator; NombreInvalide when it is none.
std::string FormatZoneNumBis(std::string_view valeur, int avant, int apres, bool signe);

// "AAAAMM" as "<mois> AAAA" with the months as users know them: "aout" and "decembre" have no
// accent, "février" has. A month that does not exist leaves the year alone.
std::string Determinerdate(std::string_view periode);

// What the check of a typed decimal answers. The screen shows the message, gives the field the
// focus when there is one, and keeps the text.
struct ControleZoneNum {
  std::string message;       // "" when the text passes
  bool information = false;  // the information icon; otherwise none
  bool erreur = false;       // ErreurZoneNum becomes true; otherwise it stays as it is

  bool Passe() const { return message.empty(); }
  bool Focus() const { return !message.empty(); }
};

// `avant` and `apres`: most digits on either side of the separator. A "-" in the text raises
// `avant` by one, also for the caller.
ControleZoneNum ZoneNumCarac(std::string_view texte, int& avant, int apres,
                             std::string_view separateur);

}  // namespace data
