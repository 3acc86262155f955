#include "data/select.h"

#include <gtest/gtest.h>

#include <memory>

#include "data/db.h"
#include "storage/memory.h"

namespace data {
namespace {

struct Place {
  int attribute;
  const char* text;  // "/" parts values, "~" subvalues
};

class SelectTest : public testing::Test {
 protected:
  void put(const char* file, const char* key, std::initializer_list<Place> places) {
    CItem item = db_.OpenFile(file).NewItem(key);
    for (const Place& place : places) {
      std::string text = place.text;
      std::replace(text.begin(), text.end(), '/', SepValeur);
      std::replace(text.begin(), text.end(), '~', SepSousValeur);
      item.Set(place.attribute, text);
    }
    item.DBWrite();
  }

  // Rows parted by blanks, columns by ",", subvalues by "~".
  std::string rows(std::string_view query, std::string_view fields = "0") {
    const auto begin = query.find(' ') + 1;
    const auto file = query.substr(begin, query.find(' ', begin) - begin);
    const CItem result = db_.Selectionner(query, file, fields);
    std::string text;
    for (int i = 1; i <= result.DCount(); ++i) {
      if (i > 1) text += ' ';
      text += result(i);
    }
    std::replace(text.begin(), text.end(), SepValeur, ',');
    std::replace(text.begin(), text.end(), SepSousValeur, '~');
    return text;
  }

  struct Row {
    const char* query;
    const char* expected;
    const char* fields = "0";
  };
  void check(std::initializer_list<Row> table) {
    for (const Row& row : table) EXPECT_EQ(rows(row.query, row.fields), row.expected) << row.query;
  }

  PosteFixe poste_{21511};
  std::shared_ptr<Storage> storage_ = std::make_shared<storage::MemoryStorage>(poste_);
  Db db_{storage_};
};

TEST_F(SelectTest, ReferenceFiles) {
  put("ASSOCIATION", "001", {{1, "Zinnia"}});
  put("ASSOCIATION", "002", {{1, "Abeille"}});
  put("RUBCHARGE", "R01", {{1, "Zone"}, {11, "Montant"}, {16, "08"}, {28, "1"}});
  put("RUBCHARGE", "R02", {{1, "Carte"}, {15, "Taux/Montant"}, {16, "08"}});
  put("RUBCHARGE", "R03", {{11, "Montant"}, {16, "08"}, {28, "1"}, {30, "1"}});
  put("RUBCHARGE", "R04", {{11, "Taux"}, {16, "08"}});
  put("RUBCHARGE", "R05", {{11, "Montant"}, {16, "8"}});
  for (const char* key : {"09", "52", "56", "526a", "563b", "563c", "1000"}) put("PCS", key, {});
  put("PCS", "563c", {{1, "Auxiliaire"}});
  put("PCS", "563b", {{1, "Employé"}});
  put("PROFIL", "P1", {{1, "Mandataire"}, {4, "1"}});
  put("PROFIL", "P2", {{1, "Bureau"}, {4, "0"}});
  put("PROFIL", "P3", {{1, "Agent"}});
  put("ACTIVITES", "001AAA", {{1, "Ménage"}, {12, "P"}});
  put("ACTIVITES", "001BBB", {{1, "Courses"}, {12, "M"}});
  put("ACTIVITES", "002AAA", {{1, "Veille"}, {12, "M"}});
  put("CONTRATSPREV", "10", {{1, "Sérénité"}, {3, "01"}});
  put("CONTRATSPREV", "11", {{1, "Avenir"}, {3, "01"}});
  put("CONTRATSPREV", "12", {{1, "Bis"}, {3, "02"}});
  put("CONTRATSPREV", "99", {{1, "Aucun"}, {3, "01"}});
  put("RUBSAISIE", "S1", {{1, "Prime"}, {4, "0"}, {6, "x"}, {10, "y"}});
  put("RUBSAISIE", "S2", {{1, "Repas"}, {4, "0"}, {18, "1"}});
  put("RUBSAISIE", "S3", {{1, "Km"}, {4, "0"}, {18, "0"}});
  put("RUBSAISIE", "S4", {{1, "Panier"}, {4, "1"}});
  check({
      {R"(SSELECT ASSOCIATION)", "001,Zinnia 002,Abeille", "0 1"},
      {R"(SSELECT ASSOCIATION PAR 1)", "002,Abeille 001,Zinnia", "0 1"},
      {R"(SSELECT RUBCHARGE AVEC 28 = "1" AND AVEC 30 = "")", "R01"},
      {R"(SSELECT RUBCHARGE AVEC 16 = "08" AND AVEC 11 = "Montant" AND AVEC 30 = "" OR AVEC 16 = "08" AND AVEC 15 = "Montant" AND AVEC 30 = "" PAR 1)",
       "R02,Carte R01,Zone", "0 1"},
      {R"(SSELECT PCS AVEC 0 < "100" PAR 1)", "09 52 56"},
      {R"(SSELECT PCS AVEC 0 = "56]" AND AVEC 0 > "100" PAR 1)", "563c 563b"},
      {R"(SSELECT PCS AVEC 0 = "563b")", "563b"},
      {R"(SSELECT PCS AVEC 0 = "9")", ""},
      {R"(SSELECT PROFIL AVEC 4 = "1" PAR 1)", "P1,Mandataire,1", "0 1 4"},
      {R"(SSELECT PROFIL AVEC 4 <> "1" PAR 1)", "P3,Agent P2,Bureau,0", "0 1 4"},
      {R"(SSELECT ACTIVITES AVEC 0 = "001]" PAR 1)", "001BBB 001AAA"},
      {R"(SSELECT ACTIVITES AVEC 0 = "001]" AND AVEC 12 = "M" PAR 1)", "001BBB"},
      {R"(SSELECT ACTIVITES AVEC 0 = "001]" AND AVEC 12 <> "M" PAR 1)", "001AAA"},
      {R"(SSELECT CONTRATSPREV AVEC ConvColPrev = "01" AND AVEC 0 <> "99"   PAR 1)", "11 10"},
      {R"(SSELECT RUBSAISIE AVEC 4 = "0" AND AVEC 18 <> "1" PAR 1)", "S3,Km S1,Prime,x,,,,y",
       "0 1 6 9 8 11 10 7"},
  });
}

