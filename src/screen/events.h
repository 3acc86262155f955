#pragma once
// The handlers that a form ties to its fields. An unset handler is no event. A handler may replace
// itself, or drop the form that it belongs to: what runs is a copy.

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

inline void fire(const Handler& handler) {
  if (const Handler copie = handler) copie();
}
inline void fire(const KeyHandler& handler, char32_t& touche) {
  if (const KeyHandler copie = handler) copie(touche);
}
inline void fire(const TabHandler& handler, int ancien) {
  if (const TabHandler copie = handler) copie(ancien);
}

}  // namespace screen
