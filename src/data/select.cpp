#include "data/select.h"

#include <algorithm>
#include <array>
#include <cstdint>
#include <cstring>

#include "data/texte.h"

namespace data {

namespace {

// Just after the n-th attribute separator from `p` on (n at least 1), or null. Eight bytes at a
// time: `hits` has the high bit of each byte that is a separator, and the product sums them.
const char* afterSeparators(const char* p, const char* end, int n) {
  constexpr std::uint64_t ones = 0x0101010101010101U;
  constexpr std::uint64_t low = 0x7F * ones;
  constexpr std::uint64_t pattern = static_cast<unsigned char>(SepAttribut) * ones;
  while (end - p >= 8) {
    std::uint64_t word = 0;
    std::memcpy(&word, p, sizeof word);
    word ^= pattern;
    const std::uint64_t hits = ~(((word & low) + low) | word) & ~low;
    const int count = static_cast<int>(((hits >> 7) * ones) >> 56);
    if (count >= n) break;
    n -= count;
    p += sizeof word;
  }
  for (; p != end; ++p) {
    if (*p == SepAttribut && --n == 0) return p + 1;
  }
  return nullptr;
}

constexpr bool partsValues(char c) {
  return c == SepValeur || c == SepSousValeur;
}

// A field as the evaluation reaches it: its attributes' places in the AttributeReader.
struct Access {
  const Definition* definition = nullptr;
  bool isKey = false;
  std::size_t a = 0;
  std::size_t b = 0;
};

// The attributes of the record itself that a field is made of; 0 for none.
std::array<int, 2> attributesOf(const Field& field) {
  if (field.definition == nullptr) return {field.attribute, 0};
  switch (field.definition->source) {
    case Definition::Source::Attribut:
      return {field.definition->a, 0};
    case Definition::Source::Capitales:
      return {field.definition->a, field.definition->b};
    default:
      return {0, 0};  // made of the key and of other files
  }
}

// Ascending, each once.
std::vector<int> neededAttributes(const Query& query, const std::vector<Field>& columns) {
  std::vector<int> numbers;
  numbers.reserve(2 * (query.clauses.size() + query.sorts.size() + columns.size()));
  const auto need = [&numbers](const Field& field) {
    for (const int number : attributesOf(field)) {
      if (number > 0) numbers.push_back(number);
    }
  };
  for (const Clause& clause : query.clauses) need(clause.field);
  for (const Sort& sort : query.sorts) need(sort.field);
  for (const Field& column : columns) need(column);
  std::sort(numbers.begin(), numbers.end());
  numbers.erase(std::unique(numbers.begin(), numbers.end()), numbers.end());
  return numbers;
}

// Whether parts joined by AND and OR, AND tighter, hold; `test` is asked as little as needed.
template <typename Part, typename Test>
bool holds(const Part* begin, const Part* end, const Test& test) {
  bool group = true;
  for (const Part* part = begin; part != end; ++part) {
    if (part->orBefore) {
      if (group) return true;
      group = true;
    }
    group = group && test(*part);
  }
  return group;
}

struct SortValue {
  std::string_view text;
  Number number;
  std::string folded = {};  // of a text
};

int compareSortValues(const SortValue& x, const SortValue& y) {
  if (x.number.valid && y.number.valid) return compareNumbers(x.number, y.number);
  return ordreDictionnaire(x.text, x.number.valid ? x.text : x.folded, y.text,
                           y.number.valid ? y.text : y.folded);
}

// Stable merge sort. Unlike the library's, it asks no consistency of `before`.
template <typename Before>
void mergeSort(std::vector<std::size_t>& rows, const Before& before) {
  std::vector<std::size_t> merged(rows.size());
  for (std::size_t width = 1; width < rows.size(); width *= 2) {
    for (std::size_t begin = 0; begin < rows.size(); begin += 2 * width) {
      const std::size_t middle = std::min(begin + width, rows.size());
      const std::size_t end = std::min(begin + 2 * width, rows.size());
      std::size_t left = begin;
      std::size_t right = middle;
      for (std::size_t out = begin; out < end; ++out) {
        const bool takeRight = left == middle || (right < end && before(rows[right], rows[left]));
        merged[out] = rows[takeRight ? right++ : left++];
      }
    }
    rows.swap(merged);
  }
}

class Evaluator {
 public:
  Evaluator(Storage& storage, const Query& query, const std::vector<Field>& columns)
      : query_(query),
        numbers_(neededAttributes(query, columns)),
        attributes_(numbers_),
        dictionary_(storage) {
    clauses_.reserve(query.clauses.size());
    columns_.reserve(columns.size());
    if (query.restriction) restriction_ = accessTo(query.restriction->field);
    for (const Clause& clause : query.clauses) clauses_.push_back(accessTo(clause.field));
    for (const Sort& sort : query.sorts) sorts_.push_back(accessTo(sort.field));
    for (const Field& column : columns) columns_.push_back(accessTo(column));
  }

