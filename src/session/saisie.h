#pragma once
// What every screen does with its date and number fields, tied to a field in one line.

#include <functional>
#include <optional>
#include <string>

#include "screen/field.h"
#include "session/session.h"

namespace session {

// The text of a refused date.
inline constexpr const char* ErreurDate = "Erreur de saisie dans la date, veuillez la ressaisir.";

// A number as a field shows it.
struct FormeNombre {
  // Digits before the separator, and after.
  int avant = 0;
  int apres = 0;
  bool signe = false;
  // In a fixed width; without the blanks that fill it; with a blank between groups of thousands.
  enum Affichage { Cadree, Serree, Milliers } affichage = Cadree;

  // Characters that such a number takes.
  int Largeur() const { return avant + (apres > 0 ? 1 + apres : 0) + (signe ? 1 : 0); }
};

// The number text in that form; nothing when it is no number or does not fit.
std::optional<std::string> formater(const data::Lib& lib, const std::string& texte,
                                    const FormeNombre& forme);

// The LostFocus of a date field: puts the typed date in displayed form. A text that is no date
// keeps the focus, with a hint. True when the field may be left.
bool QuitterDate(Session& session, screen::TextField& champ);
// The same for a number field; an empty one may be left.
bool QuitterNombre(Session& session, screen::TextField& champ, const FormeNombre& forme);

// Ties key filter and form on leaving. `ensuite` follows once the field may be left.
void LierDate(Session& session, screen::TextField& champ,
              const std::function<void()>& ensuite = {});
void LierNombre(Session& session, screen::TextField& champ, const FormeNombre& forme,
                const std::function<void()>& ensuite = {});

// Chooses the row of a drop-down whose text stands in the box. False when no row has it; an empty
// box passes.
bool ChoisirTexte(screen::ComboBox& champ);

// The check of a typed decimal: shows its message and gives the field the focus. True when the text
// passes.
bool ZoneNumCarac(Session& session, screen::TextField& champ, int& avant, int apres);

}  // namespace session
