// Looking is not changing: a contract that is opened, looked at on every tab and in every state,
// and left is the one on file, byte for byte, but for what stands in a table of visite.md.

#include <gtest/gtest.h>

#include <iterator>
#include <memory>
#include <set>
#include <sstream>

#include "demo/generateur.h"
#include "editor/editeur.h"
#include "screen/headless/hote.h"
#include "screen/user.h"
#include "storage/memory.h"
#include "support/table.h"

namespace {

constexpr long Aujourdhui = 21511;  // 22/11/2026

std::set<int> numeros(const std::string& texte) {
  std::istringstream mots(texte);
  return {std::istream_iterator<int>(mots), {}};
}

// Attributes that a visit rewrites on purpose.
std::set<int> Reecrits() {
  std::set<int> tous;
  for (const auto& [attributs, raison] :
       support::table<2>("pilote/visite.md", "Ce qu'une visite récrit exprès")) {
    tous.merge(numeros(attributs));
  }
  return tous;
}

class Visite : public ::testing::Test {
 protected:
  void preparer(int aidants) {
    demo::genererDemo(memoire, {.aidants = aidants, .graine = 1, .aujourdhui = Aujourdhui});
    session.Db = &db;
    session.OuvrirFichiers();
    // A clerk without full rights leaves without a question; what is on the screen is copied alike.
    session.W_Droits = &droits;
    editeur = std::make_unique<editor::Frm_ElementsContrat>(hote.platform, session);
  }
  // Opens, walks, leaves; the attributes that differ then.
  std::set<int> visiter(const std::string& cle) {
    session.CodeAidant = cle.substr(0, 5);
    editeur->Ouvrir(cle);
    editeur->Show();
    const data::CItem avant = editeur->Dossier().Initial;
    screen::User user(*editeur);
    const int onglets = static_cast<int>(editeur->Onglets().size());
    for (int n = 1; n < onglets; ++n) user.Onglet(editeur->Ong_Contrat, n);
    user.Onglet(editeur->Ong_Contrat, editor::Caracteristiques);
    auto& barre = dynamic_cast<screen::UpDown&>(*editeur->Find("Bdh_Avenant"));
    for (int n = 0; n <= barre.Max(); ++n) user.Barre(barre, n);
    user.Onglet(editeur->Ong_Contrat, editor::Origine);
    user.Cliquer(editeur->Cmd_Retour);
    EXPECT_FALSE(editeur->Visible()) << cle;
    const data::CItem& apres = editeur->Dossier().ItemContrat;
    std::set<int> differents;
    if (apres.Text() == avant.Text()) return differents;
    for (int a = 1; a <= std::max(avant.DCount(), apres.DCount()); ++a) {
      if (avant.Vue(a) != apres.Vue(a)) differents.insert(a);
    }
    return differents;
  }

  screen::headless::Hote hote{Aujourdhui};
  storage::MemoryStorage memoire{hote.poste};
  data::Db db{std::shared_ptr<data::Storage>(&memoire, [](auto*) {})};
  session::Session session{hote.poste};
  session::DroitsUniformes droits{1};
  std::unique_ptr<editor::Frm_ElementsContrat> editeur;
};

TEST_F(Visite, LaisseChaqueContratTelQuel) {
  preparer(2000);
  std::vector<std::string> cles;
  memoire.Scan("CONTRAT", data::KeyRange::Tout(), [&](auto cle, auto) {
    cles.emplace_back(cle);
    return true;
  });
  ASSERT_GT(cles.size(), 4000U);
  const std::set<int> reecrits = Reecrits();
  for (const auto& cle : cles) {
    for (const int a : visiter(cle)) {
      EXPECT_TRUE(reecrits.contains(a)) << "attribute " << a << " of " << cle;
    }
    if (HasFailure()) break;
  }
}

// Records that no clerk would have made: what is wrong in them stays as it is, and each line of the
// table has one that needs it.
TEST_F(Visite, NeChangeAucunContratBizarreHorsDeLaTable) {
  preparer(1);
  std::set<int> rencontres;
  for (const auto& [nom, attributs, reecrits] :
       support::table<3>("pilote/visite.md", "Des contrats que personne n'aurait faits")) {
    data::CItem contrat = db.OpenFile("CONTRAT").NewItem("00001900");
    auto tous = support::attributs(attributs);
    tous.merge(support::attributs(
        "1=01; 2=001; 3=001001; 4=I; 5=H; 6=P; 7=21000; 14=0; 15=21000; 28=1; 30=B"));
    for (const auto& [a, texte] : tous) contrat.Set(a, texte);
    contrat.DBWrite();
    const std::set<int> differents = visiter("00001900");
    EXPECT_EQ(differents, numeros(reecrits)) << nom;
    rencontres.insert(differents.begin(), differents.end());
  }
  EXPECT_EQ(rencontres, Reecrits()) << "each line of the table has a contract that needs it";
}

}  // namespace
