#include "data/query.h"

#include <gtest/gtest.h>

#include <algorithm>

#include "data/db.h"
#include "storage/memory.h"

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
  const struct {
    const char* query;
    int place;
    const char* why;
  } table[] = {
      {"", 1, "SSELECT ou SELECT"},
      {"SELECTCONTRAT", 1, "SSELECT ou SELECT"},
      {"SSELECT", 8, "nom de fichier"},
      {"SSELECT  Contrat", 10, "nom de fichier"},
      {"SSELECT CONTRAT avec 1", 17, "AND, OR, AVEC, SANS, PAR"},
      {"SSELECT CONTRAT AVEC", 21, "un champ est attendu"},
      {"SSELECT CONTRAT AVEC Surnom", 22, "« Surnom » n'est ni un numéro d'attribut ni un nom"},
      {"SSELECT CONTRAT AVEC NomPrenomAide", 22, "un nom de champ du fichier CONTRAT"},
      {"SSELECT CONTRAT AVEC 10000", 22, "« 10000 »"},
      {"SSELECT CONTRAT AVEC 8 \"a\"", 24, "un opérateur"},
      {"SSELECT CONTRAT AVEC 8 = a", 26, "une valeur entre guillemets"},
      {"SSELECT CONTRAT AVEC 8 = \"a", 26, "n'est pas fermé"},
      {"SSELECT CIVILAIDE AVEC 2 = \"éèà\" AND 3", 38, "une clause AVEC ou SANS"},
      {"SSELECT CONTRAT AVEC 8 > \"[a]\"", 26, "[ et ]"},
      {"SSELECT CONTRAT AVEC 1 AND = \"02\"", 28, "une clause AVEC ou SANS"},
      {"SSELECT CONTRAT = \"a\" OR AVEC 7", 23, "restriction de clé"},
      {"SSELECT CONTRAT = \"a\" AND PAR 7", 27, "une clause AVEC ou SANS"},
      {"SSELECT CONTRAT PAR 1 AVEC 2", 23, "PAR, PAR-DECR ou la fin"},
  };
  for (const auto& row : table) {
    const std::string message = question([&row] { parseQuery(row.query); });
    const std::string head = std::string("La requête « ") + row.query +
                             " » est refusée au caractère " + std::to_string(row.place) + " : ";
    EXPECT_TRUE(message.starts_with(head)) << message;
    EXPECT_NE(message.find(row.why), std::string::npos) << message;
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
  const struct {
    const char* clauses;
    const char* range;  // first key, "..", first key after it or "" when there is none
  } table[] = {
      {"", ".."},
      {R"(AVEC 0 = "00001]")", "00001..00002"},
      {R"(= "00001]"AVEC 1 = "a" OR AVEC 2 = "b")", "00001..00002"},
      {R"(= "00001]" AND AVEC 0 = "000019]" OR AVEC 0 = "000011]")", "000011..00001:"},
      {R"(AVEC 1 = "a" AND AVEC 0 = "00001]" OR AVEC 0 = "00004]" AND AVEC 1)", "00001..00005"},
      {R"(AVEC 0 = "00001001")", "00001001..00001001$"},
      {R"(AVEC 0 = "00001001]" AND > "00001001202601")", "00001001..00001002"},
      {R"(AVEC 0 >= "A1" AND < "B")", "A1..B"},
      {R"(AVEC 0 > "A1" AND <= "B")", "A1$..B$"},
      {R"(AVEC 0 > "12]" AND <= "34]")", "13..35"},
      {R"(AVEC 0 = "1]" OR = "3]" AND <> "31")", "1..4"},
  };
  for (const auto& row : table) {
    const std::string text = std::string("SELECT TPSDETAILSINTERV ") + row.clauses;
    const KeyRange keys = keyRange(parseQuery(text));
    std::string range = keys.debut + ".." + (keys.sansFin ? "" : keys.fin);
    std::replace(range.begin(), range.end(), '\0', '$');
    EXPECT_EQ(range, row.range) << text;
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