TEST_F(SelectTest, PersonsAndAbsences) {
  put("CIVILAIDE", "00010", {{2, "Martin"}, {3, "Rose"}});
  put("CIVILAIDE", "00011", {{2, "Martin"}, {3, "Éric"}, {43, "20000"}});
  put("CIVILAIDE", "00012", {{2, "Martinet"}, {3, "Zoé"}});
  put("CIVILAIDE", "00013", {{2, "Durand"}, {3, "Rose"}});
  put("CIVILAIDE", "00014", {{2, "martineau"}, {3, "Luc"}});
  for (const char* key : {"00010", "00011", "00013", "00014"}) put("ELTSPARTEMP", key, {});
  put("CIVILAIDANT", "00001", {{2, "Lefèvre"}, {3, "Bruno"}});
  put("CIVILAIDANT", "00002", {{2, "Lefèvre"}, {3, "Anne"}, {36, "20500"}});
  put("CIVILAIDANT", "00003", {{2, "Lefèvre-Roy"}, {3, "Aline"}, {36, "9500"}});
  put("CIVILAIDANT", "00004", {{2, "Lefevre"}, {3, "Abel"}});
  put("ABSENCESAIDANT", "000010220300", {{2, "20310"}});
  put("ABSENCESAIDANT", "000011620100", {{2, "20110"}});
  put("ABSENCESAIDANT", "000011620050", {{2, "20060"}});
  put("ABSENCESAIDANT", "000011820400", {{2, "20410"}});
  put("ABSENCESAIDANT", "000012020400", {{2, "20410"}});
  put("ABSENCESAIDANT", "000021620100", {{2, "20110"}});
  check({
      {R"(SSELECT CIVILAIDE AVEC NomPrenomAide = "MARTIN]" AND AVEC CodeAideElts AND SANS 43 PAR 2)",
       "00010,Martin,Rose 00014,martineau,Luc", "0 2 3"},
      {R"(SSELECT CIVILAIDE AVEC NomPrenomAide = "Martin é]")", "00011"},
      {R"(SSELECT CIVILAIDE SANS CodeAideElts OR AVEC 43)", "00011 00012"},
      {R"(SSELECT CIVILAIDANT AVEC NomPrenomAidant = "LEFÈVRE]" PAR 2 PAR 3)", "00002 00001 00003"},
      {R"(SSELECT CIVILAIDANT AVEC NomPrenomAidant = "LEFÈVRE]" AND AVEC 36 >= "20000" OR = "" PAR 2 PAR 3)",
       "00002 00001"},
      {R"(SSELECT ABSENCESAIDANT AVEC @ID = "00001]" AND AVEC 2 >= "20100" AND AVEC TypeAbs <> "18" AND AVEC TypeAbs <> "19" AND AVEC TypeAbs <> "20" AND AVEC TypeAbs <> "21" PAR DebAbsAidant)",
       "000011620100,20110 000010220300,20310", "0 2"},
  });
}

