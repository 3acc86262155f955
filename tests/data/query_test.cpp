#include "data/query.h"

#include <gtest/gtest.h>

#include <algorithm>

#include "data/db.h"
#include "storage/memory.h"
#include "support/table.h"

namespace data {
namespace {

// Text of the Question error that `act` raises; "" when it raises none.
template <typename Act>
std::string question(const Act& act) {
  try {
    act();
  } catch (const StoreError& error) {
    EXPECT_EQ(error.Numero(), NumeroErreur::Question);
    return error.what();
  }
  return {};
}

TEST(QueryTest, MalformedQueriesTellThePlace) {
  for (const auto& [quoted, place, why] :
       support::table<3>("data/tables.md", "Malformed queries")) {
    const std::string query = support::code(quoted);
    const std::string message = question([&] { parseQuery(query); });
    const std::string head =
        "La requête « " + query + " » est refusée au caractère " + place + " : ";
    EXPECT_TRUE(message.starts_with(head)) << message;
    EXPECT_NE(message.find(why), std::string::npos) << message;
  }
}

TEST(QueryTest, FieldListsAndFiles) {
  PosteFixe poste(21511);
  Db db(std::make_shared<storage::MemoryStorage>(poste));
  const auto select = [&db](const char* file, const char* fields) {
    return question([&] { db.Selectionner("SSELECT CONTRAT PAR 7", file, fields); });
  };
  EXPECT_EQ(select("CONTRAT", "0 7 @ID"), "");
  EXPECT_NE(select("CONTRAT", " ").find("caractère 2 : un champ est attendu"), std::string::npos);
  EXPECT_NE(select("CONTRAT", "0 é x").find("« 0 é x » est refusée au caractère 3 : « é »"),
            std::string::npos);
  EXPECT_NE(select("PCS", "0").find("porte sur le fichier CONTRAT"), std::string::npos);
  EXPECT_NE(select("", "0").find("porte sur le fichier CONTRAT"), std::string::npos);
}

// How narrow the ranges are; that none is too narrow is the matter of the random queries.
TEST(QueryTest, KeyRestrictionsBecomeRanges) {
  for (const auto& [clauses, expected] : support::table<2>("data/tables.md", "Key restrictions")) {
    const std::string text = "SELECT TPSDETAILSINTERV " + support::code(clauses);
    const KeyRange keys = keyRange(parseQuery(text));
    std::string range = keys.debut + ".." + (keys.sansFin ? "" : keys.fin);
    std::replace(range.begin(), range.end(), '\0', '$');
    EXPECT_EQ(range, expected) << text;
  }
  const auto text = R"(SELECT PCS AVEC 0 = "1" AND AVEC 0 = "2]" OR AVEC 0 = "3" AND = "4")";
  EXPECT_TRUE(keyRange(parseQuery(text)).Vide());
}

TEST(QueryTest, Numbers) {
  const struct {
    const char *x, *y;
    int order;
  } table[] = {{"1", "2", -1},        {"9", "10", -1},
               {"-1", "1", -1},       {"+5", "5", 0},
               {"-0", "0.0", 0},      {"1.05", "1.5", -1},
               {"-1.5", "-1.25", -1}, {"99999999999999999999", "100000000000000000000", -1}};
  for (const auto& row : table) {
    const Number x = readNumber(row.x);
    const Number y = readNumber(row.y);
    ASSERT_TRUE(x.valid && y.valid) << row.x << ' ' << row.y;
    const int forth = compareNumbers(x, y), back = compareNumbers(y, x);
    EXPECT_EQ((forth > 0) - (forth < 0), row.order) << row.x << ' ' << row.y;
    EXPECT_EQ((back > 0) - (back < 0), -row.order) << row.x << ' ' << row.y;
  }
  for (const char* text : {"", " 7", "7 ", "563c", "11e1", ".", "-", "+.", "1.2.3", "--1", "1,5"}) {
    EXPECT_FALSE(readNumber(text).valid) << text;
  }
  for (const char* text : {"01", "-01", "00", "00.5"}) EXPECT_TRUE(readNumber(text).leadingZero);
  for (const char* text : {"0", "0.5", "-0.05", "10"}) EXPECT_FALSE(readNumber(text).leadingZero);
}

}  // namespace
}  // namespace data
