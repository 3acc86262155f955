#include "data/query_plan.h"

#include <algorithm>

#include "data/index.h"

namespace data {

namespace {

// Records of a scan that take as long as one that is fetched by itself.
constexpr std::size_t fetchCost = 3;
// So few that looking for something cheaper would cost more.
constexpr std::size_t handful = 64;
// How much further each round of counting goes, and where it stops: past that many candidates a
// scan is taken.
constexpr std::size_t roundFactor = 8;
constexpr std::size_t mostCandidates = std::size_t{1} << 20;

// One way to the records of an alternative: the ranges of one index, or one range of keys.
using Way = std::vector<Chemin>;

struct Span {
  const Clause* begin;
  const Clause* end;
};

std::vector<Span> alternatives(const Query& query) {
  std::vector<Span> spans;
  const Clause* const end = query.clauses.data() + query.clauses.size();
  for (const Clause* begin = query.clauses.data(); begin != end;) {
    const Clause* const next =
        std::find_if(begin + 1, end, [](const Clause& c) { return c.orBefore; });
    spans.push_back({begin, next});
    begin = next;
  }
  return spans;
}

bool usesIndex(const Query& query) {
  return std::any_of(query.clauses.begin(), query.clauses.end(), [&](const Clause& clause) {
    return !clause.without && indexDe(query.file, clause.field) != nullptr;
  });
}

std::vector<Way> waysOf(const Query& query, const Span& span) {
  std::vector<Way> ways;
  KeyRange keys = query.restriction ? keyRange(query, *query.restriction) : KeyRange::Tout();
  for (const Clause* clause = span.begin; clause != span.end; ++clause) {
    keys = keys.Avec(keyRange(query, *clause));
    const Index* const index = indexDe(query.file, clause->field);
    if (index == nullptr) continue;
    const auto ranges = valueRanges(query, *clause);
    if (!ranges) continue;
    Way way;
    for (const KeyRange& values : *ranges) way.push_back({index, values});
    ways.push_back(std::move(way));
  }
  if (keys.Vide()) return {Way{}};  // the alternative holds for no key at all
  if (!keys.debut.empty() || !keys.sansFin) ways.push_back({{nullptr, keys}});
  return ways;
}

class Counter {
 public:
  Counter(Storage& storage, std::string_view file) : storage_(storage), file_(file) {}

  // Places of the way, at most `limit`; nothing when the store has no index.
  std::optional<std::size_t> places(const Way& way, std::size_t limit) {
    std::size_t sum = 0;
    for (const Chemin& road : way) {
      const auto count = storage_.Compter(file_, road, limit - sum);
      if (!count) return std::nullopt;
      sum += *count;
      if (sum >= limit) break;
    }
    return sum;
  }

 private:
  Storage& storage_;
  std::string_view file_;
};

// Fills in the plan; false when a scan is cheaper, or when there is no way.
class Planner {
 public:
  Planner(Storage& storage, const Query& query, Plan& plan)
      : query_(query), plan_(plan), counter_(storage, query.file) {}

  bool run() {
    for (const Span& span : alternatives(query_)) {
      if (!takeCheapest(waysOf(query_, span))) return false;
    }
    // One range of keys is scanned faster than its records are fetched one by one.
    if (plan_.roads.size() == 1 && plan_.roads.front().index == nullptr) return false;
    return plan_.candidates <= handful || !scanCostsLess(plan_.candidates);
  }

 private:
  bool takeCheapest(const std::vector<Way>& ways) {
    if (ways.empty()) return false;
    for (std::size_t limit = handful + 1; limit <= mostCandidates; limit *= roundFactor) {
      const Way* best = nullptr;
      std::size_t fewest = limit;
      for (const Way& way : ways) {
        const auto count = counter_.places(way, fewest);
        if (!count) return false;
        if (*count >= fewest) continue;
        fewest = *count;
        best = &way;
      }
      if (best != nullptr) {
        plan_.candidates += fewest;
        plan_.roads.insert(plan_.roads.end(), best->begin(), best->end());
        return true;
      }
      if (scanCostsLess(plan_.candidates + limit)) return false;
    }
    return false;
  }

  bool scanCostsLess(std::size_t candidates) {
    const std::size_t limit = candidates * fetchCost;
    return counter_.places({{nullptr, plan_.keys}}, limit) < limit;
  }

  const Query& query_;
  Plan& plan_;
  Counter counter_;
};

}  // namespace

Plan planQuery(Storage& storage, const Query& query) {
  Plan plan;
  plan.keys = keyRange(query);
  if (plan.keys.Vide() || plan.keys.EstUneCle() || !usesIndex(query)) return plan;
  plan.scan = !Planner(storage, query, plan).run();
  return plan;
}

}  // namespace data
