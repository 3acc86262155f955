// What a store accepts: the one gate before every write, whatever the backend.

#include <algorithm>
#include <cstdint>
#include <cstring>

#include "data/storage.h"
#include "data/store_error.h"
#include "data/texte.h"

namespace data {

namespace {

// Eight bytes at once: all ASCII and none of them zero. Bit 7 of a byte is clear in both terms only
// then.
bool huitOctetsSimples(const char* p) {
  constexpr std::uint64_t kHauts = 0x8080808080808080U;
  constexpr std::uint64_t kUns = 0x0101010101010101U;
  std::uint64_t mot = 0;
  std::memcpy(&mot, p, sizeof mot);
  return ((mot | (mot - kUns)) & kHauts) == 0;
}

// Position of the first byte that is no part of a valid UTF-8 text without zero bytes; the size
// when the whole is sound.
std::size_t premierDefaut(std::string_view texte) {
  std::size_t i = 0;
  while (i < texte.size()) {
    if (i + 8 <= texte.size() && huitOctetsSimples(texte.data() + i)) {
      i += 8;
      continue;
    }
    const std::size_t pas = texte[i] == '\0' ? 0 : octetsCaractere(texte, i);
    if (pas == 0) return i;
    i += pas;
  }
  return i;
}

// Of a valid UTF-8 text: C0 controls, DEL, and C1 controls (U+0080 to U+009F, lead byte C2).
bool tientControle(std::string_view texte) {
  for (std::size_t i = 0; i < texte.size(); ++i) {
    const auto c = static_cast<unsigned char>(texte[i]);
    if (c < 0x20 || c == 0x7F) return true;
    if (c == 0xC2 && static_cast<unsigned char>(texte[i + 1]) < 0xA0) return true;
  }
  return false;
}

// A refused name or key as a message can show it: what is not printable ASCII becomes "?".
std::string montrable(std::string_view texte) {
  constexpr std::size_t kMaximum = 60;
  std::string montre(texte.substr(0, kMaximum));
  for (char& c : montre) {
    if (c < 0x20 || c > 0x7E) c = '?';
  }
  if (texte.size() > kMaximum) montre += "...";
  return montre;
}

[[noreturn]] void refuser(const std::string& message, std::string_view fichier,
                          std::string_view cle) {
  throw StoreError(NumeroErreur::TexteRefuse, message, std::string(fichier), std::string(cle));
}

void verifierCle(std::string_view fichier, std::string_view cle) {
  const std::string lieu = " du fichier " + std::string(fichier);
  if (cle.empty()) {
    refuser("Un article" + lieu + " ne peut pas être écrit sans clé. Donnez-lui une clé.", fichier,
            cle);
  }
  const std::size_t defaut = premierDefaut(cle);
  if (defaut != cle.size()) {
    refuser("La clé « " + montrable(cle) + " »" + lieu +
                " n'est pas un texte UTF-8 valide (octet " + std::to_string(defaut + 1) +
                "). Corrigez la clé.",
            fichier, cle);
  }
  if (tientControle(cle)) {
    refuser("La clé « " + montrable(cle) + " »" + lieu +
                " contient un caractère de contrôle. Corrigez la clé.",
            fichier, cle);
  }
}

}  // namespace

bool estNomDeFichier(std::string_view nom) {
  return !nom.empty() && std::all_of(nom.begin(), nom.end(), [](char c) {
    return (c >= 'A' && c <= 'Z') || estChiffre(c);
  });
}

void VerifierEcriture(std::string_view fichier, std::string_view cle, std::string_view texte) {
  if (!estNomDeFichier(fichier)) {
    refuser("Le nom de fichier « " + montrable(fichier) +
                " » n'est pas admis. Un nom se compose de lettres majuscules sans accent et de "
                "chiffres.",
            fichier, cle);
  }
  verifierCle(fichier, cle);
  const std::size_t defaut = premierDefaut(texte);
  if (defaut == texte.size()) return;
  refuser("Le texte de l'article « " + std::string(cle) + " » du fichier " + std::string(fichier) +
              " n'est pas un texte UTF-8 valide (octet " + std::to_string(defaut + 1) +
              "). Corrigez le texte.",
          fichier, cle);
}

}  // namespace data
