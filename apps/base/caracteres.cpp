#include "base/caracteres.h"

#include <charconv>

#include "data/citem.h"
#include "data/texte.h"

namespace base {
namespace {

bool estSeparateur(unsigned code) {
  return code < 0x20 && (static_cast<char>(code) == data::SepAttribut ||
                         static_cast<char>(code) == data::SepValeur ||
                         static_cast<char>(code) == data::SepSousValeur);
}

std::string nomDuControle(unsigned code) {
  constexpr char Chiffres[] = "0123456789ABCDEF";
  return {'U', '+', '0', '0', Chiffres[code >> 4 & 15], Chiffres[code & 15]};
}

// What no text can hold, however it is written.
std::optional<std::string> raisonDuRefus(unsigned code) {
  if (estSeparateur(code)) return "séparateur " + nomDuControle(code) + " à l'intérieur d'un texte";
  if (code == 0) return "caractère U+0000 à l'intérieur d'un texte";
  return {};
}

// The code of a \uXXXX escape at the backslash `i`, if it is one.
std::optional<unsigned> codeEchappe(std::string_view json, std::size_t i) {
  if (json.substr(i, 2) != "\\u") return {};
  unsigned code = 0;
  const std::string_view chiffres = json.substr(i + 2, 4);
  const char* const fin = chiffres.data() + chiffres.size();
  const auto lu = std::from_chars(chiffres.data(), fin, code, 16);
  if (chiffres.size() < 4 || lu.ptr != fin) return {};
  return code;
}

// A raw control character where JSON takes none.
Interdit controleBrut(std::size_t position, unsigned code) {
  if (auto raison = raisonDuRefus(code)) return {position, *raison};
  return {position, "caractère de contrôle " + nomDuControle(code) +
                        " ; dans un texte il s'écrit \\u00" + nomDuControle(code).substr(4)};
}

}  // namespace

std::optional<Interdit> interditDansJson(std::string_view json) {
  bool dansTexte = false;
  for (std::size_t i = 0; i < json.size();) {
    std::size_t pas = data::octetsCaractere(json, i);
    if (pas == 0) {
      return Interdit{i, "octet qui n'est pas de l'UTF-8 ; enregistrez le texte en UTF-8"};
    }
    const auto code = static_cast<unsigned char>(json[i]);
    const bool blanc = code == '\t' || code == '\n' || code == '\r';
    if (code < 0x20 && (dansTexte || !blanc)) return controleBrut(i, code);
    if (code == '"') {
      dansTexte = !dansTexte;
    } else if (dansTexte && code == '\\') {
      const auto echappe = codeEchappe(json, i);
      if (const auto raison = echappe ? raisonDuRefus(*echappe) : std::nullopt) {
        return Interdit{i, *raison};
      }
      // The escaped character itself is skipped when it is ASCII; others are looked at in turn.
      if (i + 1 < json.size() && json[i + 1] > ' ') pas = 2;
    }
    i += pas;
  }
  return {};
}

}  // namespace base
