#include <algorithm>

#include "data/index.h"
#include "data/query.h"

namespace data {

namespace {

KeyRange none() {
  return {{}, {}, false};
}

// The smallest range that holds both.
KeyRange cover(const KeyRange& x, const KeyRange& y) {
  if (x.Vide()) return y;
  if (y.Vide()) return x;
  KeyRange keys;
  keys.debut = std::min(x.debut, y.debut);
  keys.sansFin = x.sansFin || y.sansFin;
  if (!keys.sansFin) keys.fin = std::max(x.fin, y.fin);
  return keys;
}

KeyRange before(std::string_view end) {
  return {{}, std::string(end), false};
}

// `block` holds the keys that compare equal. Only comparisons by bytes come here: the order of
// numbers is not that of their texts.
KeyRange ordered(Operator op, const KeyRange& block) {
  switch (op) {
    case Operator::Equal:
      return block;
    case Operator::Less:
      return before(block.debut);
    case Operator::LessEqual:
      return block.sansFin ? KeyRange::Tout() : before(block.fin);
    case Operator::Greater:
      return block.sansFin ? none() : KeyRange{block.fin, {}, true};
    case Operator::GreaterEqual:
      return {block.debut, {}, true};
    case Operator::Different:
      break;
  }
  return KeyRange::Tout();
}

KeyRange rangeOf(const Comparison& comparison) {
  if (comparison.mark == Mark::Begin) {
    return ordered(comparison.op, KeyRange::Prefixe(comparison.value));
  }
  if (comparison.mark != Mark::None) return KeyRange::Tout();
  if (comparison.number.valid && comparison.op > Operator::Different) return KeyRange::Tout();
  return ordered(comparison.op, KeyRange::Une(comparison.value));
}

// Folds parts joined by AND and OR: narrowing under AND, covering under OR.
class Fold {
 public:
  void add(bool orBefore, const KeyRange& keys) {
    if (orBefore) {
      done_ = cover(done_, group_);
      group_ = KeyRange::Tout();
    }
    group_ = group_.Avec(keys);
  }
  KeyRange result() const { return cover(done_, group_); }

 private:
  KeyRange done_ = none();
  KeyRange group_ = KeyRange::Tout();
};

bool comparesNumbers(const Comparison& comparison) {
  return comparison.mark == Mark::None && comparison.number.valid && !comparison.number.leadingZero;
}

KeyRange valueRange(const Comparison& comparison) {
  // Different from "" is above it; no other difference leaves a place out.
  if (comparison.mark == Mark::None && comparison.op == Operator::Different &&
      comparison.value.empty()) {
    return ordered(Operator::Greater, KeyRange::Une({}));
  }
  return rangeOf(comparison);
}

// The values that satisfy a row of comparisons joined by AND, or more. An index holds a number by
// its text and by its shortest form, so that ranges of the two do not narrow each other.
KeyRange valuesOf(const Comparison* begin, const Comparison* end) {
  KeyRange texts = KeyRange::Tout();
  for (const Comparison* comparison = begin; comparison != end; ++comparison) {
    if (!comparesNumbers(*comparison)) {
      texts = texts.Avec(valueRange(*comparison));
    } else if (comparison->op == Operator::Equal) {
      return KeyRange::Une(formeCherchee(comparison->value));
    }
  }
  return texts;
}

}  // namespace

KeyRange keyRange(const Query& query, const Clause& clause) {
  if (!clause.field.isKey() || clause.without) return KeyRange::Tout();
  Fold fold;
  for (std::size_t i = clause.first; i < clause.end; ++i) {
    fold.add(query.comparisons[i].orBefore, rangeOf(query.comparisons[i]));
  }
  return fold.result();
}

KeyRange keyRange(const Query& query) {
  Fold fold;
  for (const Clause& clause : query.clauses) fold.add(clause.orBefore, keyRange(query, clause));
  const KeyRange keys = fold.result();
  return query.restriction ? keys.Avec(keyRange(query, *query.restriction)) : keys;
}

std::optional<std::vector<KeyRange>> valueRanges(const Query& query, const Clause& clause) {
  if (clause.without) return std::nullopt;
  std::vector<KeyRange> ranges;
  const Comparison* const end = query.comparisons.data() + clause.end;
  for (const Comparison* begin = query.comparisons.data() + clause.first; begin != end;) {
    const Comparison* const next =
        std::find_if(begin + 1, end, [](const Comparison& c) { return c.orBefore; });
    KeyRange values = valuesOf(begin, next);
    if (values.Contient({})) return std::nullopt;
    if (!values.Vide()) ranges.push_back(std::move(values));
    begin = next;
  }
  return ranges;
}

}  // namespace data
