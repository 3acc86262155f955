// What the data tool says and does about indexes.

#include <gtest/gtest.h>

#include <sstream>

#include "base/executer.h"
#include "data/index.h"
#include "data/poste.h"
#include "storage/sqlite.h"
#include "support/sql.h"
#include "support/table.h"
#include "support/temp_dir.h"

namespace {

class IndexOutilTest : public testing::Test {
 protected:
  IndexOutilTest() {
    Outil({"creer"});
    Outil({"ecrire", "CIVILAIDANT", "00001", "--item", R"(["","Martin","Rose"])"});
    Outil({"ecrire", "CONTRAT", "00001001", "--item", "[]"});
    // More than are worth an index when all of them are asked for.
    auto store = storage::SqliteStorage::Ouvrir(base_, data::PosteFixe(21511));
    for (int i = 100; i < 200; ++i) {
      store->Put("TPSMOI", "00001" + std::to_string(i),
                 "\x1e\x1e\x1e"
                 "0000100" +
                     std::to_string(i % 10));
    }
  }

  // One terminal: results and messages in one text.
  std::string Outil(std::vector<std::string> args) {
    args.insert(args.begin() + 1, base_);
    std::istringstream entree;
    std::ostringstream ecran;
    code_ = base::executer(args, entree, ecran, ecran);
    return ecran.str();
  }
  void Sql(const char* requete) const { support::sql(base_, requete); }

  support::TempDir dossier_;
  std::string base_ = dossier_.Chemin("essai.contrats");
  int code_ = 0;
};

TEST_F(IndexOutilTest, PlanDitCommentLaQuestionSeraitTraitee) {
  for (const auto& [question, attendu] : support::table<2>("base/plans.md", "Les plans")) {
    std::string plan = Outil({"select", support::code(question), "--plan"});
    for (std::size_t n; (n = plan.find('\n')) != std::string::npos;) plan.replace(n, 1, " / ");
    EXPECT_EQ(plan, attendu + " / ");
  }
}

TEST_F(IndexOutilTest, VerifierCompareEtReparerRefait) {
  Sql("DELETE FROM entree WHERE cle = '00001'");
  const std::string constats = Outil({"verifier"});
  EXPECT_NE(constats.find("CIVILAIDANT\t00001\tl'index NomPrenomAidant ne mène pas à cet article "
                          "par « MARTIN ROSE » : la commande reparer refait les index\n"),
            std::string::npos)
      << constats;
  EXPECT_EQ(code_, 1);
  EXPECT_EQ(Outil({"reparer"}), "Les index de " + base_ + " sont refaits.\n");
  EXPECT_EQ(Outil({"verifier"}).find("index"), std::string::npos);
}

TEST_F(IndexOutilTest, UneBaseDAvantEstDiteSansIndex) {
  Sql("DROP TABLE entree; DROP TABLE indice; PRAGMA user_version = 1");
  EXPECT_EQ(Outil({"select", R"(SELECT TPSMOI AVEC 4 = "00001001")", "--plan"}),
            "parcours du fichier TPSMOI, clés : toutes\n");
  EXPECT_NE(Outil({"verifier"}).find("Cette base n'a pas d'index"), std::string::npos);
  Outil({"ecrire", "PAYS", "001", "--item", "[]"});
  EXPECT_EQ(Outil({"verifier"}).find("n'a pas d'index"), std::string::npos);
}

}  // namespace
