#pragma once
// What no text of a record may hold: bytes that are not UTF-8, and control characters. Used on
// JSON before it is parsed, and on stored texts by the check of a data file.

#include <cstddef>
#include <optional>
#include <string>
#include <string_view>

namespace base {

struct Interdit {
  std::size_t position = 0;  // in bytes
  std::string raison;
};

// The first forbidden place of a JSON text. Inside its strings a control character is forbidden
// raw as well as escaped (backslash and n, backslash and u001E); outside, tabs and line ends are
// ordinary blanks.
std::optional<Interdit> interditDansJson(std::string_view json);
// The first forbidden place of the text form of an item, whose separators are in their place.
std::optional<Interdit> interditDansTexte(std::string_view texte);

}  // namespace base