TEST_F(SelectTest, Contracts) {
  put("CONTRAT", "00001001", {{1, "02"}, {2, "001"}, {3, "00010"}, {7, "20000"}, {51, "x"}});
  put("CONTRAT", "00001002", {{1, "01"}, {2, "001"}, {3, "001001"}, {7, "9000"}, {8, "9500"}});
  put("CONTRAT", "00001003", {{1, "02"}, {2, "001"}, {3, "00010"}, {7, "19000"}, {8, "20050"}});
  put("CONTRAT", "00001004",
      {{1, "02"}, {2, "001"}, {3, "00010"}, {7, "20600"}, {8, "20900"}, {65, "O"}});
  put("CONTRAT", "00001005",
      {{1, "01"}, {2, "001"}, {3, "001001"}, {7, "20100"}, {8, "20700"}, {116, "00001002"}});
  put("CONTRAT", "00002001", {{1, "01"}, {2, "001"}, {3, "001001"}, {117, "00001002"}});
  put("CONTRAT", "00002002", {{1, "01"}, {2, "002"}, {3, "002001"}, {117, "00001005"}});
  check({
      {R"(SSELECT CONTRAT AVEC @ID = "00001]" AND AVEC 3 = "00010" AND AVEC 2 = "001" AND AVEC 7 <= "20020" AND AVEC 8 >= "20020" OR = "")",
       "00001001 00001003"},
      {R"(SSELECT CONTRAT AVEC @ID = "00001]" AND AVEC 2 = "001" AND AVEC 7 <= "19500" AND AVEC 8 >= "19500" OR = "")",
       "00001003"},
      {R"(SSELECT CONTRAT AVEC 0 = "00001]" AND <> "00001005" AND AVEC 1 <> "02")", "00001002"},
      {R"(SSELECT CONTRAT AVEC 0 = "00001]" AND AVEC 8 = "" OR >= "20050" AND AVEC 7 <= "20600" AND AVEC 65 <> "O")",
       "00001001 00001003 00001005"},
      {R"(SSELECT CONTRAT AVEC 1 = "02" AND AVEC 2 = "001" AND AVEC 3 = "00010" AND AVEC 0 = "00001]" AND SANS 0 = "00001003" AND AVEC 65 <> "O" PAR 3)",
       "20000,,x", "7 8 51"},
      {R"(SSELECT CONTRAT AVEC 1 <> "02" AND AVEC 2 = "001" AND AVEC 0 = "00001]" AND SANS 0 = "00001002" AND AVEC 65 <> "O" PAR 3)",
       "20100,20700", "7 8"},
      {R"(SSELECT CONTRAT AVEC 0 = "00001]" AND AVEC 1 = "02" AND AVEC 2 = "001" AND AVEC 3 = "00010" AND AVEC 0 <> "00001001" AND AVEC 65 <> "O")",
       "00001003,19000,20050", "0 7 8"},
      {R"(SELECT CONTRAT AVEC 1 <> "02" AND AVEC 8 <> "" AND < "20800" AND AVEC 65 = "" AND AVEC 3 = "001001" AND AVEC 0 = "00001]" PAR-DECR 8)",
       "00001005 00001002"},
      {R"(SELECT CONTRAT AVEC 116 = "00001002" OR AVEC 117 = "00001002")", "00001005 00002001"},
      {R"(SELECT CONTRAT AVEC 65 <> "O" OR AVEC 65 = "" PAR-DECR 8 PAR 7)",
       "00001005 00001003 00001002 00002001 00002002 00001001"},
  });
}

TEST_F(SelectTest, Details) {
  for (const char* key :
       {"00001001202512", "00001001202601", "00001001202602", "00001002202602", "00002001202603"}) {
    put("DETAILCALCUL", key, {});
  }
  for (const char* key : {"00001001000202602", "00001001000202603", "00001002000202603"}) {
    put("DETAILINTER", key, {});
  }
  check({
      {R"(SSELECT DETAILCALCUL AVEC 0 = "00001001]")",
       "00001001202512 00001001202601 00001001202602"},
      {R"(SSELECT DETAILCALCUL AVEC 0 > "00001001202601" AND = "00001001]")", "00001001202602"},
      {R"(SSELECT DETAILINTER AVEC 0 = "00001001]" AND > "[202602")", "00001001000202603"},
      {R"(SSELECT OPPOSITION AVEC 0 = "00001001]")", ""},
  });
}

