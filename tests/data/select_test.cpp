#include "data/select.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <fstream>
#include <memory>
#include <sstream>

#include "data/db.h"
#include "storage/memory.h"

namespace data {
namespace {

class SelectTest : public testing::Test {
 protected:
  // One file a line, in the form of select.txt.
  void put(const std::string& line) {
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

  void check(const std::string& line) {
    const auto arrow = line.find(" =>");
    const auto close = line.find('}');
    const auto begin = close == std::string::npos ? 0 : close + 1;
    const auto fields = begin == 0 ? "0" : line.substr(1, close - 1);
    const std::string expected = line.size() > arrow + 4 ? line.substr(arrow + 4) : "";
    EXPECT_EQ(rows(line.substr(begin, arrow - begin), fields), expected) << line;
  }
  void clear() {
    storage_ = std::make_shared<storage::MemoryStorage>(poste_);
    db_ = Db(storage_);
  }

  PosteFixe poste_{21511};
  std::shared_ptr<Storage> storage_ = std::make_shared<storage::MemoryStorage>(poste_);
  Db db_{storage_};
};

TEST_F(SelectTest, EveryQuestionOfTheSuite) {
  std::ifstream lines(CONTRATS_SOURCE_DIR "/tests/data/select.txt");
  int questions = 0;
  for (std::string line; std::getline(lines, line);) {
    if (line.starts_with('#')) {
      clear();
    } else if (line.find(" =>") == std::string::npos) {
      put(line);
    } else {
      check(line);
      ++questions;
    }
  }
  EXPECT_GT(questions, 60);
}

TEST_F(SelectTest, RowsKeepTheirPlace) {
  put("X 1 2:b 2 1:v/w~x//y 3:z 3 4 3:end");
  put("Y a 1:2 b 1:10 c 1:1a");

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
