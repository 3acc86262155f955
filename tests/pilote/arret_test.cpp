// The pilot's process is killed next to every write of a save, on a real file. What was
// acknowledged stands, nothing else does: the contract with its number and its link, or nothing at
// all. The data tool accepts the file, and the next process brings the work to its end.

#include <gmock/gmock.h>
#include <sys/wait.h>

#include <filesystem>
#include <map>
#include <optional>
#include <set>
#include <sstream>

#include "base_demo.h"
#include "pilote/programme.h"
#include "storage/sqlite.h"
#include "support/killing_storage.h"
#include "support/temp_dir.h"

namespace pilote {
namespace {

using Quand = support::KillingStorage::Quand;
// Text by "FICHIER CLE".
using Etat = std::map<std::string, std::string>;

// The creation of a contract, and another one that no contract stands in the way of: the three
// blocks under a title of arrets.md.
struct Route {
  Route(std::string aidant_, const std::string& titre, std::string numero_, std::string suivant_)
      : aidant(std::move(aidant_)), numero(std::move(numero_)), suivant(std::move(suivant_)) {
    std::istringstream lignes(lireTout(CONTRATS_SOURCE_DIR "/tests/pilote/arrets.md"));
    std::string ligne;
    while (std::getline(lignes, ligne) && ligne != "# " + titre) {
    }
    for (std::string* const bloc : {&creation, &dialogue, &ailleurs}) {
      while (std::getline(lignes, ligne) && ligne != "```scenario") {
      }
      while (std::getline(lignes, ligne) && ligne != "```") *bloc += ligne + "\n";
    }
  }
  std::string Contrat() const { return "CONTRAT " + aidant + numero; }

  std::string aidant, numero, suivant;
  std::string creation, dialogue, ailleurs;
};

class Arret : public testing::Test {
 protected:
  Arret() {
    creerBaseDemo(base);
    initial = Lire(base);
  }

  static Etat Lire(const std::string& chemin) {
    Etat etat;
    const data::PosteSysteme poste;
    const auto stockage = storage::SqliteStorage::OuvrirEnLecture(chemin, poste);
    for (const auto& fichier : stockage->Fichiers()) {
      stockage->Scan(fichier.nom, data::KeyRange::Tout(), [&](auto cle, auto texte) {
        etat[fichier.nom + " " + std::string(cle)] = texte;
        return true;
      });
    }
    return etat;
  }
  // Plays in a process of its own, on the file `essai`. Nothing comes back when it was killed.
  std::optional<int> Jouer(const Route& route, const std::string& scenario, int ecriture = 0,
                           Quand quand = Quand::Avant) const {
    const pid_t enfant = fork();
    if (enfant == 0) _exit(JouerIci(route, scenario, ecriture, quand));
    int fin = 0;
    EXPECT_EQ(waitpid(enfant, &fin, 0), enfant);
    if (WIFSIGNALED(fin)) {
      EXPECT_EQ(WTERMSIG(fin), SIGKILL);
      return std::nullopt;
    }
    return WEXITSTATUS(fin);
  }

  // What `journal` acknowledges, done to the records as they were; `ecrits` are those it names.
  Etat Acquitte(std::set<std::string>& ecrits) const {
    Etat etat = initial;
    std::istringstream lignes(lireTout(journal));
    std::string ligne;
    while (std::getline(lignes, ligne)) {
      const auto finCle = ligne.find(' ', ligne.find(' ') + 1);
      const std::string article = ligne.substr(0, finCle);
      ecrits.insert(article);
      if (finCle == std::string::npos) {
        etat.erase(article);
      } else {
        etat[article] = ligne.substr(finCle + 1);
      }
    }
    return etat;
  }

  // A file that no process has open, with the writes that a killed one left beside it.
  static void Copier(const std::string& source, const std::string& copie) {
    using std::filesystem::copy_options;
    for (const char* suite : {"-wal", "-shm"}) std::filesystem::remove(copie + suite);
    std::filesystem::copy_file(source, copie, copy_options::overwrite_existing);
    if (std::filesystem::exists(source + "-wal")) {
      std::filesystem::copy_file(source + "-wal", copie + "-wal");
    }
  }
  void Remettre() const {
    Copier(base, essai);
    std::filesystem::remove(journal);
  }

  std::string Nouveaux() const { return constatsNouveaux(base, essai); }
  void EprouverArrets(const Route& route);
  std::string Manquants(const Route& route, Etat etat, const Etat& entier);
  void ControlerArret(const Route& route, const Etat& entier);
  void Recommencer(const Route& route, const Etat& entier);
  void Continuer(const Route& route);

  support::TempDir dossier;
  std::string base = dossier.Chemin("base.contrats");
  std::string essai = dossier.Chemin("essai.contrats");
  std::string journal = dossier.Chemin("journal");
  Etat initial;