TEST_F(SelectTest, Planning) {
  put("ACTIVITES", "001MEN", {{12, "M"}});
  put("ACTIVITES", "001PRE", {{12, "P"}});
  // carer, person helped, first day, activity, weekday, time
  constexpr const char* i1 =
      "00001"
      "00010"
      "20000"
      "001MEN"
      "3"
      "0830";
  constexpr const char* i2 =
      "00001"
      "00010"
      "20500"
      "001MEN"
      "0"
      "1400";
  constexpr const char* i3 =
      "00001"
      "00011"
      "20100"
      "001PRE"
      "0"
      "0900";
  constexpr const char* i4 =
      "00001"
      "00010"
      "20100"
      "001MEN"
      "0"
      "0900";
  constexpr const char* i5 =
      "00001"
      "00010"
      "20100"
      "001XXX"
      "5"
      "0900";
  put("TPSDETAILSINTERV", i1, {{1, "20300"}});
  put("TPSDETAILSINTERV", i2, {});
  put("TPSDETAILSINTERV", i3, {});
  put("TPSDETAILSINTERV", i4, {{1, "20600"}});
  put("TPSDETAILSINTERV", i5, {{1, "20050"}});
  put("TPSDETAILSINTERV",
      "00002"
      "00010"
      "20000"
      "001MEN"
      "3"
      "0830",
      {});
  put("TPSEXCEPTIONS", "00001201000830", {{1, i1}});
  put("TPSEXCEPTIONS", "00001202000830", {{1, i1}});
  put("TPSEXCEPTIONS", "00001202000900", {{1, i4}});
  put("TPSAIDANTINDISPO",
      "0000120000"
      "2"
      "0800",
      {{1, "20400"}, {2, "1000"}, {5, "O"}});
  put("TPSAIDANTINDISPO",
      "0000120300"
      "2"
      "0800",
      {{5, "O"}});
  put("TPSAIDANTINDISPO",
      "0000120000"
      "3"
      "0800",
      {{5, "N"}});
  put("TPSMOI", "00001A", {{4, "00001001"}});
  const auto all = [](std::initializer_list<const char*> keys) {
    std::string text;
    for (const char* key : keys) (text += text.empty() ? "" : " ") += key;
    return text;
  };
  const std::string q =
      R"(AVEC 0 = "00001]" AND AVEC TypeActDetailInterv = "M" AND AVEC CodeActInterv = "001]")";
  const std::string outside =
      "SELECT TPSDETAILSINTERV " + q +
      R"(AND AVEC CodeAide = "00010"AND AVEC DateDebInterv < "20050" AND AVEC 1 > "20250" OR = ""OR )" +
      q + R"( AND AVEC 1 > "20550" OR = "")";
  EXPECT_EQ(rows(outside), all({i1, i4, i2}));
  const std::string within = "SELECT TPSDETAILSINTERV " + q +
                             R"(AND AVEC DateDebInterv <= "20400"AND AVEC 1 >= "20350" OR = "")";
  EXPECT_EQ(rows(within), i4);
  EXPECT_EQ(
      rows(
          R"(SELECT TPSDETAILSINTERV = "00001]" AVEC 1 > "20300" OR = "" AND AVEC CodeActInterv = "001]" AND AVEC CodeAide = "00010" AND AVEC TypeActDetailInterv = "M" PAR JourInterv PAR HeureInterv)"),
      all({i4, i2}));
  EXPECT_EQ(
      rows(
          R"(SELECT TPSDETAILSINTERV = "00001]" AVEC 1 > "20040" OR = "" AND AVEC CodeActInterv = "001]" AND AVEC TypeActDetailInterv # "M" PAR JourInterv PAR HeureInterv)"),
      all({i3, i5}));
  EXPECT_EQ(
      rows(
          R"(SELECT TPSDETAILSINTERV AVEC @ID = "0000100010]" AND AVEC TypeActDetailInterv = "M" AND AVEC DateDebInterv <= "20400" AND AVEC 1 >= "20300")"),
      all({i1, i4}));
  check({
      {R"(SELECT TPSEXCEPTIONS AVEC 1 = "00001000102000000)"
       R"(1MEN30830" AND AVEC DateDebExcep > "20100")",
       "00001202000830"},
      {R"(SSELECT TPSAIDANTINDISPO AVEC 0 = "00001]" AND AVEC 5 = "O" AND AVEC DateDebIndispo <= "20200" AND AVEC 1 >= "20200" OR = "")",
       "000012000020800,1000", "0 2"},
      {R"(SELECT TPSMOI AVEC 4 = "00001001")", "00001A"},
  });
}

