#pragma once
// What no text of a record may hold, on the way in from JSON: bytes that are not UTF-8, the
// character U+0000, and the three separators of an item. Every other control character is content,
// as for the store: a note may have line ends.

#include <cstddef>
#include <optional>
#include <string>
#include <string_view>

namespace base {

struct Interdit {
  std::size_t position = 0;  // in bytes
  std::string raison;
};

// The first forbidden place of a JSON text; inside its strings escapes count as what they stand
// for. JSON has no raw control character below U+0020 but its blanks, and none inside a string.
std::optional<Interdit> interditDansJson(std::string_view json);

}  // namespace base
