// Which road a question takes, and that it answers without one.

#include "data/query_plan.h"

#include <gtest/gtest.h>

#include "data/index.h"
#include "data/poste.h"
#include "data/select.h"
#include "storage/memory.h"

namespace data {
namespace {

// A store whose indexes go away after they were counted.
class ForgetfulStore : public storage::MemoryStorage {
 public:
  using MemoryStorage::MemoryStorage;
  bool forgets = false;
  bool ScanChemins(std::string_view file, const std::vector<Chemin>& roads,
                   const Visiteur& visitor) override {
    return !forgets && MemoryStorage::ScanChemins(file, roads, visitor);
  }
};

class QueryPlanTest : public testing::Test {
 protected:
  // 1000 contracts, keys 10000 to 10999. Of 116, one in two is "C" and one in four "D"; of 117, one
  // in a hundred "R".
  QueryPlanTest() {
    for (int i = 0; i < 1000; ++i) {
      CItem item;
      if (i % 2 == 1) item.Set(116, "C");
      if (i % 4 == 0) item.Set(116, "D");
      if (i % 100 == 0) item.Set(117, "R");
      store_.Put("CONTRAT", std::to_string(10'000 + i), item.Text());
    }
  }

  // "scan", or the roads and the candidates: "117 keys 20".
  std::string plan(const std::string& condition) {
    const std::string text = "SELECT CONTRAT " + condition;
    const Plan plan = planQuery(store_, parseQuery(text));
    if (plan.scan) return "scan";
    std::string shown;
    for (const Chemin& road : plan.roads) {
      shown += (road.index == nullptr ? "keys" : champIndex(*road.index)) + ' ';
    }
    return shown + std::to_string(plan.candidates);
  }

  PosteFixe poste_{21511};
  ForgetfulStore store_{poste_};
};

TEST_F(QueryPlanTest, TakesTheCheapestRoad) {
  const struct {
    const char* condition;
    const char* expected;
  } cases[] = {
      {R"(AVEC 117 = "R")", "117 10"},
      {R"(AVEC 116 = "C" AND AVEC 117 = "R")", "117 10"},
      {R"(AVEC 117 = "R" AND AVEC 0 = "10]")", "117 10"},
      {R"(AVEC 117 = "R" AND AVEC 116 = "X")", "116 0"},
      {R"(AVEC 116 = "D")", "116 250"},
      {R"(AVEC 116)", "scan"},  // 750 single records cost more than a scan of 1000
      {R"(AVEC 116 = "C")", "scan"},
      // Ten keys against 250 records; one against ten.
      {R"(AVEC 116 = "D" AND AVEC 0 = "1000]")", "scan"},
      {R"(AVEC 117 = "R" AND AVEC 0 = "10100")", "scan"},
      {R"(= "1000]" AVEC 116 = "D")", "scan"},
      // Every alternative needs a road, and all of them together count.
      {R"(AVEC 117 = "R" OR AVEC 0 = "1000]")", "117 keys 20"},
      {R"(AVEC 117 = "R" OR AVEC 116 = "D")", "117 116 260"},
      {R"(AVEC 117 = "R" OR AVEC 116 = "C")", "scan"},
      {R"(AVEC 117 = "R" OR AVEC 4 = "x")", "scan"},
      {R"(AVEC 117 = "R" OR AVEC 4 = "x" AND AVEC 116 = "X")", "117 116 10"},
      {R"(AVEC 117 = "R" OR = "Q")", "117 117 10"},
      {R"(SANS 117 = "R")", "scan"},
      {R"(AVEC 4 = "x")", "scan"},
  };
  for (const auto& c : cases) EXPECT_EQ(plan(c.condition), c.expected) << c.condition;
}

TEST_F(QueryPlanTest, AnswersByAScanWhenTheIndexesHaveGone) {
  const Query query = parseQuery(R"(SELECT CONTRAT AVEC 117 = "R" AND AVEC 0 < "10150")");
  const Plan plan = planQuery(store_, query);
  ASSERT_FALSE(plan.scan);
  for (const bool forgets : {false, true}) {
    store_.forgets = forgets;
    EXPECT_EQ(runQuery(store_, query, parseFieldList("CONTRAT", "0"), plan).Text(),
              "10000\x1e"
              "10100");
  }
}

}  // namespace
}  // namespace data
