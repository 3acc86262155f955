#pragma once
// Keys and characters: what stands between a text in UTF-8 and a keyboard.

#include <string>
#include <string_view>

namespace screen {

// The characters of a text as keys. A byte that belongs to no character is no key.
std::u32string touchesDe(std::string_view texte);
// The text of one key that is a character.
std::string texteDe(char32_t touche);
// Whether the key can stand in a text: control keys cannot, nor what is no character at all.
bool estCaractere(char32_t touche);
bool estChiffre(char32_t touche);
// A filter of what is typed: digits, and the keys that are no text.
void chiffresSeuls(char32_t& touche);

}  // namespace screen
