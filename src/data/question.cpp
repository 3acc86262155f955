#include "data/question.h"

namespace data {

namespace {

std::string quoted(std::string_view valeur, std::string_view mark) {
  std::string resultat = "\"";
  for (const char c : valeur) {
    if (c != '"') resultat += c;
  }
  return resultat.append(mark) + '"';
}

}  // namespace

std::string citer(std::string_view valeur) {
  return quoted(valeur, "");
}

std::string citerDebut(std::string_view valeur) {
  while (!valeur.empty() && (valeur.front() == '[' || valeur.front() == '"')) {
    valeur.remove_prefix(1);
  }
  return quoted(valeur, "]");
}

}  // namespace data
