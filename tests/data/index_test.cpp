// Indexes make questions fast and never wrong: over random records and questions, on every store,
// the rows found by roads are those of a plain scan. The seed is printed by the failing check.

#include "data/index.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <stdexcept>

#include "data/db.h"
#include "data/query.h"
#include "data/query_plan.h"
#include "data/select.h"
#include "storage/memory.h"
#include "storage/postgres.h"
#include "storage/sqlite.h"
#include "support/random.h"
#include "support/serveur.h"
#include "support/table.h"
#include "support/temp_dir.h"

namespace data {
namespace {

using support::Random;

// "116=12 116=12.0", in the order of the table of indexes.
std::string entries(std::string_view file, const CItem& item) {
  std::string text;
  for (const EntreeIndex& entry : entreesDe(file, "00001001", item.Text())) {
    if (!text.empty()) text += ' ';
    text += champIndex(*entry.index) + '=' + entry.valeur;
  }
  return text;
}

TEST(IndexTest, HoldsEveryValueOfARecord) {
  for (const auto& [file, attribute, content, expected] :
       support::table<4>("data/tables.md", "Entries of a record")) {
    std::string text = content;
    std::replace(text.begin(), text.end(), '^', SepValeur);
    std::replace(text.begin(), text.end(), '~', SepSousValeur);
    CItem item;
    item.Set(std::stoi(attribute), text);
    EXPECT_EQ(entries(file, item), support::code(expected)) << file << ' ' << content;
  }
}

// "[a;b] [c;", each range with its bounds, or "none" where no index can answer.
std::string ranges(const std::string& comparisons) {
  const std::string text = "SELECT TPSMOI AVEC 4 " + comparisons;
  const Query query = parseQuery(text);
  const auto found = valueRanges(query, query.clauses.front());
  if (!found) return "none";
  std::string shown;
  for (const KeyRange& range : *found) {
    if (!shown.empty()) shown += ' ';
    shown += '[' + range.debut + ';' + (range.sansFin ? "" : range.fin + ']');
  }
  std::replace(shown.begin(), shown.end(), '\0', '~');
  return shown;
}

TEST(IndexTest, AnswersForTheValuesThatCanSatisfyAClause) {
  for (const auto& [comparisons, expected] :
       support::table<2>("data/tables.md", "Values that can satisfy a clause")) {
    EXPECT_EQ(ranges(support::code(comparisons)), expected) << comparisons;
  }
  const Query without = parseQuery(R"(SELECT TPSMOI SANS 4 = "A")");
  EXPECT_FALSE(valueRanges(without, without.clauses.front()));
}

// An index holds what one record says. A field made of another file's records would change behind
// its back.
TEST(IndexTest, IsOfFieldsMadeOfTheirRecordAlone) {
  for (const Index& index : IndexTenus) {
    EXPECT_NE(fichierConnu(index.fichier), nullptr) << index.fichier;
    if (index.valeurs != nullptr) continue;
    if (index.nom.empty()) {
      EXPECT_GT(index.attribut, 0) << index.fichier;
      continue;
    }
    const Definition* const definition = findDefinition(index.fichier, index.nom);
    ASSERT_NE(definition, nullptr) << index.nom;
    EXPECT_EQ(definition->autre, "") << index.nom;
  }
}

struct Looked {
  const char* file;
  const char* fields[4];  // what a clause may be about
  int attributes[3];      // what a record holds
};
constexpr Looked lookedUp[] = {
    {"CONTRAT", {"116 ", "117 ", "0 ", "4 "}, {116, 117, 4}},
    {"CIVILAIDANT", {"NomPrenomAidant ", "NomPrenomAidant ", "0 ", "2 "}, {2, 3, 4}},
    {"TPSMOI", {"4 ", "4 ", "@ID ", "1 "}, {4, 1, 4}},
};

// Texts that compare in every way: numbers in several forms, codes, words, capitals and not.
std::string word(Random& random) {
  static constexpr const char* words[] = {"1", "12", "12.0", "+12", "012", "-1.50", "-1.5", ".5",
                                          "0", "-0", "12.",  "A",   "a",   "AB",    "ab",   "b",
                                          "é", "É",  "È",    "12A", "B C", "1 ",    "12.05"};
  static constexpr const char* letters[] = {"0", "1", "2", "a", "B", ".", " ", "é", "'", "-"};
  if (random.below(3) > 0) return random.of(words);
  std::string text;
  for (std::size_t n = 1 + random.below(3); n > 0; --n) text += random.of(letters);
  return text;
}

std::string key(Random& random) {
  return std::string("0") + random.of({"1", "2", "3"}) + std::to_string(random.below(400));
}

CItem record(Random& random, const Looked& looked) {
  CItem item;
  for (const int attribute : looked.attributes) {
    if (random.below(3) == 0) continue;
    item.Set(attribute, word(random));
    for (int value = 2; random.below(3) == 0; ++value) item.Set(attribute, value, word(random));
    if (random.below(5) == 0) item.Set(attribute, 1, 2, word(random));
  }
  return item;
}

std::string comparison(Random& random) {
  static constexpr const char* operators[] = {"=", "=", "=", "=", "<>", "<", "<=", ">", ">="};
  std::string value = random.below(8) == 0 ? std::string() : word(random);
  const std::size_t mark = random.below(8);
  if (mark == 0) value.insert(0, "[");
  if (mark >= 1 && mark <= 3) value += ']';
  return random.of(operators) + (" \"" + value + '"');
}

// Mostly the whole key or its beginning, else every comparison.
std::string keyComparison(Random& random) {
  static constexpr const char* operators[] = {"=", "=", "=", "=", "<>", "<", "<=", ">", ">="};
  const std::string value = key(random).substr(0, 1 + random.below(6));
  return random.of(operators) + (" \"" + value) + random.of({"\"", "]\""});
}

std::string question(Random& random, const Looked& looked) {
  static constexpr const char* joins[] = {" AND ", " AND ", " OR "};
  std::string text = std::string("SSELECT ") + looked.file + ' ';
  if (random.below(6) == 0) text += "= \"0" + std::string(random.of({"1", "2"})) + "]\" ";
  for (std::size_t clauses = 1 + random.below(3); clauses > 0; --clauses) {
    text += random.below(10) == 0 ? "SANS " : "AVEC ";
    const std::string field = random.of(looked.fields);
    text += field;
    if (random.below(15) > 0) {
      const auto compare = field == "0 " || field == "@ID " ? keyComparison : comparison;
      text += compare(random);
      while (random.below(4) == 0) text += random.of(joins) + compare(random);
    }
    if (clauses > 1) text += random.of(joins);
  }
  return text + (random.below(4) == 0 ? " PAR-DECR 4" : "");
}

class IndexedStoreTest : public testing::TestWithParam<std::string> {
 protected:
  IndexedStoreTest() {
    if (GetParam() == "memory") {
      store_ = std::make_unique<storage::MemoryStorage>(poste_);
    } else if (GetParam() == "sqlite") {
      store_ = storage::SqliteStorage::Creer(dir_.Chemin("test"), poste_);
    } else {
      store_ = storage::PostgresStorage::Creer(support::Serveur::Commun().NouvelleBase(), poste_);
    }
  }

