#pragma once
// The numbers and months of the annual follow-up: how its columns show them, and how they stand on
// file.
//
//   formeSuivi(Monnaie::DeTexte("-12,5"), 4, 2)   "- 12,50"
//   etiquetteMois("202602")                       "FÉVRIER 2026"

#include <string>
#include <string_view>

#include "data/monnaie.h"

namespace rules {

// The number as a column shows it: the integer part on `avant` characters, always a comma, at least
// `apres` decimals; a negative one has its "-" in place of the first character.
//
// Too many decimals are not rounded as elsewhere: 5 is added to them as a number, whose first two
// digits stand. Nothing is carried into the integer part and leading zeros are lost, so that 0,125
// shows 0,13 but 0,005 and 0,995 both show 0,10. It is what users know, and stays on purpose.
std::string formeSuivi(data::Monnaie valeur, int avant, int apres);
// What such a column says, or what was typed: the number of the longest beginning that is one.
data::Monnaie lireForme(std::string_view texte);

// A number on file. What is no number, or passes a million, counts as 0; it stays on file until the
// line is corrected.
data::Monnaie entierLu(std::string_view texte);
data::Monnaie centiemesLus(std::string_view texte);
// Hundredths, with halves rounded up: the one rounding of the effective working time, below zero
// too, so that a line still typed and a line on file agree.
long long centiemes(data::Monnaie valeur);
std::string centiemesEcrits(data::Monnaie valeur);

// The month in capitals; a text that is no period as it is, so that a wrong record is seen.
std::string etiquetteMois(std::string_view periode);

}  // namespace rules
