// tempete [--sur fichier|serveur] [--secondes N] [--postes N] [--graine G]
//
// Stations, each a process of its own, create, change, end and delete contracts of the same carers
// through the screens for a while, on one data file, on one server, or on both in turn. Then no
// contract that a station was told is stored may be missing, no number given twice, and the data
// tool's check must be silent. The summary counts what passed, what was refused, and how often a
// station was asked whose version of a contract stands.

#include <sys/wait.h>
#include <unistd.h>

#include <chrono>
#include <cstdlib>
#include <cstring>
#include <fstream>
#include <iostream>
#include <map>
#include <random>
#include <set>
#include <sstream>

#include "base/executer.h"
#include "data/db.h"
#include "data/layouts/contrat.h"
#include "data/layouts/voisins.h"
#include "demo/generateur.h"
#include "pilote/programme.h"
#include "storage/ouvrir.h"
#include "support/relais_storage.h"
#include "support/serveur.h"
#include "support/temp_dir.h"

namespace {

struct Options {
  std::string sur;
  int secondes = 4;
  int postes = 8;
  unsigned graine = std::random_device{}();
};

// All stations work on the same few carers, and go on to the next ones before their numbers, 999
// for each, are all given.
constexpr int AidantsDemo = 40;
constexpr std::size_t Ensemble = 4;
constexpr int SecondesEnsemble = 8;
constexpr int PremierEmployeur = 99100;
// Of the contracts that all stations change.
constexpr int Commun = PremierEmployeur + 99;

constexpr const char* PourCreer =
    "cliquer Cmd_Ajouter\ntaper Txt_ConvColContrat 02\ntaper Txt_AssocContrat 001\n"
    "taper Txt_EmplEtabContrat EMPLOYEUR\ntaper Txt_DatDebContrat 07/12/2026\n"
    "onglet 1\nchoisir Cbo_QualifContrat #0\ntaper Txt_DureeWContrat 1\n"
    "choisir Cbo_FreqWContrat Hebdo\ntaper Txt_TauxHorContrat 12,02\n"
    "onglet 2\ntaper Txt_ProfilContrat 210\nchoisir Cbo_Activite #0\ncliquer Cmd_OK\n"
    "forme Frm_ImpressionA4\ncliquer Cmd_Ok\nforme Ctr_Contrat\n";
constexpr const char* PourChanger =
    "onglet 1\ntaper Txt_TauxHorContrat TAUX\ncliquer Cmd_OK\nforme Ctr_Contrat\n";
constexpr const char* PourFinir =
    "onglet 4\ntaper Txt_DatNotifContrat 07/12/2026\n"
    "choisir Cbo_MotifFinContrat \"Rupture conventionnelle\"\n"
    "taper Txt_DateFinContrat 07/12/2026\ntaper Txt_DernJrWContrat 07/12/2026\n"
    "taper Txt_DateSignConvCol 07/12/2026\ncliquer Cmd_OK\nforme Ctr_Contrat\n";
constexpr const char* PourSupprimer =
    "onglet 4\nrepondre OUI\ncliquer Cmd_SupprimerContrat\nforme Ctr_Contrat\n";

// A person whom this station alone takes for an employer.
std::string employeurDe(int poste) {
  return std::to_string(PremierEmployeur + poste);
}

std::string employeurCommun() {
  return std::to_string(Commun);
}

std::string remplacer(std::string texte, const std::string& mot, const std::string& par) {
  return texte.replace(texte.find(mot), mot.size(), par);
}

// The store of one act. Its screens ask for the history of a contract when they ask the user whose
// version stands, and at no other time.
class Temoin : public support::RelaisStorage {
 public:
  Temoin(std::unique_ptr<data::Storage> dessous, int& questions)
      : RelaisStorage(*dessous), dessous_(std::move(dessous)), questions_(questions) {}

  std::vector<data::AncienTexte> Historique(std::string_view fichier,
                                            std::string_view cle) override {
    ++questions_;
    return RelaisStorage::Historique(fichier, cle);
  }

 private:
  std::unique_ptr<data::Storage> dessous_;
  int& questions_;
};

class Poste {
 public:
  Poste(const Options& options, std::string base, int numero, std::vector<std::string> aidants,
        std::ostream& journal)
      : options_(options),
        base_(std::move(base)),
        numero_(numero),
        aidants_(std::move(aidants)),
        journal_(journal),
        hasard_(options.graine + static_cast<unsigned>(numero)) {}

  void Travailler() {
    using Horloge = std::chrono::steady_clock;
    const auto debut = Horloge::now();
    while (Horloge::now() < debut + std::chrono::seconds(options_.secondes)) {
      premier_ = static_cast<std::size_t>((Horloge::now() - debut) /
                                          std::chrono::seconds(SecondesEnsemble)) *
                 Ensemble;
      UnActe();
    }
  }

