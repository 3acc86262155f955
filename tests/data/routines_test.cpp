#include "data/routines.h"

#include <gtest/gtest.h>

#include <algorithm>

#include "data/db.h"
#include "storage/memory.h"

namespace data {
namespace {

constexpr const char* intervention = "000010001020000001MEN10830";

class RoutinesTest : public testing::Test {
 protected:
  RoutinesTest() {
    put("CIVILAIDE", "00010", {"", "Martin", "Rose"});
    put("CIVILAIDANT", "00002", {"", "Durand", "Anne"});
    // 21246 is Monday 02/03/2026.
    put("TPSEXCEPTIONS", "00002212470833", {intervention});
    put("TPSEXCEPTIONS", "00003212461400", {intervention});
    put("TPSEXCEPTIONS", "00002212510850", {intervention});
    put("TPSEXCEPTIONS", "00002212480850", {"another"});
  }

  void put(const char* file, const char* key, std::initializer_list<const char*> attributes) {
    CItem item = db_.OpenFile(file).NewItem(key);
    int a = 0;
    for (const char* text : attributes) item.Set(++a, text);
    item.DBWrite();
  }

  // The answer's attributes parted by "|", or "refus: " and the message.
  std::string call(std::initializer_list<const char*> parameters,
                   const char* routine = "REMPLRECURSIF") {
    CItem request;
    int a = 0;
    for (const char* text : parameters) request.Set(++a, text);
    long status = 7;
    try {
      std::string answer = db_.CallRoutine(routine, status, request.Text()).Text();
      EXPECT_EQ(status, 0);
      std::replace(answer.begin(), answer.end(), SepAttribut, '|');
      return answer;
    } catch (const StoreError& error) {
      EXPECT_EQ(error.Numero(), NumeroErreur::Question);
      return std::string("refus: ") + error.what();
    }
  }

  void execute(std::string_view command) {
    long status = 7;
    EXPECT_EQ(db_.Execute(CItem(command).Text(), "", status).Text(), "");
    EXPECT_EQ(status, 0);
  }

