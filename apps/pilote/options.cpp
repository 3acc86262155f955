#include "pilote/options.h"

#include <CLI/CLI.hpp>
#include <algorithm>

#include "data/cles.h"
#include "data/jour.h"
#include "data/texte.h"
#include "pilote/commandes.h"

namespace pilote {

namespace {

constexpr char Aide[] =
    R"(contrat-pilote : joue un scénario sur les écrans des contrats, sans affichage.

  contrat-pilote --base F --aidant CODE [options] [SCENARIO]

Le scénario est lu sur l'entrée standard quand aucun fichier n'est donné.

  --base F              le fichier de données
  --aidant CODE         le code de l'aidant, 5 caractères
  --niveau N            le niveau de droits ; 2, le niveau par défaut, donne tous les droits
  --date JJ/MM/AAAA     la date du jour pour les écrans ; par défaut celle du poste
  --contrat CLE         la clé d'un contrat de l'aidant à ouvrir d'emblée
  --etat-supprime       l'aidant est à l'état supprimé
  --meme-en-reseau      admet un fichier d'un dossier du réseau, qu'un seul poste ouvre
  --aide, --help        ce texte

Codes de retour :
  0  tout est conforme
  1  un contrôle ou un acte a échoué
  2  le scénario, les options ou le fichier de données sont incorrects : rien n'a été joué

Les commandes d'un scénario sont décrites dans docs/scenarios.md.
)";

// The options as they stand on the command line.
struct Brutes {
  std::string niveau;
  std::string date;
};

void analyser(std::vector<std::string>& arguments, Options& options, Brutes& brutes) {
  CLI::App app;
  app.set_help_flag();
  app.allow_extras();
  app.add_option("--base", options.base);
  app.add_option("--aidant", options.aidant);
  app.add_option("--niveau", brutes.niveau);
  app.add_option("--date", brutes.date);
  app.add_option("--contrat", options.contrat);
  app.add_flag("--etat-supprime", options.etatSupprime);
  app.add_flag("--meme-en-reseau", options.memeEnReseau);
  app.add_flag("--aide,--help,-h", options.aide);
  app.add_option("SCENARIO", options.scenario);
  std::reverse(arguments.begin(), arguments.end());
  try {
    app.parse(arguments);
  } catch (const CLI::ParseError&) {
    throw OptionFausse("Une option est donnée deux fois, ou n'a pas sa valeur.");
  }
  const auto restants = app.remaining();
  if (!options.aide && !restants.empty()) {
    throw OptionFausse("« " + restants.front() + " » n'est pas une option, ni le seul scénario.");
  }
}

void exiger(bool juste, const std::string& raison) {
  if (!juste) throw OptionFausse(raison);
}

}  // namespace

Options lireOptions(std::vector<std::string> arguments) {
  Options options;
  Brutes brutes;
  analyser(arguments, options, brutes);
  if (options.aide) return options;
  exiger(!options.base.empty(), "Indiquez le fichier de données par --base.");
  exiger(!options.aidant.empty(), "Indiquez le code de l'aidant par --aidant.");
  exiger(options.aidant.size() == data::LongueurCodeAidant,
         "--aidant : le code d'un aidant a 5 caractères, « " + options.aidant + " » non.");
  if (!brutes.niveau.empty()) {
    const auto niveau = entier(brutes.niveau);
    exiger(niveau.value_or(-1) >= 0, "--niveau : « " + brutes.niveau + " » n'est pas un niveau.");
    options.niveau = *niveau;
  }
  if (!brutes.date.empty()) {
    options.jour = data::lireDateAffichee(brutes.date);
    exiger(options.jour.has_value(),
           "--date : « " + brutes.date + " » n'est pas une date JJ/MM/AAAA.");
  }
  exiger(options.contrat.empty() || (options.contrat.size() == data::LongueurCodeAidant + 3 &&
                                     options.contrat.starts_with(options.aidant)),
         "--contrat : la clé est le code de l'aidant suivi du numéro sur 3 chiffres, « " +
             options.contrat + " » non.");
  return options;
}

std::string texteAide() {
  return Aide;
}

}  // namespace pilote
