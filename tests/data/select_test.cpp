#include "data/select.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <memory>
#include <sstream>

#include "data/db.h"
#include "storage/memory.h"

namespace data {
namespace {

class SelectTest : public testing::Test {
 protected:
  // One file a line: "FILE key attribute:text ... key ...". "/" parts values, "~" subvalues, "_" is
  // a blank.
  void put(const std::string& files) {
    std::istringstream lines(files);
    for (std::string line; std::getline(lines, line);) {
      std::istringstream words(line);
      std::string file, word;
      CItem item;
      for (words >> file; words >> word; item.DBWrite()) {
        const auto colon = word.find(':');
        if (colon == std::string::npos) {
          item = db_.OpenFile(file).NewItem(word);
          continue;
        }
        std::replace(word.begin(), word.end(), '/', SepValeur);
        std::replace(word.begin(), word.end(), '~', SepSousValeur);
        std::replace(word.begin(), word.end(), '_', ' ');
        item.Set(std::stoi(word), word.substr(colon + 1));
      }
    }
  }

  // Rows parted by blanks, columns by ",", subvalues by "~".
  std::string rows(const std::string& query, std::string_view fields = "0") {
    std::string verb, file;
    std::istringstream(query) >> verb >> file;
    const CItem result = db_.Selectionner(query, file, fields);
    std::string text;
    for (int i = 1; i <= result.DCount(); ++i) (text += i > 1 ? " " : "") += result(i);
    std::replace(text.begin(), text.end(), SepValeur, ',');
    std::replace(text.begin(), text.end(), SepSousValeur, '~');
    return text;
  }

  // One case a line: "query => rows", the field list in front in braces unless it is "0".
  void check(const std::string& cases) {
    std::istringstream lines(cases);
    for (std::string line; std::getline(lines, line);) {
      const auto arrow = line.find(" =>");
      if (arrow == std::string::npos) continue;
      const auto close = line.find('}');
      const auto begin = close == std::string::npos ? 0 : close + 1;
      const auto fields = begin == 0 ? "0" : line.substr(1, close - 1);
      const std::string expected = line.size() > arrow + 4 ? line.substr(arrow + 4) : "";
      EXPECT_EQ(rows(line.substr(begin, arrow - begin), fields), expected) << line;
    }
  }

