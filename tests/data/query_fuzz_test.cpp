// Seeded random queries: a mutated query is run or refused, never worse. The seed and the text are
// printed by the failing check. That a key range loses no row is seen by the test of the indexes.

#include <gtest/gtest.h>

#include <set>

#include "data/db.h"
#include "data/query.h"
#include "data/question.h"
#include "data/select.h"
#include "storage/memory.h"
#include "support/random.h"

namespace data {
namespace {

using support::Random;

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
  Random random(seed);
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
  Random random(seed);
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

}  // namespace
}  // namespace data
