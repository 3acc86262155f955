#include <algorithm>

#include "data/query.h"
#include "data/texte.h"

namespace data {

namespace {

bool verdict(Operator op, int order) {
  switch (op) {
    case Operator::Equal:
      return order == 0;
    case Operator::Different:
      return order != 0;
    case Operator::Less:
      return order < 0;
    case Operator::LessEqual:
      return order <= 0;
    case Operator::Greater:
      return order > 0;
    case Operator::GreaterEqual:
      return order >= 0;
  }
  return false;
}

// Order of a whole field value against the comparison's value.
int orderOf(const Comparison& comparison, std::string_view fieldValue, bool isKey) {
  const bool asNumbers = comparison.number.valid && (isKey ? comparison.op > Operator::Different
                                                           : !comparison.number.leadingZero);
  if (asNumbers && fieldValue != comparison.value) {
    const Number number = readNumber(fieldValue);
    if (number.valid && (isKey || !number.leadingZero)) {
      return compareNumbers(number, comparison.number);
    }
  }
  return fieldValue.compare(comparison.value);
}

}  // namespace

Number readNumber(std::string_view text) {
  Number number;
  if (text.starts_with('-') || text.starts_with('+')) {
    number.negative = text.front() == '-';
    text.remove_prefix(1);
  }
  const auto point = text.find('.');
  number.whole = text.substr(0, point);
  if (point != std::string_view::npos) number.decimals = text.substr(point + 1);

  const auto allDigits = [](std::string_view digits) {
    return std::all_of(digits.begin(), digits.end(), estChiffre);
  };
  number.valid = !(number.whole.empty() && number.decimals.empty()) && allDigits(number.whole) &&
                 allDigits(number.decimals);
  number.leadingZero = number.whole.size() > 1 && number.whole.front() == '0';
  number.whole.remove_prefix(std::min(number.whole.find_first_not_of('0'), number.whole.size()));
  number.decimals = number.decimals.substr(0, number.decimals.find_last_not_of('0') + 1);
  if (number.whole.empty() && number.decimals.empty()) number.negative = false;
  return number;
}

int compareNumbers(const Number& x, const Number& y) {
  if (x.negative != y.negative) return x.negative ? -1 : 1;
  int order = 0;
  if (x.whole.size() != y.whole.size()) {
    order = x.whole.size() < y.whole.size() ? -1 : 1;
  } else {
    order = x.whole.compare(y.whole);
    if (order == 0) order = x.decimals.compare(y.decimals);
  }
  return x.negative ? -order : order;
}

bool Comparison::accepts(std::string_view fieldValue, bool isKey) const {
  switch (mark) {
    case Mark::None:
      break;
    case Mark::Begin:
      return verdict(op, fieldValue.substr(0, value.size()).compare(value));
    case Mark::End:
      return verdict(op, droite(fieldValue, longueur(value)).compare(value));
    case Mark::Within:
      return verdict(op, fieldValue.find(value) == std::string_view::npos ? 1 : 0);
  }
  return verdict(op, orderOf(*this, fieldValue, isKey));
}

}  // namespace data
