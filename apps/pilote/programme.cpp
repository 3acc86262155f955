#include "pilote/programme.h"

#include <fstream>
#include <iostream>
#include <sstream>

#include "control/ctr_contrat.h"
#include "data/layouts/fichiers.h"
#include "data/layouts/voisins.h"
#include "pilote/options.h"
#include "pilote/pilote.h"
#include "storage/ouvrir.h"

namespace pilote {

namespace {

std::string nomAffiche(const Options& options) {
  return options.scenario.empty() ? "entrée standard" : options.scenario;
}

Scenario lire(const Options& options, std::istream& entree) {
  if (options.scenario.empty()) return lireScenario(entree);
  std::ifstream fichier(options.scenario, std::ios::binary);
  if (!fichier) throw OptionFausse("Le scénario « " + options.scenario + " » ne s'ouvre pas.");
  return lireScenario(fichier);
}

void ecrireFautes(const Scenario& scenario, const std::string& nom, std::ostream& erreurs) {
  for (const Faute& faute : scenario.fautes) {
    erreurs << nom << ':' << faute.ligne << ':' << faute.colonne << ": " << faute.raison << '\n';
  }
  erreurs << "Le scénario n'a pas été joué.\n";
}

void ecrireEchec(const Echec& echec, const std::string& nom, std::ostream& erreurs) {
  erreurs << nom << ':' << echec.ligne << ": " << echec.source << '\n'
          << "  attendu : " << echec.attendu << '\n'
          << "  trouvé  : " << echec.trouve << '\n';
}

// The name under which the control shows the carer.
std::string nomAidant(data::Db& db, const std::string& code) {
  data::CItem aidant;
  if (!db.OpenFile(data::fichier::CIVILAIDANT).Lire(code, aidant)) {
    throw OptionFausse("--aidant : l'aidant « " + code + " » n'existe pas dans ce fichier.");
  }
  return aidant(data::CivilAidant::Nom) + " " + aidant(data::CivilAidant::Prenom);
}

std::optional<Echec> jouer(const Options& options, const Scenario& scenario, std::ostream& sortie,
                           const Ouverture& ouvrir) {
  const data::PosteSysteme poste;
  data::Db db(ouvrir(options.base, poste));
  const std::string nom = nomAidant(db, options.aidant);
  // The screens see the day that was asked for; the history of the records tells the true time.
  screen::headless::Hote hote(options.jour.value_or(poste.Aujourdhui()), poste.NomUtilisateur());
  const session::DroitsUniformes droits(options.niveau);
  session::Client client;
  control::Ctr_Contrat controle(hote.platform);
  controle.TheDatabase(db);
  controle.TheClient(client);
  controle.W_Code = options.aidant;
  controle.W_NomPrenom = nom;
  controle.W_EtatSuppAidant = options.etatSupprime;
  controle.W_CodeContrat = options.contrat;
  controle.DroitsUtilisateur(droits);
  Pilote pilote(hote, db, sortie);
  return pilote.Jouer(scenario, controle, [&] {
    controle.init();
    controle.Show();
  });
}

int executerOptions(const Options& options, std::istream& entree, std::ostream& sortie,
                    std::ostream& erreurs, const Ouverture& ouvrir) {
  const Scenario scenario = lire(options, entree);
  if (!scenario.fautes.empty()) {
    ecrireFautes(scenario, nomAffiche(options), erreurs);
    return MalDemande;
  }
  const auto echec = jouer(options, scenario, sortie, ouvrir);
  if (!echec) return Tenu;
  ecrireEchec(*echec, nomAffiche(options), erreurs);
  return Manque;
}

std::unique_ptr<data::Storage> ouvrirStockage(const std::string& chemin, const data::Poste& poste,
                                              bool reseauAdmis) {
  storage::OptionsOuverture options;
  options.reseauAdmis = reseauAdmis;
  auto stockage = storage::ouvrir(chemin, poste, options);
  if (!stockage->Avis().empty()) std::cerr << stockage->Avis() << '\n';
  return stockage;
}

}  // namespace

std::unique_ptr<data::Storage> ouvrirBase(const std::string& chemin, const data::Poste& poste) {
  return ouvrirStockage(chemin, poste, false);
}

std::unique_ptr<data::Storage> ouvrirBaseEnReseau(const std::string& chemin,
                                                  const data::Poste& poste) {
  return ouvrirStockage(chemin, poste, true);
}

int executer(const std::vector<std::string>& arguments, std::istream& entree, std::ostream& sortie,
             std::ostream& erreurs, const Ouverture& ouvrir) {
  try {
    const Options options = lireOptions(arguments);
    if (options.aide) {
      sortie << texteAide();
      return Tenu;
    }
    return executerOptions(options, entree, sortie, erreurs,
                           options.memeEnReseau ? ouvrirBaseEnReseau : ouvrir);
  } catch (const OptionFausse& faute) {
    erreurs << faute.what() << "\nL'aide est donnée par contrat-pilote --aide.\n";
    return MalDemande;
  } catch (const screen::headless::QuestionInattendue& question) {
    erreurs << "À l'ouverture de l'écran : " << question.what() << ".\n";
    return Manque;
  } catch (const std::exception& erreur) {
    erreurs << "L'écran des contrats ne s'ouvre pas : " << erreur.what() << '\n';
    return MalDemande;
  }
}

}  // namespace pilote
