#include <algorithm>

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

KeyRange rangeOf(const Query& query, const Clause& clause) {
  if (!clause.field.isKey() || clause.without) return KeyRange::Tout();
  Fold fold;
  for (std::size_t i = clause.first; i < clause.end; ++i) {
    fold.add(query.comparisons[i].orBefore, rangeOf(query.comparisons[i]));
  }
  return fold.result();
}

}  // namespace

KeyRange keyRange(const Query& query) {
  Fold fold;
  for (const Clause& clause : query.clauses) fold.add(clause.orBefore, rangeOf(query, clause));
  const KeyRange keys = fold.result();
  return query.restriction ? keys.Avec(rangeOf(query, *query.restriction)) : keys;
}

}  // namespace data
