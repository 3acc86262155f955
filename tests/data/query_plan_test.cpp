// Which road a question takes, and that it answers without one.

#include "data/query_plan.h"

#include <gtest/gtest.h>

#include "data/index.h"
#include "data/poste.h"
#include "data/select.h"
#include "storage/memory.h"
#include "support/table.h"

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
  for (const auto& [condition, expected] : support::table<2>("data/tables.md", "Roads")) {
    EXPECT_EQ(plan(support::code(condition)), expected) << condition;
  }
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
