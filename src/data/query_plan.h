#pragma once
// How a query is run: over a range of keys, or by roads that lead to every record that can satisfy
// it. Whichever is taken, the whole condition is then applied to each record found: a road can
// make a query fast, never wrong.
//
//   SELECT CONTRAT AVEC 116 = "00001001" OR AVEC 117 = "00001001"
//
// has two alternatives, and each has an index: two roads. With AVEC 4 = "I" for the second, that
// one would have none, and the whole file is read.
//
// Each alternative (what stands between two OR of the clauses) takes its cheapest road: one of its
// indexes, or the keys that it asks for. Costs are counted in the store, no further than needed to
// tell which is lower, in records of a scan; one that is fetched by itself costs several.

#include <cstddef>
#include <vector>

#include "data/query.h"
#include "data/storage.h"

namespace data {

struct Plan {
  bool scan = true;  // over `keys`; else by `roads`
  KeyRange keys;
  std::vector<Chemin> roads;
  // Records to look at by the roads, at most; not counted for a scan.
  std::size_t candidates = 0;
};

Plan planQuery(Storage& storage, const Query& query);

}  // namespace data
