#pragma once
// Records and columns as a person or a line-based tool reads them: one line each, columns parted by
// tabs. What would break the line is written with a backslash: \t, \n, \r, \u001B and so on for
// other control characters, and \\ for the backslash itself.

#include <string>
#include <string_view>

namespace base {

// Lines are gathered to this size before they are sent.
inline constexpr std::size_t TailleEnvoi = std::size_t{256} << 10;

// Between the values of one column; in a text the character itself comes with a backslash.
inline constexpr std::string_view EntreValeurs = "¦";

// One text, appended to `sortie`; subvalue separators show as EntreValeurs.
void ecrireColonne(std::string& sortie, std::string_view texte);

// The item, one line for each text that is not empty, after its place: "7", "14.2" or "106.1.3" and
// a tab. An attribute with several values, or a value with several subvalues, numbers them.
void ecrireLignes(std::string& sortie, std::string_view texteItem);

}  // namespace base