  void change(Random& random, const Looked& looked) {
    const std::string cle = key(random);
    if (random.below(5) == 0) {
      store_->Erase(looked.file, cle);
    } else {
      store_->Put(looked.file, cle, record(random, looked).Text());
    }
  }

  // A block of changes, one in three undone.
  void changes(Random& random) {
    const bool undone = random.below(3) == 0;
    try {
      store_->EnUnBloc([&] {
        for (std::size_t n = random.below(30); n > 0; --n) change(random, random.of(lookedUp));
        if (undone) throw std::runtime_error("undone");
      });
    } catch (const std::runtime_error&) {
      EXPECT_TRUE(undone);
    }
  }

  PosteFixe poste_{21511};
  support::TempDir dir_;
  std::unique_ptr<Storage> store_;
};

INSTANTIATE_TEST_SUITE_P(Stores, IndexedStoreTest, testing::Values("memory", "sqlite", "postgres"),
                         [](const auto& test) { return test.param; });

TEST_P(IndexedStoreTest, RoadsFindWhatAScanFinds) {
  const unsigned seed = std::random_device{}();
  SCOPED_TRACE("seed " + std::to_string(seed));
  Random random(seed);
  int byRoads = 0;
  int narrowed = 0;  // scans of some keys only
  int weighed = 0;   // of those: so many candidates that a scan was thought of
  int rows = 0;
  constexpr int rounds = 25;
  constexpr int questions = 100;
  store_->EnUnBloc([&] {
    for (int i = 0; i < 1500; ++i) change(random, random.of(lookedUp));
  });
  for (int round = 0; round < rounds; ++round) {
    changes(random);
    for (int i = 0; i < questions; ++i) {
      const std::string text = question(random, random.of(lookedUp));
      const Query query = parseQuery(text);
      const auto columns = parseFieldList(query.file, "0");
      const Plan plan = planQuery(*store_, query);
      const CItem found = runQuery(*store_, query, columns, plan);
      ASSERT_EQ(found.Text(), runQuery(*store_, query, columns, KeyRange::Tout()).Text()) << text;
      byRoads += plan.scan ? 0 : 1;
      narrowed += plan.scan && (plan.keys.debut > "0" || !plan.keys.sansFin) ? 1 : 0;
      weighed += !plan.scan && plan.candidates > 64 ? 1 : 0;
      rows += plan.scan ? 0 : found.DCount();
    }
  }
  // The comparison is about something: many questions took a road, and found records.
  EXPECT_GT(byRoads, rounds * questions / 10);
  EXPECT_GT(narrowed, rounds * questions / 20);
  EXPECT_GT(rows, rounds * questions / 10);
  EXPECT_GT(weighed, 0);
}

}  // namespace
}  // namespace data