  void visit(std::string_view key, std::string_view text) {
    key_ = key;
    attributes_.open(text);
    if (!keeps()) return;
    appendRow();
    for (const Access& sort : sorts_) appendSortValue(valueOf(sort));
  }

  CItem result() const { return CItem(sorts_.empty() ? text_ : sortedText()); }

 private:
  std::size_t place(int attribute) const {
    return static_cast<std::size_t>(std::lower_bound(numbers_.begin(), numbers_.end(), attribute) -
                                    numbers_.begin());
  }

  Access accessTo(const Field& field) const {
    const auto [a, b] = attributesOf(field);
    return {field.definition, field.isKey(), place(a), place(b)};
  }

  std::string_view valueOf(const Access& access) {
    if (access.isKey) return key_;
    if (access.definition == nullptr) return attributes_[access.a];
    switch (access.definition->source) {
      case Definition::Source::Attribut:
        return attributes_[access.a];
      case Definition::Source::Capitales:
        return dictionary_.read(*access.definition, key_, attributes_[access.a],
                                attributes_[access.b]);
      default:
        return dictionary_.read(*access.definition, key_, {}, {});
    }
  }

  bool keeps() {
    if (query_.restriction && !accepts(*query_.restriction, restriction_)) return false;
    const Clause* begin = query_.clauses.data();
    return holds(begin, begin + query_.clauses.size(), [this, begin](const Clause& clause) {
      return accepts(clause, clauses_[static_cast<std::size_t>(&clause - begin)]);
    });
  }

  bool accepts(const Clause& clause, const Access& access) {
    std::string_view content = valueOf(access);
    if (access.definition != nullptr) content = compared(*access.definition, content, folded_);
    return anyValue(clause, access.isKey, content) != clause.without;
  }

  bool anyValue(const Clause& clause, bool isKey, std::string_view content) const {
    const Comparison* comparisons = query_.comparisons.data();
    for (;;) {
      const auto end = std::find_if(content.begin(), content.end(), partsValues);
      const auto length = static_cast<std::size_t>(end - content.begin());
      const std::string_view value = content.substr(0, length);
      if (holds(comparisons + clause.first, comparisons + clause.end,
                [&](const Comparison& c) { return c.accepts(value, isKey); })) {
        return true;
      }
      if (length == content.size()) return false;
      content.remove_prefix(length + 1);
    }
  }

  void appendRow() {
    if (rows_++ > 0) text_ += SepAttribut;
    const std::size_t begin = text_.size();
    if (!sorts_.empty()) begins_.push_back(begin);
    for (std::size_t j = 0; j < columns_.size(); ++j) {
      if (j > 0) text_ += SepValeur;
      const std::size_t at = text_.size();
      text_ += valueOf(columns_[j]);
      std::replace(text_.begin() + static_cast<std::ptrdiff_t>(at), text_.end(), SepValeur,
                   SepSousValeur);
    }
    while (text_.size() > begin && text_.back() == SepValeur) text_.pop_back();
  }

