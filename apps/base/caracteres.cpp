#include "base/caracteres.h"

#include <charconv>

#include "data/citem.h"
#include "data/texte.h"

namespace base {
namespace {

bool estControle(unsigned code) {
  return code < 0x20 || (code >= 0x7F && code < 0xA0);
}

bool estSeparateur(unsigned code) {
  return code < 0x20 && (static_cast<char>(code) == data::SepAttribut ||
                         static_cast<char>(code) == data::SepValeur ||
                         static_cast<char>(code) == data::SepSousValeur);
}

std::string nomDuControle(unsigned code) {
  constexpr char Chiffres[] = "0123456789ABCDEF";
  std::string nom = estSeparateur(code) ? "séparateur U+00" : "caractère de contrôle U+00";
  nom += Chiffres[code >> 4];
  nom += Chiffres[code & 15];
  return nom + " à l'intérieur d'un texte";
}

struct Caractere {
  std::size_t octets = 1;
  unsigned code = 0;  // exact below U+0800, which is all that the callers look at
  bool valide = true;
};

Caractere caractereA(std::string_view texte, std::size_t i) {
  const auto octet = static_cast<unsigned char>(texte[i]);
  if (octet < 0x80) return {1, octet, true};
  const std::size_t octets = octet >= 0xF0 ? 4 : octet >= 0xE0 ? 3 : 2;
  if (octet < 0xC0 || !data::utf8Valide(texte.substr(i, octets))) return {1, octet, false};
  if (octets > 2) return {octets, 0xFFFF, true};
  return {2, (octet & 0x1Fu) << 6 | (static_cast<unsigned char>(texte[i + 1]) & 0x3Fu), true};
}

Interdit utf8Invalide(std::size_t position) {
  return {position, "octet qui n'est pas de l'UTF-8 ; enregistrez le texte en UTF-8"};
}

// The control character that the escape at the backslash `i` stands for, if it is one.
std::optional<unsigned> controleEchappe(std::string_view json, std::size_t i) {
  const char genre = i + 1 < json.size() ? json[i + 1] : '\0';
  switch (genre) {
    case 'b':
      return 0x08;
    case 't':
      return 0x09;
    case 'n':
      return 0x0A;
    case 'f':
      return 0x0C;
    case 'r':
      return 0x0D;
    case 'u':
      break;
    default:
      return {};
  }
  unsigned code = 0;
  const std::string_view chiffres = json.substr(i + 2, 4);
  const char* const fin = chiffres.data() + chiffres.size();
  const auto lu = std::from_chars(chiffres.data(), fin, code, 16);
  if (chiffres.size() < 4 || lu.ptr != fin || !estControle(code)) return {};
  return code;
}

}  // namespace

std::optional<Interdit> interditDansJson(std::string_view json) {
  bool dansTexte = false;
  for (std::size_t i = 0; i < json.size();) {
    const Caractere c = caractereA(json, i);
    if (!c.valide) return utf8Invalide(i);
    const bool blanc = c.code == '\t' || c.code == '\n' || c.code == '\r';
    if (estControle(c.code) && (dansTexte || !blanc)) return Interdit{i, nomDuControle(c.code)};
    std::size_t pas = c.octets;
    if (c.code == '"') {
      dansTexte = !dansTexte;
    } else if (dansTexte && c.code == '\\') {
      if (const auto code = controleEchappe(json, i)) return Interdit{i, nomDuControle(*code)};
      // The escaped character itself is skipped when it is ASCII; others are looked at in turn.
      if (i + 1 < json.size() && json[i + 1] > ' ') pas = 2;
    }
    i += pas;
  }
  return {};
}

std::optional<Interdit> interditDansTexte(std::string_view texte) {
  for (std::size_t i = 0; i < texte.size();) {
    const Caractere c = caractereA(texte, i);
    if (!c.valide) return utf8Invalide(i);
    if (estControle(c.code) && !estSeparateur(c.code)) return Interdit{i, nomDuControle(c.code)};
    i += c.octets;
  }
  return {};
}

}  // namespace base
