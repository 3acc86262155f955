// Seeded random queries: a mutated query is run or refused, never worse; a key range never loses a
// row. The seed and the text are printed by the failing check.

#include <gtest/gtest.h>

#include <random>
#include <set>

#include "data/db.h"
#include "data/query.h"
#include "data/question.h"
#include "data/select.h"
#include "storage/memory.h"

namespace data {
namespace {

constexpr unsigned seed = 20260302;

constexpr const char* seeds[] = {
    R"(SSELECT CONTRAT AVEC @ID = "1]" AND AVEC 7 <= "20000" AND AVEC 8 >= "20000" OR = "")",
    R"(SSELECT CONTRAT AVEC 0 = "1]" AND <> "12" AND AVEC 1 <> "02" PAR-DECR 8)",
    R"(SSELECT DETAILINTER AVEC 0 = "12]" AND > "[2026")",
    R"(SSELECT CIVILAIDE AVEC NomPrenomAide = "É]" AND AVEC CodeAideElts AND SANS 43 PAR 2 PAR 3)",
    R"(SELECT TPSDETAILSINTERV = "1]" AVEC 1 > "2" OR = "" AND AVEC CodeActInterv = "0]" AND AVEC TypeActDetailInterv # "M" PAR JourInterv PAR HeureInterv)",
};
constexpr const char* pieces[] = {"AVEC", "SANS", " OR ", " AND ", "\"", "]", "[",  "=",    "<>",
                                  "#",    "PAR",  "0",    "@ID",   " ",  "é", "99", "\xC3", "\x1e"};

class Random {
 public:
  std::size_t below(std::size_t n) { return engine_() % n; }
  template <typename T, std::size_t n>
  T of(const T (&table)[n]) {
    return table[below(n)];
  }

 private:
  std::mt19937 engine_{seed};
};

// A piece or any byte put in the place of a few bytes, or of none.
std::string mutated(Random& random) {
  std::string text = random.of(seeds);
  for (std::size_t times = 1 + random.below(2); times > 0; --times) {
    const std::string any(1, static_cast<char>(random.below(256)));
    const std::string put = random.below(3) == 0 ? any : random.of(pieces);
    const std::size_t gone = random.below(2) * random.below(6);
    text.replace(random.below(text.size() + 1), gone, random.below(4) == 0 ? "" : put);
  }
  return text;
}

class QueryFuzzTest : public testing::Test {
 protected:
  void put(std::string_view file, std::string_view key, const CItem& content) {
    CItem item = db_.OpenFile(file).NewItem(key);
    item.SetText(content.Text());
    item.DBWrite();
  }

  PosteFixe poste_{21511};
  std::shared_ptr<Storage> storage_ = std::make_shared<storage::MemoryStorage>(poste_);
  Db db_{storage_};
};

TEST_F(QueryFuzzTest, MutatedQueriesRunOrAreRefused) {
  for (const char* file : {"CONTRAT", "PCS", "DETAILINTER", "CIVILAIDE", "TPSDETAILSINTERV"}) {
    for (const char* key : {"1", "12", "120000", "É"}) put(file, key, CItem("A"));
  }
  Random random;
  int refused = 0;
  constexpr int runs = 20000;
  for (int i = 0; i < runs; ++i) {
    const std::string text = mutated(random);
    try {
      const Query query = parseQuery(text);
      runQuery(*storage_, query, parseFieldList(query.file, "0 1 2"), keyRange(query));
    } catch (const StoreError& error) {
      ++refused;
      ASSERT_EQ(error.Numero(), NumeroErreur::Question) << seed << ' ' << text;
    }
  }
  EXPECT_GT(refused, runs / 10);
  EXPECT_LT(refused, runs * 9 / 10);
}

// Whatever a key holds, its quoted value asks for it alone, and its beginning for those that have
// it.
TEST_F(QueryFuzzTest, QuotedValuesAreComparedAsTheyAre) {
  static constexpr const char* letters[] = {"[", "[", "]", "]", "\"", "\"", "a", " ", "é"};
  Random random;
  std::vector<std::string> keys;
  for (int i = 0; i < 300; ++i) {
    std::string key;
    for (std::size_t n = 1 + random.below(4); n > 0; --n) key += random.of(letters);
    put("X", key, CItem("a"));
    keys.push_back(key);
  }
  for (const std::string& key : keys) {
    EXPECT_EQ(db_.Selectionner("SSELECT X AVEC 0 = " + citer(key), "X", "0").Text(), key);
    const CItem debut = db_.Selectionner("SSELECT X AVEC 0 = " + citerDebut(key), "X", "0");
    std::set<std::string> attendus;
    for (const std::string& autre : keys) {
      if (autre.starts_with(key)) attendus.insert(autre);
    }
    ASSERT_EQ(debut.DCount(), static_cast<int>(attendus.size())) << key;
    int i = 0;
    for (const std::string& attendu : attendus) EXPECT_EQ(debut(++i, 1), attendu) << key;
  }
}

// Keys and values from few letters, so that conditions often meet them.
std::string word(Random& random) {
  static constexpr const char* letters[] = {"0", "1", "2", "A", "B"};
  std::string text;
  for (std::size_t n = 1 + random.below(3); n > 0; --n) text += random.of(letters);
  return text;
}

std::string comparison(Random& random) {
  static constexpr const char* operators[] = {"=", "=", "=", "<>", "<", "<=", ">", ">="};
  std::string value = random.below(8) == 0 ? std::string() : word(random);
  const std::size_t mark = random.below(6);
  if (mark == 0) value.insert(0, "[");
  if (mark == 1 || mark == 2) value += ']';
  return random.of(operators) + (" \"" + value + '"');
}

std::string randomQuery(Random& random) {
  static constexpr const char* joins[] = {" AND ", " AND ", " OR "};
  static constexpr const char* fields[] = {"0 ", "0 ", "@ID ", "1 ", "2 "};
  std::string text = "SSELECT X ";
  if (random.below(4) == 0) text += comparison(random) + ' ';
  for (std::size_t clauses = 1 + random.below(4); clauses > 0; --clauses) {
    text += random.below(6) == 0 ? "SANS " : "AVEC ";
    text += random.of(fields) + comparison(random);
    while (random.below(3) == 0) text += random.of(joins) + comparison(random);
    if (clauses > 1) text += random.of(joins);
  }
  return text;
}

TEST_F(QueryFuzzTest, RangesLoseNoRow) {
  Random random;
  for (int i = 0; i < 60; ++i) {
    CItem item;
    item.Set(1, word(random));
    if (random.below(2) == 0) item.Set(2, word(random));
    put("X", word(random), item);
  }
  int narrowed = 0;
  for (int i = 0; i < 5000; ++i) {
    const std::string text = randomQuery(random);
    const Query query = parseQuery(text);
    const KeyRange keys = keyRange(query);
    if (keys.Vide() || keys.debut > "0" || !keys.sansFin) ++narrowed;
    const auto columns = parseFieldList("X", "0");
    ASSERT_EQ(runQuery(*storage_, query, columns, keys).Text(),
              runQuery(*storage_, query, columns, KeyRange::Tout()).Text())
        << seed << ' ' << text;
  }
  EXPECT_GT(narrowed, 500);
}

}  // namespace
}  // namespace data
