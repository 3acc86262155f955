// What the data floor refuses before anything is stored.

#include "data/db.h"

#include <gtest/gtest.h>

#include "data/layouts/contrat.h"
#include "storage/memory.h"

namespace data {
namespace {

// A contract's entity and agreement name the index files that are written after it.
TEST(Db, ANewContractWhoseCodesNameNoIndexIsRefusedWhole) {
  const PosteFixe poste(21511);
  const auto store = std::make_shared<storage::MemoryStorage>(poste);
  Db db(store);
  const DbFile contrats = db.OpenFile("CONTRAT");
  const struct {
    const char *entite, *convention, *dit;
  } cas[] = {{"001", "01", ""},        {"A01", "0B", ""},       {"", "", ""},
             {"a01", "01", "« a01 »"}, {"001", "0-", "« 0- »"}, {"é1", "01", "« é1 »"}};
  for (const auto& c : cas) {
    SCOPED_TRACE(c.entite);
    CItem contrat = contrats.NewItem("00001001");
    contrat.Set(Contrat::Association, c.entite);
    contrat.Set(Contrat::Convention, c.convention);
    contrat.Set(Contrat::DateDebut, "20000");
    std::string message;
    try {
      store->EnUnBloc([&] {
        CItem aidant = db.OpenFile("CIVILAIDANT").NewItem("00001");
        aidant.DBWrite();
        contrat.DBWrite();
      });
    } catch (const StoreError& refus) {
      EXPECT_EQ(refus.Numero(), NumeroErreur::TexteRefuse);
      message = refus.what();
    }
    EXPECT_EQ(message.empty(), *c.dit == '\0') << message;
    EXPECT_NE(message.find(c.dit), std::string::npos) << message;
    std::string texte;
    EXPECT_EQ(store->Get("CONTRAT", "00001001", texte), message.empty());
    store->Erase("CONTRAT", "00001001");
  }
  // One that came from elsewhere can still be changed.
  store->Put("CONTRAT", "00001002",
             CItem("\x1e"
                   "a01")
                 .Text());
  CItem ancien = contrats.Read("00001002");
  ancien.Set(Contrat::DateFin, "20100");
  EXPECT_NO_THROW(ancien.DBWriteU());
}

}  // namespace
}  // namespace data
