#pragma once
// Runs a parsed query over its file. Conditions are decided on the record's text in place: a row
// that is dropped costs no item and, past the last attribute that its conditions need, no reading.

#include <cstddef>
#include <string_view>
#include <vector>

#include "data/citem.h"
#include "data/query.h"
#include "data/query_plan.h"

namespace data {

// Chosen attributes of one record's text, found in one forward pass that goes no further than the
// last one asked for.
class AttributeReader {
 public:
  // `numbers`: the attributes, ascending, each once, from 1.
  explicit AttributeReader(std::vector<int> numbers)
      : numbers_(std::move(numbers)), views_(numbers_.size()) {}

  // The text must live as long as views of it are asked for.
  void open(std::string_view text) {
    text_ = text;
    found_ = 0;
    at_ = 0;
    attribute_ = 1;
  }
  // Content of the attribute numbers[i]; empty when the record ends before it.
  std::string_view operator[](std::size_t i) {
    while (found_ <= i) advance();
    return views_[i];
  }

 private:
  void advance();

  std::vector<int> numbers_;
  std::vector<std::string_view> views_;
  std::string_view text_;
  std::size_t found_ = 0;  // how many of the views are up to date
  std::size_t at_ = 0;     // where attribute `attribute_` begins; npos beyond the text
  int attribute_ = 1;
};

// The rows of the query among the keys of `keys`, which is keyRange(query) or wider: one attribute
// a row, one value a column. Rows that compare equal under the sorts, and all rows when there are
// none, come in ascending key order. A sort takes a field's first value: empty is lowest, two
// numbers compare as numbers (zeros in front and all), anything else as bytes. Where a column mixes
// numbers and texts so that no order satisfies every pair (2, 10, "1a"), the order is still
// always the same for the same rows.
CItem runQuery(Storage& storage, const Query& query, const std::vector<Field>& columns,
               const KeyRange& keys);
// The same rows by the roads of a plan that planQuery made for this query and store.
CItem runQuery(Storage& storage, const Query& query, const std::vector<Field>& columns,
               const Plan& plan);

}  // namespace data