  void appendSortValue(std::string_view content) {
    const auto end = std::find_if(content.begin(), content.end(), partsValues);
    sortTexts_.append(content.begin(), end);
    sortEnds_.push_back(sortTexts_.size());
  }

  std::vector<SortValue> sortValues() const {
    std::vector<SortValue> values;
    values.reserve(sortEnds_.size());
    std::size_t begin = 0;
    for (const std::size_t end : sortEnds_) {
      const auto text = std::string_view(sortTexts_).substr(begin, end - begin);
      values.push_back({text, readNumber(text)});
      if (!values.back().number.valid) values.back().folded = sansAccents(text);
      begin = end;
    }
    return values;
  }

  std::string sortedText() const {
    const auto values = sortValues();
    const std::size_t width = sorts_.size();
    std::vector<std::size_t> rows(rows_);
    for (std::size_t i = 0; i < rows_; ++i) rows[i] = i;
    mergeSort(rows, [&](std::size_t x, std::size_t y) {
      for (std::size_t j = 0; j < width; ++j) {
        const int order = compareSortValues(values[x * width + j], values[y * width + j]);
        if (order != 0) return (order < 0) != query_.sorts[j].descending;
      }
      return false;
    });

    std::string text;
    text.reserve(text_.size() + 1);
    for (const std::size_t row : rows) {
      const std::size_t end = row + 1 < rows_ ? begins_[row + 1] - 1 : text_.size();
      text.append(text_, begins_[row], end - begins_[row]) += SepAttribut;
    }
    return text;
  }

  const Query& query_;
  std::vector<int> numbers_;
  AttributeReader attributes_;
  DictionaryReader dictionary_;
  Access restriction_;
  std::vector<Access> clauses_;
  std::vector<Access> sorts_;
  std::vector<Access> columns_;

  std::string folded_;  // the name that is being compared
  std::string_view key_;
  // Rows in scan order, parted by SepAttribut; with sorts, also where each begins.
  std::string text_;
  std::size_t rows_ = 0;
  std::vector<std::size_t> begins_;
  // The sort values of all rows, end to end.
  std::string sortTexts_;
  std::vector<std::size_t> sortEnds_;
};

void scan(Storage& storage, const Query& query, const KeyRange& keys, Evaluator& evaluator) {
  if (keys.EstUneCle()) {
    std::string text;
    if (storage.Get(query.file, keys.debut, text)) evaluator.visit(keys.debut, text);
  } else if (!keys.Vide()) {
    storage.Scan(query.file, keys, [&evaluator](std::string_view key, std::string_view text) {
      evaluator.visit(key, text);
      return true;
    });
  }
}

}  // namespace

void AttributeReader::advance() {
  const int wanted = numbers_[found_];
  if (at_ != std::string_view::npos && wanted > attribute_) {
    const char* begin = text_.data();
    const char* next = afterSeparators(begin + at_, begin + text_.size(), wanted - attribute_);
    at_ = next == nullptr ? std::string_view::npos : static_cast<std::size_t>(next - begin);
    attribute_ = wanted;
  }
  views_[found_++] = at_ == std::string_view::npos
                         ? std::string_view()
                         : text_.substr(at_, text_.find(SepAttribut, at_) - at_);
}

CItem runQuery(Storage& storage, const Query& query, const std::vector<Field>& columns,
               const KeyRange& keys) {
  Evaluator evaluator(storage, query, columns);
  scan(storage, query, keys, evaluator);
  return evaluator.result();
}

CItem runQuery(Storage& storage, const Query& query, const std::vector<Field>& columns,
               const Plan& plan) {
  Evaluator evaluator(storage, query, columns);
  const auto visit = [&evaluator](std::string_view key, std::string_view text) {
    evaluator.visit(key, text);
    return true;
  };
  // The indexes can have gone since the plan was made.
  if (plan.scan || !storage.ScanChemins(query.file, plan.roads, visit)) {
    scan(storage, query, plan.keys, evaluator);
  }
  return evaluator.result();
}

}  // namespace data
