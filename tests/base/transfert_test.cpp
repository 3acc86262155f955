// A base moved from a file to a server and back.

#include <gtest/gtest.h>
#include <signal.h>

#include <chrono>
#include <sstream>
#include <thread>

#include "base/executer.h"
#include "support/enfant.h"
#include "support/serveur.h"
#include "support/temp_dir.h"

namespace {

class TransfertPostgres : public testing::Test {
 protected:
  // What the tool answers, its messages included.
  std::string Dire(const std::vector<std::string>& commande, int code = 0) {
    std::istringstream entree;
    std::ostringstream sortie;
    EXPECT_EQ(base::executer(commande, entree, sortie, sortie), code) << sortie.str();
    return sortie.str();
  }

  support::Serveur& serveur_ = support::Serveur::Commun();
  support::TempDir dossier_;
  std::string fichier_ = dossier_.Chemin("a.contrats");
  std::string retour_ = dossier_.Chemin("b.contrats");
};

TEST_F(TransfertPostgres, UneBaseRevientTelleQuelle) {
  Dire({"demo", fichier_, "--aidants", "60", "--graine", "1"});
  for (const char* item : {"[\"a\"]", "[\"b\"]"}) {
    Dire({"ecrire", fichier_, "PAYS", "999", "--item", item});
  }
  Dire({"supprimer", fichier_, "PAYS", "999"});
  std::string adresse = serveur_.NouvelleBase();
  adresse.replace(adresse.find("essai@"), 5, "essai:sesame");
  const std::string copie = Dire({"copier", fichier_, adresse});
  EXPECT_EQ(copie.find("sesame"), std::string::npos);
  EXPECT_NE(copie.find("2 anciens textes."), std::string::npos) << copie;
  // Not over what is there, in either way.
  Dire({"copier", fichier_, adresse}, 1);
  Dire({"copier", adresse, fichier_}, 3);
  EXPECT_NE(Dire({"verifier", adresse}).find("aucune anomalie"), std::string::npos);
  Dire({"copier", adresse, retour_});
  const std::string textes = Dire({"exporter", fichier_});
  for (const std::string& base : {adresse, retour_}) {
    EXPECT_EQ(Dire({"exporter", base}), textes);
    EXPECT_EQ(Dire({"historique", base, "PAYS", "999", "--json"}),
              Dire({"historique", fichier_, "PAYS", "999", "--json"}));
  }
  EXPECT_EQ(Dire({"creer", adresse}, 3).find("sesame"), std::string::npos);
  Dire({"restaurer", adresse, fichier_}, 2);
}

// The server or the program dies on the way, at one moment or another: the copy is whole or not
// there, and the same command makes it or says that it is.
TEST_F(TransfertPostgres, ACopyThatDiesIsWholeOrNotThere) {
  Dire({"demo", fichier_, "--aidants", "150", "--graine", "1"});
  const std::string textes = Dire({"exporter", fichier_});
  const std::string pleine = serveur_.NouvelleBase();
  Dire({"copier", fichier_, pleine});
  const auto copier = [](const std::string& de, const std::string& vers, std::ostream& sortie) {
    std::istringstream entree;
    return base::executer({"copier", de, vers}, entree, sortie, sortie);
  };
  for (int tour = 0; tour < 16; ++tour) {
    SCOPED_TRACE(tour);
    const bool aller = tour % 2 == 0;
    const bool programme = tour % 4 < 2;
    const std::string vers =
        aller ? serveur_.NouvelleBase() : dossier_.Chemin(std::to_string(tour));
    const std::string& de = aller ? fichier_ : pleine;
    const pid_t enfant = support::Lancer([&] {
      std::ostringstream sortie;
      if (copier(de, vers, sortie) != 0) raise(SIGTERM);
    });
    std::this_thread::sleep_for(std::chrono::milliseconds(5 + 20 * tour));
    programme ? void(kill(enfant, SIGKILL)) : serveur_.Arreter();
    const bool finie = support::Attendre(enfant) == 0;
    if (!programme) serveur_.Demarrer();
    std::ostringstream sortie;
    const int code = copier(de, vers, sortie);
    if (finie || code != 0) {
      EXPECT_EQ(code, aller ? 1 : 3) << sortie.str();
      EXPECT_NE(sortie.str().find(aller ? "elle y est entière" : "il y a déjà un fichier"),
                std::string::npos)
          << sortie.str();
    }
    EXPECT_EQ(Dire({"exporter", vers}), textes);
  }
}

// What was made there before, by another, is told apart from what is copied.
TEST_F(TransfertPostgres, UneCopieQuiDiffereNEnEstPasUne) {
  Dire({"demo", fichier_, "--aidants", "5", "--graine", "1"});
  const std::string adresse = serveur_.NouvelleBase();
  Dire({"creer", adresse});
  serveur_.Sql(adresse,
               "INSERT INTO contrats.ancien VALUES('PAYS', '1', 1, '', '2026', 'x', true, 0)");
  const std::string refus = Dire({"copier", fichier_, adresse}, 3);
  EXPECT_NE(refus.find("ne se relit pas"), std::string::npos) << refus;
}

}  // namespace
