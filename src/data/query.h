#pragma once
// The query language of the store: from the text that the logic writes to a small tree. Db runs the
// tree over a file (data/select.h).
//
// A worked example. The file CONTRAT holds, by key:
//
//   00001001   attribute 1 "02", 7 "20100", 8 "20500"
//   00001002   attribute 1 "01", 7 "20200", 8 "20300"
//   00001003   attribute 1 "01", 7 "20510", 8 ""
//   00002001   attribute 1 "01", 7 "20520", 8 ""
//
// One asks, with the field list "0 7":
//
//   SSELECT CONTRAT AVEC 0 = "00001]" AND AVEC 8 = "" OR >= "20450" AND SANS 7 > "20600" PAR-DECR 7
//
// It reads: among the keys that begin with 00001 (only these are fetched), the records whose
// attribute 8 is empty or at least 20450, and whose attribute 7 has no value above 20600; the
// highest attribute 7 first. The result has two rows, of two values each:
//
//   "00001003" "20510"
//   "00001001" "20100"
//
// The grammar. Blanks part words and are otherwise free; a closing quote needs none after it.
//
//   query       (SSELECT | SELECT) file [comparisons [AND]] [clause {(AND | OR) clause}] {sort}
//   clause      (AVEC | SANS) field [comparisons]
//   comparisons operator "value" {(AND | OR) operator "value"}
//   sort        (PAR | PAR-DECR) field
//   operator    = <> # < <= > >=
//   field       an attribute number, 0 or @ID for the key, or a name of data/dictionary.h
//
// - SSELECT and SELECT are alike: rows come in ascending key order, or in that of the sorts.
// - Comparisons right after the file restrict the key and hold whatever the clauses say.
// - AND binds tighter than OR, between clauses and inside one clause alike.
// - AVEC: at least one value of the field satisfies the clause's comparisons, taken together on
//   that value; SANS: none does. Subvalues count as values. An empty field has one empty value, so
//   `AVEC 65 <> "O"` keeps a record without attribute 65. AVEC or SANS of a field alone asks for a
//   value that is not empty, or for none.
// - A value that ends with ] is compared with the beginning of the field, one that begins with [
//   with its end, one that does both is searched inside it. Such comparisons are of texts.
// - In a value, "" stands for one quote; at its beginning [[ stands for one [ of the value, and at
//   its end ]] for one ]. data/question.h writes values so.
// - Two numbers compare as numbers, however long; anything else as bytes. A number is all digits,
//   with an optional sign and one optional decimal point. Codes are no numbers: in an attribute, a
//   zero before another digit makes a text; the key is a text for = and <>, a number for order.
// - Names of persons are compared without regard to case, accents, apostrophes and hyphens.
// - Sorts go by number when both values are numbers, else in dictionary order (data/texte.h).
//
// Anything else is a StoreError with NumeroErreur::Question, whose text quotes the query, the
// place (in characters, from 1) and what was expected there.

#include <cstddef>
#include <forward_list>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "data/dictionary.h"
#include "data/storage.h"

namespace data {

// A decimal number read in a text, as views of its significant digits.
struct Number {
  bool valid = false;
  bool negative = false;
  bool leadingZero = false;  // written with a zero before another digit
  std::string_view whole;
  std::string_view decimals;
};

Number readNumber(std::string_view text);
// Below 0, 0 or above 0. Both must be valid.
int compareNumbers(const Number& x, const Number& y);

// A field as a query names it. `definition` is null for the key (attribute 0) and for attributes.
struct Field {
  int attribute = 0;
  const Definition* definition = nullptr;

  bool isKey() const { return definition == nullptr && attribute == 0; }
};

enum class Operator : unsigned char { Equal, Different, Less, LessEqual, Greater, GreaterEqual };
enum class Mark : unsigned char { None, Begin, End, Within };

struct Comparison {
  Operator op = Operator::Different;
  Mark mark = Mark::None;
  bool orBefore = false;   // joined to the comparison before it by OR, else by AND
  std::string_view value;  // without its marks
  Number number;

  // Whether one value of a field satisfies it. `isKey`: the field is the record's key.
  bool accepts(std::string_view fieldValue, bool isKey) const;
};

struct Clause {
  Field field;
  bool without = false;   // SANS
  bool orBefore = false;  // joined to the clause before it by OR, else by AND
  std::size_t first = 0;  // its comparisons, in Query::comparisons
  std::size_t end = 0;
};

struct Sort {
  Field field;
  bool descending = false;
};

// Views in it are of the text that was parsed, which must outlive it.
struct Query {
  Query() = default;
  Query(Query&&) = default;
  Query& operator=(Query&&) = default;

  std::string_view file;
  std::optional<Clause> restriction;
  std::vector<Clause> clauses;
  std::vector<Comparison> comparisons;
  std::vector<Sort> sorts;
  std::forward_list<std::string> values;  // holds those that are no piece of the text
};

Query parseQuery(std::string_view text);

// The columns of a result: fields parted by blanks, at least one.
std::vector<Field> parseFieldList(std::string_view file, std::string_view text);

// Keys outside the range cannot satisfy the query; keys inside it may not either.
KeyRange keyRange(const Query& query);
// The same for one clause alone; every key for a clause that is about another field.
KeyRange keyRange(const Query& query, const Clause& clause);

// Where an index of the clause's field holds every record that satisfies it, and maybe others.
// Nothing when empty values may satisfy it, which an index does not hold.
std::optional<std::vector<KeyRange>> valueRanges(const Query& query, const Clause& clause);

}  // namespace data