TEST_F(SelectTest, ValuesAndComparisons) {
  put("X", "1", {{1, "a/b~c"}, {2, "10"}, {3, "01"}});
  put("X", "2", {{1, "c//d"}, {2, "9.50"}, {3, "1"}});
  put("X", "3", {{2, "+9.5"}, {3, "1.0"}});
  put("X", "4", {{1, "Hélène"}, {2, "-3"}, {3, "12345678901234567890123"}});
  put("X", "5", {{2, "11e1"}, {3, "12345678901234567890124"}});
  put("X", "50", {{2, "-20.5"}});
  check({
      {R"(SELECT X AVEC 1 = "c")", "1 2"},
      {R"(SELECT X SANS 1 = "c")", "3 4 5 50"},
      {R"(SELECT X AVEC 1 <> "c")", "1 2 3 4 5 50"},
      {R"(SELECT X AVEC 1 = "")", "2 3 5 50"},
      {R"(SELECT X AVEC 1)", "1 2 4"},
      {R"(SELECT X SANS 1)", "3 5 50"},
      {R"(SELECT X AVEC 1 = "a" AND = "b")", ""},
      {R"(SELECT X AVEC 1 = "a" AND AVEC 1 = "b")", "1"},
      {R"(SELECT X SANS 1 = "a" OR = "d" AND SANS 1 = "Hél]")", "3 5 50"},
      {R"(SELECT X AVEC 1 = "[ène")", "4"},
      {R"(SELECT X AVEC 1 = "[lèn]")", "4"},
      {R"(SELECT X AVEC 2 = "9.5")", "2 3"},
      {R"(SELECT X AVEC 2 < "10")", "2 3 4 50"},
      {R"(SELECT X AVEC 2 <= "-3")", "4 50"},
      {R"(SELECT X AVEC 2 > "10")", "5"},
      {R"(SELECT X AVEC 3 = "1")", "2 3"},
      {R"(SELECT X AVEC 3 = "01")", "1"},
      {R"(SELECT X AVEC 3 > "12345678901234567890123")", "5"},
      {R"(SELECT X AVEC 0 > "4")", "5 50"},
      {R"(SELECT X AVEC 0 = "5]" OR = "1" AND AVEC 2 <> "10")", "5 50"},
      {R"(SELECT X AVEC 1 = "a" OR AVEC 1 = "d" AND AVEC 0 = "9")", "1"},
      {R"(SELECT X = "5]" AVEC 2 = "10" OR AVEC 2 = "-20.5")", "50"},
      {R"(SELECT X = "1" OR = "4" AND AVEC 2)", "1 4"},
      {R"(SELECT X SANS 0 = "5" PAR 2)", "50 4 2 3 1"},
      {R"(SELECT X PAR-DECR 1 PAR-DECR 0)", "2 1 4 50 5 3"},
  });
}

TEST_F(SelectTest, RowsKeepTheirPlace) {
  put("X", "1", {{2, "b"}});
  put("X", "2", {{1, "v/w~x//y"}, {3, "z"}});
  put("X", "3", {});
  put("X", "4", {{3, "end"}});
  EXPECT_EQ(rows("SELECT X", "1 3"), " v~w~x~~y,z  ,end");
  EXPECT_EQ(rows("SELECT X PAR-DECR 0", "1 3"), ",end  v~w~x~~y,z");
  EXPECT_EQ(rows("SELECT X", " 3  @ID "), ",1 z,2 ,3 end,4");
  EXPECT_EQ(rows(R"(SELECT X AVEC 3 AND AVEC 0 <> "4")", "9"), "");

  // "2" < "10" < "1a" < "2": no order fits, but there is one.
  put("Y", "a", {{1, "2"}});
  put("Y", "b", {{1, "10"}});
  put("Y", "c", {{1, "1a"}});
  EXPECT_EQ(rows("SELECT Y PAR 1").size(), 5U);
}

TEST_F(SelectTest, AttributesAreFoundAtEveryDistance) {
  CItem item = db_.OpenFile("LONG").NewItem("k");
  for (int a = 1; a <= 150; ++a) {
    if (a % 7 != 0) item.Set(a, std::string(static_cast<std::size_t>(a % 13), 'x') + "é");
  }
  item.DBWrite();
  for (int a = 1; a <= 155; ++a) {
    for (const int b : {a + 1, a + 8, 150, 1}) {
      const auto fields = std::to_string(a) + ' ' + std::to_string(b);
      const CItem row = db_.Selectionner("SELECT LONG", "LONG", fields);
      EXPECT_EQ(row(1, 1), item(a)) << fields;
      EXPECT_EQ(row(1, 2), item(b)) << fields;
    }
  }
}

}  // namespace
}  // namespace data
