#include "data/question.h"

#include <algorithm>

namespace data {

namespace {

std::string quoted(std::string_view valeur, std::string_view front, std::string_view mark) {
  const std::size_t marks = std::min(valeur.find_first_not_of('['), valeur.size());
  std::string resultat = '"' + std::string(front) + std::string(marks, '[');
  for (const char c : valeur) resultat.append(c == '"' ? 2 : 1, c);
  const std::size_t last = valeur.find_last_not_of(']');
  resultat.append(valeur.size() - (last == std::string_view::npos ? 0 : last + 1), ']');
  return resultat.append(mark) + '"';
}

}  // namespace

std::string citer(std::string_view valeur) {
  return quoted(valeur, "", "");
}

std::string citerDebut(std::string_view valeur) {
  return quoted(valeur, "", "]");
}

std::string citerFin(std::string_view valeur) {
  return quoted(valeur, "[", "");
}

}  // namespace data