  PosteFixe poste_{21511};
  Db db_{std::make_shared<storage::MemoryStorage>(poste_)};
};

TEST_F(RoutinesTest, ReplacementsOfASeries) {
  const std::string monday = "Lundi 02/03/2026 à 14,00 : 00003 chez Martin Rose";
  const std::string tuesday = "Mardi 03/03/2026 à 08,33 : Durand Anne chez Martin Rose";
  const std::string both = monday + '|' + tuesday;
  // Cut short: last day 21250 becomes 21245; lengthened: 21246 becomes 21247.
  EXPECT_EQ(call({intervention, "21250", "21246", "AFAIRE", "TEST"}), "REMPL1|" + both);
  EXPECT_EQ(call({intervention, "21246", "21248", "REMPL1", "TEST"}), both);
  EXPECT_EQ(call({intervention, "21247", "21247", "REMPL1"}), tuesday);
  EXPECT_EQ(call({intervention, "21246", "21247", "REMPL1"}), monday);
  EXPECT_EQ(call({intervention, "21252", "21260", "REMPL1"}), "");
  EXPECT_EQ(call({"00001", "21252", "21260", "AFAIRE"}), "REMPL2");

  CItem parameters = db_.OpenFile("TPSPARAM").NewItem("1");
  parameters.Set(20, "2");
  parameters.DBWrite();
  EXPECT_EQ(call({intervention, "21247", "21247", "REMPL2"}),
            "Mardi 03/03/2026 à 08h20 : Durand Anne chez Martin Rose");
}

TEST_F(RoutinesTest, ListsAreForgotten) {
  ASSERT_EQ(call({intervention, "1", "1", "AFAIRE"}), "REMPL1");
  ASSERT_EQ(call({intervention, "1", "1", "AFAIRE"}), "REMPL2");
  execute("EFFACER-LISTE REMPL1");
  execute("EFFACER-LISTE REMPL1");
  EXPECT_TRUE(call({intervention, "1", "1", "REMPL1"}).starts_with("refus: "));
  EXPECT_EQ(call({intervention, "1", "1", "REMPL2"}), "");
  execute("EFFACER-LISTE REMPL2");
  EXPECT_EQ(call({intervention, "1", "1", "AFAIRE"}), "REMPL3");
}

TEST_F(RoutinesTest, RefusalsSayWhatIsWrong) {
  EXPECT_NE(call({intervention, "1", "1", "AFAIRE"}, "REMPL").find("« REMPL »"), std::string::npos);
  EXPECT_NE(call({"", "1", "1", "AFAIRE"}).find("(attribut 1)"), std::string::npos);
  EXPECT_NE(call({"a\" OR AVEC 1", "1", "1", "AFAIRE"}).find("(attribut 1)"), std::string::npos);
  EXPECT_NE(call({intervention, "", "1", "AFAIRE"}).find("(attribut 2)"), std::string::npos);
  EXPECT_NE(call({intervention, "1", "1x", "AFAIRE"}).find("« 1x » (attribut 3)"),
            std::string::npos);
  EXPECT_NE(call({intervention, "1", "1"}).find("(attribut 4)"), std::string::npos);
  for (const char* command : {"", "EFFACER-LISTE", "EFFACER-LISTE A B", "effacer-liste A"}) {
    long status = 0;
    EXPECT_THROW(db_.Execute(CItem(command).Text(), "", status), StoreError) << command;
  }
  // A refused first call made no list.
  EXPECT_EQ(call({intervention, "1", "1", "AFAIRE"}), "REMPL1");
}

TEST_F(RoutinesTest, FilesReadAndWrite) {
  const DbFile file = db_.OpenFile("PAYS");
  CItem item("kept");
  for (const char* key : {"", "FR"}) {
    try {
      item = file.Read(key);
      ADD_FAILURE() << key;
    } catch (const StoreError& error) {
      EXPECT_TRUE(error.EstNonTrouve());
      EXPECT_EQ(error.Fichier() + '/' + error.Cle(), std::string("PAYS/") + key);
    }
    EXPECT_FALSE(file.Lire(key, item));
    file.DeleteItem(key);
  }
  EXPECT_EQ(item.Text(), "kept");

  put("PAYS", "FR", {"France"});
  EXPECT_EQ(file.Read("FR")(1), "France");
  CItem fresh = file.NewItem("FR");
  EXPECT_EQ(fresh(0) + fresh.Text(), "FR");
  EXPECT_EQ(file.Read("FR")(1), "France");
  fresh.DBWrite();
  EXPECT_TRUE(file.Lire("FR", item) && item.Vide());
  // A copy writes under the same key, a changed text too; an item of no file cannot.
  fresh.SetText("Gaule");
  const CItem copy = fresh;
  fresh.Set(1, "Francie");
  fresh.DBWriteU();
  EXPECT_EQ(file.Read("FR")(1) + copy(0, 1) + copy(0, 2), "FrancieFR");
  copy.DBWrite();
  EXPECT_EQ(file.Read("FR")(1), "Gaule");
  try {
    CItem("a").DBWrite();
    ADD_FAILURE() << "an unattached item was written";
  } catch (const StoreError& error) {
    EXPECT_EQ(error.Numero(), NumeroErreur::NonAttache);
  }
  file.DeleteItem("FR");
  EXPECT_FALSE(file.Lire("FR", item));

  EXPECT_THROW(DbFile().Read("FR"), StoreError);
  EXPECT_THROW(db_.OpenFile("pays"), StoreError);
  CItem request;
  for (const char* text : {"SSELECT PAYS", "PAYS", "0 1"}) request.Append(text);
  put("PAYS", "BE", {"Belgique"});
  long status = 7;
  const CItem rows = db_.Select(request.Text(), "", status);
  EXPECT_EQ(rows(1, 1) + rows(1, 2) + std::to_string(rows.DCount()), "BEBelgique1");
  EXPECT_EQ(status, 0);
}

}  // namespace
}  // namespace data
