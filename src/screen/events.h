#pragma once
// The handlers that a form ties to its fields. An unset handler is no event.

#include <functional>

namespace screen {

using Handler = std::function<void()>;
// Receives the key about to be typed as a code point; setting it to 0 drops the key.
using KeyHandler = std::function<void(char32_t& touche)>;
// Receives the tab that was shown before.
using TabHandler = std::function<void(int ancien)>;

// Keys that are no character.
inline constexpr char32_t ToucheEntree = 13;
inline constexpr char32_t ToucheEchap = 27;
inline constexpr char32_t ToucheRetour = 8;

}  // namespace screen
