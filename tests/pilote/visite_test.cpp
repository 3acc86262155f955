// Looking at a contract changes nothing: every contract of the demonstration data is opened, each
// of its tabs is shown, and it is left again.

#include <gtest/gtest.h>

#include "data/layouts/fichiers.h"
#include "demo/generateur.h"
#include "editor/editeur.h"
#include "screen/headless/hote.h"
#include "screen/user.h"
#include "storage/memory.h"

namespace {

constexpr long Aujourdhui = 21511;  // 22/11/2026
constexpr int Aidants = 60;

// Every record of the files that hold contracts and what follows them.
std::string contenu(storage::MemoryStorage& memoire) {
  std::string texte;
  for (const auto fichier : {data::fichier::CONTRAT, data::fichier::DSNEVENEMENT,
                             data::fichier::TPSDETAILSINTERV, data::fichier::ACTUSUIVICONTRAT}) {
    memoire.Scan(fichier, data::KeyRange::Tout(), [&](auto cle, auto lu) {
      texte += std::string(cle) + "=" + std::string(lu) + "\n";
      return true;
    });
  }
  return texte;
}

TEST(Visite, OuvrirMontrerEtQuitterNeDemandeRien) {
  screen::headless::Hote hote{Aujourdhui};
  auto memoire = std::make_shared<storage::MemoryStorage>(hote.poste);
  demo::genererDemo(*memoire, {.aidants = Aidants, .graine = 1, .aujourdhui = Aujourdhui});
  std::vector<std::string> cles;
  memoire->Scan(data::fichier::CONTRAT, data::KeyRange::Tout(), [&](auto cle, auto) {
    cles.emplace_back(cle);
    return true;
  });
  ASSERT_GT(cles.size(), 100u);
  const std::string avant = contenu(*memoire);

  data::Db db{memoire};
  session::Session session{hote.poste};
  session::DroitsUniformes droits{2};
  session.Db = &db;
  session.W_Droits = &droits;
  session.OptionCompteur999 = true;
  session.OuvrirFichiers();
  editor::Frm_ElementsContrat editeur(hote.platform, session);
  for (const auto& cle : cles) {
    session.CodeAidant = cle.substr(0, 5);
    editeur.Ouvrir(cle);
    editeur.Show();
    screen::User clerc(editeur);
    for (int onglet = 4; onglet >= 0; --onglet) clerc.Onglet(editeur.Ong_Contrat, onglet);
    clerc.Cliquer(editeur.Cmd_Retour);
    std::string questions;
    while (const auto message = hote.messages.Prendre()) {
      if (message->Demande()) questions += message->texte;
    }
    EXPECT_EQ(questions, "") << cle;
    editeur.Hide();
  }
  EXPECT_EQ(contenu(*memoire), avant);
}

}  // namespace