 private:
  int JouerIci(const Route& route, const std::string& scenario, int ecriture, Quand quand) const {
    std::istringstream entree(scenario);
    std::ostringstream sortie;
    const auto ouvrir = [&](const std::string& chemin, const data::Poste& poste) {
      return std::make_unique<support::KillingStorage>(ouvrirBase(chemin, poste), ecriture, quand,
                                                       journal);
    };
    return executer({"--base", essai, "--aidant", route.aidant, "--date", "22/11/2026"}, entree,
                    sortie, std::cerr, ouvrir);
  }
};

// What the check says of a contract that stands without what is written last.
std::string Arret::Manquants(const Route& route, Etat etat, const Etat& entier) {
  std::string lignes;
  if (!etat.contains(route.Contrat())) return lignes;
  for (const auto& [article, texte] : entier) {
    const std::string fichier = article.substr(0, article.find(' '));
    const std::string cle = article.substr(fichier.size() + 1);
    const bool manque = !initial.contains(article) && !etat.contains(article);
    const std::string debut =
        "CONTRAT\t" + route.aidant + route.numero + "\tle contrat n'est pas dans ";
    if (manque && fichier == "CONTRATINV") lignes += debut + "CONTRATINV « " + cle + " »\n";
    if (manque && fichier.starts_with("CONTRAT0")) {
      lignes.insert(0, debut + "son index " + fichier + "\n");
    }
  }
  return lignes;
}

void Arret::EprouverArrets(const Route& route) {
  Remettre();
  ASSERT_EQ(Jouer(route, route.creation + route.dialogue), Tenu);
  const Etat entier = Lire(essai);
  const std::string fait = lireTout(journal);
  const auto ecritures = std::count(fait.begin(), fait.end(), '\n');
  ASSERT_GT(ecritures, 6);
  for (int n = 1; n <= ecritures; ++n) {
    for (const Quand quand : {Quand::Avant, Quand::Apres}) {
      SCOPED_TRACE((quand == Quand::Avant ? "before write " : "after write ") + std::to_string(n));
      Remettre();
      ASSERT_EQ(Jouer(route, route.creation + route.dialogue, n, quand), std::nullopt);
      ControlerArret(route, entier);
    }
  }
}

void Arret::ControlerArret(const Route& route, const Etat& entier) {
  std::set<std::string> ecrits;
  const Etat etat = Acquitte(ecrits);
  EXPECT_EQ(Lire(essai), etat);
  EXPECT_EQ(Nouveaux(), Manquants(route, etat, entier));
  if (ecrits.contains(route.Contrat())) {
    Continuer(route);
  } else {
    EXPECT_EQ(Lire(essai), initial);
    Recommencer(route, entier);
  }
}

// The contract does not stand: entered again, it takes the number that it would have had.
void Arret::Recommencer(const Route& route, const Etat& entier) {
  EXPECT_EQ(Jouer(route, route.creation + route.dialogue + "aucun-message\n"), Tenu);
  EXPECT_EQ(Lire(essai), entier);
}

// The contract stands: it cannot be entered twice, and a later one never takes its place.
void Arret::Continuer(const Route& route) {
  const std::string texte = Lire(essai)[route.Contrat()];
  EXPECT_EQ(Jouer(route, route.creation + "message \"Création impossible car 2 contrats\"\n" +
                             "absent CONTRAT " + route.aidant + route.suivant + "\n" +
                             route.ailleurs + "aucun-message\n"),
            Tenu);
  Etat apres = Lire(essai);
  EXPECT_EQ(apres[route.Contrat()], texte);
  EXPECT_NE(apres["CONTRAT " + route.aidant + route.suivant], "");
  EXPECT_EQ(Nouveaux().find("CONTRAT\t" + route.aidant + route.suivant), std::string::npos);
}

TEST_F(Arret, PendantLaRepriseDUnContrat) {
  EprouverArrets({"00003", "Reprise", "002", "003"});
}

// Contract, mark of the follow-up, mark of the index, then the amendment in it: what stands is a
// beginning of that order, and the next amendment follows whatever was lost.
TEST_F(Arret, PendantLAjoutDUnAvenant) {
  const Route route{"00007", "Avenant", "001", ""};
  const auto ajouter = [&route](const char* effet) {
    std::string scenario = route.creation;
    return scenario.replace(scenario.find("EFFET"), 5, effet);
  };
  const std::string ordre[] = {"CONTRAT 00007001", "ACTUSUIVICONTRAT 00007",
                               "LIENAVENANT AVENANT00101", "AVENANT00101 0000700103"};
  for (int n = 1; n <= 4; ++n) {
    for (const Quand quand : {Quand::Avant, Quand::Apres}) {
      SCOPED_TRACE((quand == Quand::Avant ? "before write " : "after write ") + std::to_string(n));
      Remettre();
      ASSERT_EQ(Jouer(route, ajouter("01/01/2027"), n, quand), std::nullopt);
      std::set<std::string> ecrits;
      EXPECT_EQ(Lire(essai), Acquitte(ecrits));
      // The contract is written in a block, which is not done yet after its only write.
      const int faits = quand == Quand::Avant || n == 1 ? n - 1 : n;
      EXPECT_EQ(ecrits, std::set<std::string>(ordre, ordre + faits));
      EXPECT_EQ(Nouveaux(), "");
      EXPECT_EQ(Jouer(route, ajouter("01/02/2027")), Tenu);
      EXPECT_TRUE(Lire(essai).contains(faits == 0 ? ordre[3] : "AVENANT00101 0000700104"));
      EXPECT_EQ(Nouveaux(), "");
    }
  }
}

TEST_F(Arret, PendantLaCreationPourUnParticulier) {
  EprouverArrets({"00002", "Particulier", "001", "002"});
}

}  // namespace
}  // namespace pilote
