// The pilot's process is killed next to every write of a save or a deletion, on a real file and on
// a server.
// What was acknowledged stands, nothing else does: the contract with its number and its link, or
// nothing at all. The data tool accepts the file, and the next process brings the work to its end.

#include <gmock/gmock.h>
#include <sys/wait.h>

#include <filesystem>
#include <map>
#include <optional>
#include <set>
#include <sstream>

#include "base_demo.h"
#include "pilote/programme.h"
#include "storage/ouvrir.h"
#include "support/killing_storage.h"
#include "support/serveur.h"
#include "support/temp_dir.h"

namespace pilote {
namespace {

using Quand = support::KillingStorage::Quand;
// Text by "FICHIER CLE".
using Etat = std::map<std::string, std::string>;

// The creation of a contract, and another one that no contract stands in the way of: the three
// blocks under a title of arrets.md.
struct Route {
  explicit Route(std::string aidant_) : aidant(std::move(aidant_)) {}
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

struct Modification;

// On "fichier" or "postgres".
class Arret : public testing::TestWithParam<const char*> {
 protected:
  Arret() {
    if (SurServeur()) base = Serveur().NouvelleBase();
    creerBaseDemo(base);
    initial = Lire(base);
  }

  static support::Serveur& Serveur() { return support::Serveur::Commun(); }
  static bool SurServeur() { return GetParam() == std::string("postgres"); }
  static Etat Lire(const std::string& chemin) {
    Etat etat;
    const data::PosteSysteme poste;
    storage::OptionsOuverture options;
    options.lecture = true;
    const auto stockage = storage::ouvrir(chemin, poste, options);
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
  void Remettre() {
    if (SurServeur()) {
      essai = Serveur().Copie(base);
    } else {
      Copier(base, essai);
    }
    std::filesystem::remove(journal);
  }

  std::string Nouveaux() const { return constatsNouveaux(base, essai); }
  void EprouverArrets(const Route& route);
  std::string Manquants(const Route& route, Etat etat, const Etat& entier);
  void ControlerArret(const Route& route, const Etat& entier);
  void Recommencer(const Route& route, const Etat& entier);
  void Continuer(const Route& route);
  void EprouverModification(const Modification& m);

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

TEST_P(Arret, PendantLaRepriseDUnContrat) {
  EprouverArrets({"00003", "Reprise", "002", "003"});
}

// Contract, mark of the follow-up, mark of the index, then the amendment in it: what stands is a
// beginning of that order, and the next amendment follows whatever was lost.
TEST_P(Arret, PendantLAjoutDUnAvenant) {
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

TEST_P(Arret, PendantLaCreationPourUnParticulier) {
  EprouverArrets({"00002", "Particulier", "001", "002"});
}

// A contract on file that is ended, shortened, unlinked or deleted.
struct Modification {
  const char* nom;
  const char* aidant;
  std::string acte;     // up to what stores it
  const char* rapport;  // the report that stands before it while the planning has something to lose
  std::string reprise;  // the same once the contract is stored: what comes behind it is completed
};

std::string ouvrir(const std::string& debut) {
  return "cliquer Opt_TousValid\ncliquer Cmd_Recherche\nchoisir Lst_DatDebContrat " + debut +
         "\ndouble Lst_DatDebContrat\n";
}
std::string finir(const std::string& debut, const std::string& dates) {
  return ouvrir(debut) + "onglet 4\n" + dates + "cliquer Cmd_OK\n";
}
std::string confirmer(const std::string& debut) {
  return ouvrir(debut) + "cliquer Cmd_OK\nforme Ctr_Contrat\naucun-message\n";
}
const std::string Novembre = "taper Txt_DateFinContrat 30/11/2026\n";
const std::string Raccourci = Novembre + "taper Txt_DernJrWContrat 30/11/2026\n";

const Modification Modifications[] = {
    {"end with its missions", "00010",
     finir("01/03/2024",
           "taper Txt_DatNotifContrat 15/11/2026\n"
           "choisir Cbo_MotifFinContrat \"Démission avec préavis\"\n"
           "taper Txt_DernJrWContrat 15/11/2026\n"),
     "", confirmer("01/03/2024")},
    {"open-ended, interventions cut and deleted", "00013", finir("01/01/2026", Raccourci),
     "forme Frm_AnomaliesAjoutgraph\ncliquer Cmd_Ok\n", confirmer("01/01/2026")},
    {"fixed term, planning left without contract", "00014",
     finir("01/09/2026", Novembre + "taper Txt_DatNotifContrat 20/11/2026\n" + Raccourci),
     "forme Frm_AnomaliesAjoutgraph\ncliquer Cmd_Non\n", confirmer("01/09/2026")},
    {"leave unlinked by hand", "00015",
     ouvrir("01/07/2026") + "onglet 3\ncliquer Cac_RepriseConges\ncliquer Cmd_OK\n", "",
     confirmer("01/07/2026")},
    {"leave unlinked by the last payslip", "00016", finir("01/01/2026", "barre Bdh_Bulletin 0\n"),
     "", confirmer("01/01/2026")},
    {"deletion", "00012",
     ouvrir("01/04/2026") + "onglet 4\nrepondre OUI\ncliquer Cmd_SupprimerContrat\n", "",
     "cliquer Opt_TousValid\ncliquer Cmd_Recherche\n"
     "verifier Lst_DatDebContrat lignes \"01/07/2026|01/05/2026|02/03/2026|02/02/2026|"
     "05/01/2026\"\n"}};

// The texts of the files whose names begin so.
Etat partie(const Etat& etat, const std::string& fichiers) {
  Etat seuls;
  for (const auto& [article, texte] : etat) {
    if (article.starts_with(fichiers)) seuls[article] = texte;
  }
  return seuls;
}

// What was acknowledged stands, the links of leave point both ways or not at all, and the clerk who
// does it again ends in the records of one who was never interrupted.
void Arret::EprouverModification(const Modification& m) {
  SCOPED_TRACE(m.nom);
  const Route route(m.aidant);
  Remettre();
  ASSERT_EQ(Jouer(route, m.acte + m.rapport), Tenu);
  const Etat entier = Lire(essai);
  ASSERT_EQ(Nouveaux(), "");
  const std::string fait = lireTout(journal);
  const auto ecritures = std::count(fait.begin(), fait.end(), '\n');
  ASSERT_GE(ecritures, 3);
  for (int n = 1; n <= ecritures; ++n) {
    for (const Quand quand : {Quand::Avant, Quand::Apres}) {
      SCOPED_TRACE((quand == Quand::Avant ? "before write " : "after write ") + std::to_string(n));
      Remettre();
      ASSERT_EQ(Jouer(route, m.acte + m.rapport, n, quand), std::nullopt);
      std::set<std::string> ecrits;
      const Etat etat = Acquitte(ecrits);
      EXPECT_EQ(Lire(essai), etat);
      EXPECT_EQ(Nouveaux(), "");
      const bool planifie = partie(etat, "TPS") == partie(entier, "TPS");
      const bool enregistre = partie(etat, "CONTRAT ") == partie(entier, "CONTRAT ");
      const bool laisse = std::string(m.rapport).find("Cmd_Non") != std::string::npos;
      EXPECT_TRUE(planifie || !enregistre) << "the contract never goes before its planning";
      EXPECT_EQ(Jouer(route, enregistre            ? m.reprise
                             : planifie && !laisse ? m.acte
                                                   : m.acte + m.rapport),
                Tenu);
      EXPECT_EQ(Lire(essai), entier);
    }
  }
}

TEST_P(Arret, PendantUneModification) {
  for (const Modification& m : Modifications) EprouverModification(m);
}

INSTANTIATE_TEST_SUITE_P(Sur, Arret, testing::Values("fichier", "postgres"),
                         [](const auto& sur) { return std::string(sur.param); });

}  // namespace
}  // namespace pilote