  // Before the storm: what all stations then change at once. The carers who can have it.
  std::vector<std::string> CreerCommuns() {
    std::vector<std::string> aidants;
    for (const std::string& aidant : aidants_) {
      if (Jouer("creer", aidant, "", remplacer(PourCreer, "EMPLOYEUR", employeurCommun()))) {
        aidants.push_back(aidant);
      }
    }
    return aidants;
  }

 private:
  std::size_t Tirer(std::size_t n) { return hasard_() % n; }

  // One act of a clerk: a contract of its own, or what any station has made for the same carer, as
  // it stood a moment ago. Whoever comes too late is refused.
  void UnActe() {
    const std::string& aidant = aidants_[(premier_ + Tirer(Ensemble)) % aidants_.size()];
    const std::string mien = employeurDe(numero_);
    const Etat etat = Lire(aidant, mien);
    if (etat.contrat.empty() || etat.supprime) {
      if (!Jouer("creer", aidant, "", remplacer(PourCreer, "EMPLOYEUR", mien))) return;
      journal_ << "contrat " << Lire(aidant, mien).contrat << ' ' << mien << std::endl;
      return;
    }
    const std::size_t autre = Tirer(static_cast<std::size_t>(options_.postes) + 1);
    const Etat choisi = Tirer(2) == 0
                            ? etat
                            : Lire(aidant, autre == 0 ? employeurCommun()
                                                      : employeurDe(static_cast<int>(autre) - 1));
    if (choisi.contrat.empty() || choisi.supprime) return;
    if (Tirer(2) == 0 || autre == 0) {
      Changer(aidant, choisi.contrat);
    } else if (!choisi.fini) {
      Jouer("finir", aidant, choisi.contrat, Tranche() + PourFinir);
    } else {
      Jouer("supprimer", aidant, choisi.contrat, PourSupprimer);
    }
  }

  void Changer(const std::string& aidant, const std::string& contrat) {
    const std::string taux = "12," + std::to_string(10 + Tirer(80));
    Jouer("changer", aidant, contrat, Tranche() + remplacer(PourChanger, "TAUX", taux));
  }

  // What is answered if somebody else has changed the contract meanwhile.
  std::string Tranche() { return Tirer(2) == 0 ? "trancher GARDER\n" : "trancher REMPLACER\n"; }

  // False when the act was refused, as when another station has just ended the contract.
  bool Jouer(const char* acte, const std::string& aidant, const std::string& contrat,
             const std::string& scenario) {
    std::vector<std::string> arguments = {"--base", base_,    "--aidant",
                                          aidant,   "--date", "22/11/2026"};
    if (!contrat.empty()) arguments.insert(arguments.end(), {"--contrat", contrat});
    std::istringstream entree(scenario);
    std::ostringstream sortie;
    std::ostringstream erreurs;
    int questions = 0;
    const int code = pilote::executer(
        arguments, entree, sortie, erreurs, [&](const std::string& chemin, const auto& poste) {
          return std::make_unique<Temoin>(pilote::ouvrirBase(chemin, poste), questions);
        });
    for (; questions > 0; --questions) journal_ << "question " << acte << std::endl;
    journal_ << (code == 0 ? "fait " : "refuse ") << acte << std::endl;
    if (code == 0) return true;
    std::string erreur = erreurs.str();
    for (char& c : erreur) c = c == '\n' ? ' ' : c;
    journal_ << "motif " << acte << ' ' << contrat << ' ' << erreur << std::endl;
    return false;
  }

  struct Etat {
    std::string contrat;
    bool fini = false;
    bool supprime = false;
  };

  // The last contract of a carer with an employer, as it stands now.
  Etat Lire(const std::string& aidant, const std::string& employeur) {
    const data::PosteFixe poste(21511);
    storage::OptionsOuverture lecture;
    lecture.lecture = true;
    const auto magasin = storage::ouvrir(base_, poste, lecture);
    std::string texte;
    if (!magasin->Get("CONTRATINV", aidant + employeur, texte)) return {};
    const data::CItem inverse(texte);
    const std::string cle =
        aidant + inverse(data::ContratInv::Numeros, inverse.DCount(data::ContratInv::Numeros));
    if (!magasin->Get("CONTRAT", cle, texte)) return {};
    const data::CItem contrat(texte);
    return {cle, !contrat.Vue(data::Contrat::DateFin).empty(),
            !contrat.Vue(data::Contrat::Annule).empty()};
  }