  PosteFixe poste_{21511};
  std::shared_ptr<Storage> storage_ = std::make_shared<storage::MemoryStorage>(poste_);
  Db db_{storage_};
};

TEST_F(SelectTest, ReferenceFiles) {
  put(R"(
ASSOCIATION 001 1:Zinnia 002 1:Abeille
RUBCHARGE R01 1:Zone 11:Montant 16:08 28:1 R02 1:Carte 15:Taux/Montant 16:08
RUBCHARGE R03 1:Bus 11:Montant 16:08 28:1 30:1 R04 1:Auto 11:Taux 16:08 R05 1:Vélo 11:Montant 16:8
PCS 09 52 56 526a 563b 1:Employé 563c 1:Auxiliaire 1000
PROFIL P1 1:Mandataire 4:1 P2 1:Bureau 4:0 P3 1:Agent
ACTIVITES 001AAA 1:Ménage 12:P 001BBB 1:Courses 12:M 002AAA 1:Veille 12:M
CONTRATSPREV 10 1:Sérénité 3:01 11 1:Avenir 3:01 12 1:Bis 3:02 99 1:Aucun 3:01
RUBSAISIE S1 1:Prime 4:0 6:x 10:y S2 1:Repas 4:0 18:1 S3 1:Km 4:0 18:0 S4 1:Panier 4:1
)");
  check(R"(
{0 1}SSELECT ASSOCIATION => 001,Zinnia 002,Abeille
{0 1}SSELECT ASSOCIATION PAR 1 => 002,Abeille 001,Zinnia
SSELECT RUBCHARGE AVEC 28 = "1" AND AVEC 30 = "" => R01
{0 1}SSELECT RUBCHARGE AVEC 16 = "08" AND AVEC 11 = "Montant" AND AVEC 30 = "" OR AVEC 16 = "08" AND AVEC 15 = "Montant" AND AVEC 30 = "" PAR 1 => R02,Carte R01,Zone
SSELECT PCS AVEC 0 < "100" PAR 1 => 09 52 56
SSELECT PCS AVEC 0 = "56]" AND AVEC 0 > "100" PAR 1 => 563c 563b
SSELECT PCS AVEC 0 = "563b" => 563b
SSELECT PCS AVEC 0 = "9" =>
{0 1 4}SSELECT PROFIL AVEC 4 = "1" PAR 1 => P1,Mandataire,1
{0 1 4}SSELECT PROFIL AVEC 4 <> "1" PAR 1 => P3,Agent P2,Bureau,0
SSELECT ACTIVITES AVEC 0 = "001]" PAR 1 => 001BBB 001AAA
SSELECT ACTIVITES AVEC 0 = "001]" AND AVEC 12 = "M" PAR 1 => 001BBB
SSELECT ACTIVITES AVEC 0 = "001]" AND AVEC 12 <> "M" PAR 1 => 001AAA
SSELECT CONTRATSPREV AVEC ConvColPrev = "01" AND AVEC 0 <> "99"   PAR 1 => 11 10
{0 1 6 9 8 11 10 7}SSELECT RUBSAISIE AVEC 4 = "0" AND AVEC 18 <> "1" PAR 1 => S3,Km S1,Prime,x,,,,y
)");
}

TEST_F(SelectTest, PersonsAndAbsences) {
  put(R"(
CIVILAIDE 00010 2:Martin 3:Rose 00011 2:Martin 3:Éric 43:20000 00012 2:Martinet 3:Zoé
CIVILAIDE 00013 2:Durand 3:Rose 00014 2:martineau 3:Luc
ELTSPARTEMP 00010 00011 00013 00014
CIVILAIDANT 00001 2:Lefèvre 3:Bruno 00002 2:Lefèvre 3:Anne 36:20500
CIVILAIDANT 00003 2:Lefèvre-Roy 3:Aline 36:9500 00004 2:Lefevre 3:Abel
CIVILAIDANT 00005 2:N'Diaye 3:Éloi 00006 2:N’DIAYE 3:Marie 00007 2:étienne 00008 2:Zoé
ABSENCESAIDANT 000010220300 2:20310 000011620100 2:20110 000011620050 2:20060 000011820400 2:20410
ABSENCESAIDANT 000012020400 2:20410 000021620100 2:20110
)");
  check(R"(
{0 2 3}SSELECT CIVILAIDE AVEC NomPrenomAide = "MARTIN]" AND AVEC CodeAideElts AND SANS 43 PAR 2 => 00010,Martin,Rose 00014,martineau,Luc
SSELECT CIVILAIDE AVEC NomPrenomAide = "Martin é]" => 00011
SSELECT CIVILAIDE SANS CodeAideElts OR AVEC 43 => 00011 00012
SSELECT CIVILAIDANT AVEC NomPrenomAidant = "LEFÈVRE]" PAR 2 PAR 3 => 00004 00002 00001 00003
SSELECT CIVILAIDANT AVEC NomPrenomAidant = "LEFÈVRE]" AND AVEC 36 >= "20000" OR = "" PAR 2 PAR 3 => 00004 00002 00001
SSELECT CIVILAIDANT AVEC NomPrenomAidant = "LEFE]" AND SANS NomPrenomAidant = "lefevre-r]" => 00001 00002 00004
SSELECT CIVILAIDANT AVEC NomPrenomAidant = "ndiaye]" => 00005 00006
SSELECT CIVILAIDANT AVEC NomPrenomAidant = "n'diaye M]" => 00006
{0 NomPrenomAidant}SSELECT CIVILAIDANT = "00005" => 00005,N'DIAYE ÉLOI
SSELECT CIVILAIDANT PAR 2 => 00007 00004 00001 00002 00003 00005 00006 00008
{0 2}SSELECT ABSENCESAIDANT AVEC @ID = "00001]" AND AVEC 2 >= "20100" AND AVEC TypeAbs <> "18" AND AVEC TypeAbs <> "19" AND AVEC TypeAbs <> "20" AND AVEC TypeAbs <> "21" PAR DebAbsAidant => 000011620100,20110 000010220300,20310
)");
}

TEST_F(SelectTest, ContractsAndPayslips) {
  put(R"(
CONTRAT 00001001 1:02 2:001 3:00010 7:20000 51:x 00001002 1:01 2:001 3:001001 7:9000 8:9500
CONTRAT 00001003 1:02 2:001 3:00010 7:19000 8:20050
CONTRAT 00001004 1:02 2:001 3:00010 7:20600 8:20900 65:O
CONTRAT 00001005 1:01 2:001 3:001001 7:20100 8:20700 116:00001002
CONTRAT 00002001 1:01 2:001 3:001001 117:00001002 00002002 1:01 2:002 3:002001 117:00001005
DETAILCALCUL 00001001202512 00001001202601 00001001202602 00001002202602
DETAILINTER 00001001000202602 00001001000202603 00001002000202603
)");
  check(R"(
SSELECT DETAILCALCUL AVEC 0 = "00001001]" => 00001001202512 00001001202601 00001001202602
SSELECT DETAILCALCUL AVEC 0 > "00001001202601" AND = "00001001]" => 00001001202602
SSELECT DETAILINTER AVEC 0 = "00001001]" AND > "[202602" => 00001001000202603
SSELECT OPPOSITION AVEC 0 = "00001001]" =>
SSELECT CONTRAT AVEC @ID = "00001]" AND AVEC 3 = "00010" AND AVEC 2 = "001" AND AVEC 7 <= "20020" AND AVEC 8 >= "20020" OR = "" => 00001001 00001003
SSELECT CONTRAT AVEC @ID = "00001]" AND AVEC 2 = "001" AND AVEC 7 <= "19500" AND AVEC 8 >= "19500" OR = "" => 00001003
SSELECT CONTRAT AVEC 0 = "00001]" AND <> "00001005" AND AVEC 1 <> "02" => 00001002
SSELECT CONTRAT AVEC 0 = "00001]" AND AVEC 8 = "" OR >= "20050" AND AVEC 7 <= "20600" AND AVEC 65 <> "O" => 00001001 00001003 00001005
{7 8 51}SSELECT CONTRAT AVEC 1 = "02" AND AVEC 2 = "001" AND AVEC 3 = "00010" AND AVEC 0 = "00001]" AND SANS 0 = "00001003" AND AVEC 65 <> "O" PAR 3 => 20000,,x
{7 8}SSELECT CONTRAT AVEC 1 <> "02" AND AVEC 2 = "001" AND AVEC 0 = "00001]" AND SANS 0 = "00001002" AND AVEC 65 <> "O" PAR 3 => 20100,20700
{0 7 8}SSELECT CONTRAT AVEC 0 = "00001]" AND AVEC 1 = "02" AND AVEC 2 = "001" AND AVEC 3 = "00010" AND AVEC 0 <> "00001001" AND AVEC 65 <> "O" => 00001003,19000,20050
SELECT CONTRAT AVEC 1 <> "02" AND AVEC 8 <> "" AND < "20800" AND AVEC 65 = "" AND AVEC 3 = "001001" AND AVEC 0 = "00001]" PAR-DECR 8 => 00001005 00001002
SELECT CONTRAT AVEC 116 = "00001002" OR AVEC 117 = "00001002" => 00001005 00002001
SELECT CONTRAT AVEC 65 <> "O" OR AVEC 65 = "" PAR-DECR 8 PAR 7 => 00001005 00001003 00001002 00002001 00002002 00001001
)");
}

// Keys of interventions: carer, person helped, first day, activity, weekday, time.
TEST_F(SelectTest, Planning) {
  put(R"(
ACTIVITES 001MEN 12:M 001PRE 12:P
TPSDETAILSINTERV 000010001020000001MEN30830 1:20300 000010001020100001MEN00900 1:20600
TPSDETAILSINTERV 000010001020100001XXX50900 1:20050 000010001020500001MEN01400
TPSDETAILSINTERV 000010001120100001PRE00900 000020001020000001MEN30830
TPSEXCEPTIONS 00001201000830 1:000010001020000001MEN30830
TPSEXCEPTIONS 00001202000830 1:000010001020000001MEN30830
TPSEXCEPTIONS 00001202000900 1:000010001020100001MEN00900
TPSAIDANTINDISPO 000012000020800 1:20400 2:1000 5:O 000012000030800 5:N 000012030020800 5:O
TPSMOI 00001A 4:00001001
)");
  check(R"(
SELECT TPSDETAILSINTERV AVEC 0 = "00001]" AND AVEC TypeActDetailInterv = "M" AND AVEC CodeActInterv = "001]"AND AVEC CodeAide = "00010"AND AVEC DateDebInterv < "20050" AND AVEC 1 > "20250" OR = ""OR AVEC 0 = "00001]" AND AVEC TypeActDetailInterv = "M" AND AVEC CodeActInterv = "001]" AND AVEC 1 > "20550" OR = "" => 000010001020000001MEN30830 000010001020100001MEN00900 000010001020500001MEN01400
SELECT TPSDETAILSINTERV AVEC 0 = "00001]" AND AVEC TypeActDetailInterv = "M" AND AVEC CodeActInterv = "001]"AND AVEC DateDebInterv <= "20400"AND AVEC 1 >= "20350" OR = "" => 000010001020100001MEN00900
SELECT TPSDETAILSINTERV = "00001]" AVEC 1 > "20300" OR = "" AND AVEC CodeActInterv = "001]" AND AVEC CodeAide = "00010" AND AVEC TypeActDetailInterv = "M" PAR JourInterv PAR HeureInterv => 000010001020100001MEN00900 000010001020500001MEN01400
SELECT TPSDETAILSINTERV = "00001]" AVEC 1 > "20040" OR = "" AND AVEC CodeActInterv = "001]" AND AVEC TypeActDetailInterv # "M" PAR JourInterv PAR HeureInterv => 000010001120100001PRE00900 000010001020100001XXX50900
SELECT TPSDETAILSINTERV AVEC @ID = "0000100010]" AND AVEC TypeActDetailInterv = "M" AND AVEC DateDebInterv <= "20400" AND AVEC 1 >= "20300" => 000010001020000001MEN30830 000010001020100001MEN00900
SELECT TPSDETAILSINTERV AVEC JourInterv = "5" OR AVEC HeureInterv = "1400" => 000010001020100001XXX50900 000010001020500001MEN01400
SELECT TPSEXCEPTIONS AVEC 1 = "000010001020000001MEN30830" AND AVEC DateDebExcep > "20100" => 00001202000830
{0 2}SSELECT TPSAIDANTINDISPO AVEC 0 = "00001]" AND AVEC 5 = "O" AND AVEC DateDebIndispo <= "20200" AND AVEC 1 >= "20200" OR = "" => 000012000020800,1000
SELECT TPSMOI AVEC 4 = "00001001" => 00001A
)");
}

TEST_F(SelectTest, ValuesAndComparisons) {
  put(R"(
X 1 1:a/b~c 2:10 3:01 2 1:c//d 2:9.50 3:1 3 2:+9.5 3:1.0 4 1:Hélène 2:-3 3:12345678901234567890123
X 5 2:11e1 3:12345678901234567890124 50 2:-20.5
)");
  check(R"(
SELECT X AVEC 1 = "c" => 1 2
SELECT X AVEC 1 <> "c" => 1 2 3 4 5 50
SELECT X AVEC 1 = "" => 2 3 5 50
SELECT X SANS 1 => 3 5 50
SELECT X AVEC 1 = "a" AND = "b" =>
SELECT X AVEC 1 = "a" AND AVEC 1 = "b" => 1
SELECT X SANS 1 = "a" OR = "d" AND SANS 1 = "Hél]" => 3 5 50
SELECT X AVEC 1 = "[ène" => 4
SELECT X AVEC 1 = "[lèn]" => 4
SELECT X AVEC 2 = "9.5" => 2 3
SELECT X AVEC 2 < "10" => 2 3 4 50
SELECT X AVEC 2 <= "-3" => 4 50
SELECT X AVEC 3 = "01" => 1
SELECT X AVEC 3 > "12345678901234567890123" => 5
SELECT X AVEC 0 > "4" => 5 50
SELECT X AVEC 0 = "5]" OR = "1" AND AVEC 2 <> "10" => 5 50
SELECT X AVEC 1 = "a" OR AVEC 1 = "d" AND AVEC 0 = "9" => 1
SELECT X = "5]" AVEC 2 = "10" OR AVEC 2 = "-20.5" => 50
SELECT X SANS 0 = "5" PAR 2 => 50 4 2 3 1
SELECT X PAR-DECR 1 PAR-DECR 0 => 4 2 1 50 5 3
)");
}

TEST_F(SelectTest, RowsKeepTheirPlace) {
  put(R"(
X 1 2:b 2 1:v/w~x//y 3:z 3 4 3:end
Y a 1:2 b 1:10 c 1:1a
)");
  EXPECT_EQ(rows("SELECT X", "1 3"), " v~w~x~~y,z  ,end");
  EXPECT_EQ(rows("SELECT X PAR-DECR 0", "1 3"), ",end  v~w~x~~y,z");
  EXPECT_EQ(rows("SELECT X", " 3  @ID "), ",1 z,2 ,3 end,4");
  EXPECT_EQ(rows(R"(SELECT X AVEC 3 AND AVEC 0 <> "4")", "9"), "");
  // 2 < 10 < "1a" < 2: no order satisfies every pair, but every row comes once.
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