  const Options& options_;
  std::string base_;
  int numero_;
  std::vector<std::string> aidants_;
  std::ostream& journal_;
  std::mt19937 hasard_;
  std::size_t premier_ = 0;  // of the carers that the stations work on now
};

std::vector<std::string> preparer(const std::string& base, const Options& options) {
  const data::PosteFixe poste(21511);
  const auto magasin = storage::ouvrir(base, poste);
  for (int p = 0; p <= options.postes; ++p) {
    data::CItem employeur;
    employeur.Set(data::CivilAide::Nom, "STATION " + std::to_string(p));
    magasin->Put("CIVILAIDE", p < options.postes ? employeurDe(p) : employeurCommun(),
                 employeur.Text());
  }
  std::ostringstream journal;
  std::vector<std::string> aidants;
  for (int n = 1; n <= AidantsDemo; ++n) aidants.push_back(demo::codePersonne(n));
  return Poste(options, base, 0, std::move(aidants), journal).CreerCommuns();
}

// What the stations were told, held against what stands. The number of faults. Nobody is refused a
// new contract; another station may have ended or deleted any other meanwhile.
int controler(const std::string& base, const std::string& journaux, int postes) {
  int fautes = 0;
  const auto faute = [&](const std::string& texte) {
    std::cout << "FAUTE : " << texte << '\n';
    ++fautes;
  };
  const data::PosteFixe poste(21511);
  const auto magasin = storage::ouvrir(base, poste);
  std::map<std::string, int> comptes;
  std::map<std::string, std::string> contrats;  // by key, its employer
  for (int p = 0; p < postes; ++p) {
    std::ifstream journal(journaux + std::to_string(p));
    for (std::string ligne; std::getline(journal, ligne);) {
      std::istringstream mots(ligne);
      std::string quoi;
      std::string cle;
      std::string employeur;
      mots >> quoi >> cle >> employeur;
      if (quoi != "contrat") {
        if (quoi == "motif" && cle == "creer") {
          faute(ligne);
        } else if (quoi != "motif") {
          ++comptes[quoi + " " + cle];
        }
        continue;
      }
      if (!contrats.emplace(cle, employeur).second) faute(cle + " donné deux fois");
      std::string texte;
      if (!magasin->Get("CONTRAT", cle, texte)) faute(cle + " manque");
      if (data::CItem(texte)(data::Contrat::Employeur) != employeur) {
        faute(cle + " n'est pas celui de " + employeur);
      }
    }
  }
  for (const auto& [quoi, compte] : comptes) std::cout << quoi << " : " << compte << '\n';
  for (const char* const acte : {"creer", "changer", "finir", "supprimer"}) {
    if (comptes[std::string("fait ") + acte] == 0) faute(std::string(acte) + " n'a jamais passé");
  }
  std::istringstream entree;
  std::ostringstream constats;
  if (base::executer({"verifier", base}, entree, constats, constats) != 0) faute(constats.str());
  return fautes;
}

int tempete(const Options& options, const std::string& base) {
  std::istringstream entree;
  std::ostringstream sortie;
  if (base::executer({"demo", base, "--aidants", std::to_string(AidantsDemo), "--graine", "1"},
                     entree, sortie, sortie) != 0) {
    std::cout << sortie.str();
    return 1;
  }
  const std::vector<std::string> aidants = preparer(base, options);
  if (aidants.size() < Ensemble) {
    std::cout << "FAUTE : les contrats communs ne se créent pas\n";
    return 1;
  }
  const support::TempDir dossier;
  const std::string journaux = dossier.Chemin("journal");
  std::vector<pid_t> postes;
  for (int p = 0; p < options.postes; ++p) {
    const pid_t enfant = fork();
    if (enfant == 0) {
      std::ofstream journal(journaux + std::to_string(p));
      Poste(options, base, p, aidants, journal).Travailler();
      _exit(0);
    }
    postes.push_back(enfant);
  }
  int fautes = 0;
  for (const pid_t poste : postes) {
    int fin = -1;
    waitpid(poste, &fin, 0);
    if (fin == 0) continue;
    std::cout << "FAUTE : un poste s'est arrêté\n";
    ++fautes;
  }
  return fautes + controler(base, journaux, options.postes);
}

}  // namespace

int main(int argc, char** argv) {
  Options options;
  for (int i = 1; i + 1 < argc; i += 2) {
    const std::string nom = argv[i];
    if (nom == "--sur") options.sur = argv[i + 1];
    if (nom == "--secondes") options.secondes = std::atoi(argv[i + 1]);
    if (nom == "--postes") options.postes = std::atoi(argv[i + 1]);
    if (nom == "--graine") options.graine = static_cast<unsigned>(std::atoi(argv[i + 1]));
  }
  std::cout << "graine " << options.graine << '\n';
  int fautes = 0;
  if (options.sur != "serveur") {
    const support::TempDir dossier;
    fautes += tempete(options, dossier.Chemin("tempete.contrats"));
  }
  if (options.sur != "fichier") {
    fautes += tempete(options, support::Serveur::Commun().NouvelleBase());
  }
  return fautes == 0 ? 0 : 1;
}
