#include "base/ligne_commande.h"

#include <CLI/CLI.hpp>
#include <algorithm>
#include <map>
#include <memory>

#include "base/commandes.h"

namespace base {
namespace {

constexpr Position LaBase = {"BASE", "fichier de données, ou adresse postgresql:// d'un serveur"};
constexpr Position LeFichier = {"FICHIER", "nom d'un fichier de la base, par exemple CONTRAT"};
constexpr Position LaCle = {"CLE", "clé d'un article, par exemple 00001001"};

constexpr Commande Commandes[] = {
    {"creer", "Crée une base vide", {LaBase}, {}, creer},
    {"importer",
     "Écrit dans la base les articles d'un texte JSON Lines, tous ou aucun",
     {LaBase, {"SOURCE", "texte JSON Lines, « - » pour l'entrée standard"}},
     {},
     importer},
    {"exporter",
     "Écrit les articles en JSON Lines sur la sortie standard",
     {LaBase},
     {{{"--fichier", "NOM", "ce fichier seulement ; plusieurs fois pour plusieurs fichiers",
        true}}},
     exporter},
    {"lire",
     "Montre un article, attribut par attribut",
     {LaBase, LeFichier, LaCle},
     {{{"--ancien", "N", "son texte antérieur n° N"},
       {"--json", "", "le tableau JSON de ses attributs, tel que « ecrire » le prend"}}},
     lire},
    {"ecrire",
     "Écrit un article, donné comme tableau JSON de ses attributs",
     {LaBase, LeFichier, LaCle},
     {{{"--item", "JSON", "le tableau ; sans cette option il est lu sur l'entrée standard"}}},
     ecrire},
    {"select",
     "Pose une question et montre une rangée par ligne",
     {LaBase,
      {"QUESTION", "par exemple 'SSELECT CONTRAT AVEC 0 = \"00001]\"'"},
      {"CHAMPS", "colonnes, par exemple \"0 1 7\" ; la clé seule par défaut", true}},
     {{{"--json", "", "un tableau JSON par ligne"},
       {"--plan", "", "dit comment la question serait traitée, sans la poser"}}},
     select},
    {"echeances",
     "Montre ce qui arrive à échéance chez tous les aidants, une ligne chacun",
     {LaBase},
     {{{"--jours", "N", "les N prochains jours, 30 par défaut"},
       {"--date", "JJ/MM/AAAA", "compte de ce jour au lieu d'aujourd'hui"}}},
     echeances},
    {"fichiers",
     "Donne le nom, le nombre d'articles et le contenu de chaque fichier",
     {LaBase},
     {},
     fichiers},
    {"verifier",
     "Contrôle tous les articles et montre une anomalie par ligne",
     {LaBase},
     {},
     verifierBase},
    {"reparer", "Refait les index de la base à partir de ses articles", {LaBase}, {}, reparer},
    {"historique",
     "Montre quand et par qui un article a été remplacé ou supprimé",
     {LaBase, LeFichier, LaCle},
     {{{"--json", "", "un objet JSON par ligne, avec le texte antérieur"}}},
     historique},
    {"retablir",
     "Rend à un article son texte antérieur n° N",
     {LaBase, LeFichier, LaCle, {"N", "numéro donné par « historique »"}},
     {},
     retablir},
    {"supprimer",
     "Supprime un article, dont le texte passe à l'historique",
     {LaBase, LeFichier, LaCle},
     {},
     supprimer},
    {"oublier",
     "Efface pour de bon des anciens textes, ou tout d'un aidant",
     {LaBase},
     {{{"--avant", "JJ/MM/AAAA", "les textes remplacés ou supprimés avant ce jour"},
       {"--aidant", "CODE", "tous les articles de cet aidant, et leur historique"},
       {"--essai", "", "montre ce qui s'en irait, sans rien effacer"}}},
     oublier},
    {"copier",
     "Copie la base entière, d'un fichier ou d'un serveur vers l'autre aussi",
     {LaBase, {"COPIE", "fichier à créer, ou adresse d'une base sans article"}},
     {},
     copier},
    {"restaurer",
     "Remet une copie à la place de la base, dont le fichier est gardé sous un autre nom",
     {LaBase, {"COPIE", "copie faite par « copier »"}},
     {},
     restaurer},
    {"demo",
     "Crée une base de démonstration ; la même graine donne la même base",
     {LaBase},
     {{{"--aidants", "N", "nombre d'aidants, 200 par défaut"},
       {"--graine", "G", "graine du tirage, 1 par défaut"}}},
     demo},
};

// What every command takes.
constexpr OptionCommande EnReseau = {
    "--meme-en-reseau", "", "admet un fichier d'un dossier du réseau, qu'un seul poste ouvre"};

constexpr std::string_view Programme = "contrat-base";
constexpr std::string_view Presentation =
    "Crée, remplit, interroge et contrôle une base de contrats.\n"
    "Usage : contrat-base COMMANDE BASE [arguments] [options]\n\nCommandes :\n";
constexpr std::string_view CodesRetour =
    "\nCodes de retour : 0 fait ; 1 données refusées, article absent ou anomalies ;\n"
    "2 commande ou question mal formée ; 3 fichier impossible à ouvrir, lire ou écrire.\n"
    "« contrat-base COMMANDE --help » explique une commande.\n";
constexpr std::size_t ColonneResume = 14;

// The help in the language of its readers; the library's own has English words in it.
class FormatFrancais : public CLI::Formatter {
 public:
  explicit FormatFrancais(const Commande& commande) : commande_(commande) {
    label("Positionals", "Arguments ");
  }
  std::string make_usage(const CLI::App* /*app*/, std::string nom) const override {
    std::string usage = "Usage : " + nom;
    for (const Position& position : commande_.positions) {
      if (position.nom.empty()) break;
      const std::string place(position.nom);
      usage += position.facultative ? " [" + place + ']' : ' ' + place;
    }
    return usage + " [options]\n";
  }
  // The name of an option's value, without the counts and types that the library adds.
  std::string make_option_opts(const CLI::Option* option) const override {
    const std::string valeur = option->get_type_name();
    return option->get_positional() || valeur.empty() ? std::string() : ' ' + valeur;
  }

 private:
  const Commande& commande_;
};

// The command line of one command. The library sorts options from arguments; what is missing or
// too much is told here, in French.
class Lecteur {
 public:
  explicit Lecteur(const Commande& commande)
      : commande_(commande),
        nom_(std::string(Programme) + ' ' + std::string(commande.nom)),
        app_(std::string(commande.resume) + '.', nom_) {
    app_.formatter(std::make_shared<FormatFrancais>(commande));
    app_.option_defaults()->group("Options ");
    app_.set_help_flag("-h,--help", "Montre cette aide");
    app_.allow_extras();
    for (const Position& position : commande.positions) {
      if (position.nom.empty()) break;
      app_.add_option(std::string(position.nom), valeurs_[position.nom], std::string(position.aide))
          ->type_name("")
          ->expected(1)
          ->allow_extra_args(false);
    }
    for (const OptionCommande& option : commande.options) Declare(option);
    Declare(EnReseau);
  }

  // False when the help was asked for and shown.
  bool Lit(std::vector<std::string> args, std::ostream& sortie, Arguments& arguments) {
    std::reverse(args.begin(), args.end());  // the order that the library wants
    try {
      app_.parse(std::move(args));
    } catch (const CLI::CallForHelp&) {
      sortie << app_.help();
      return false;
    } catch (const CLI::ParseError& erreur) {
      const std::string texte = erreur.what();
      RefuseUsage("option sans sa valeur ou donnée deux fois : " +
                  texte.substr(0, texte.find(':')));
    }
    ExigeJuste();
    for (const auto& [nom, valeurs] : valeurs_) {
      for (const std::string& valeur : valeurs) arguments.Ajoute(nom, valeur);
    }
    for (const auto& [nom, donne] : drapeaux_) {
      if (donne) arguments.Ajoute(nom, "");
    }
    return true;
  }

 private:
  void Declare(const OptionCommande& option) {
    if (option.nom.empty()) return;
    const std::string nom(option.nom);
    const std::string aide(option.aide);
    if (option.valeur.empty()) {
      app_.add_flag(nom, drapeaux_[option.nom], aide);
      return;
    }
    CLI::Option* const ajoutee = app_.add_option(nom, valeurs_[option.nom], aide);
    ajoutee->type_name(std::string(option.valeur))->expected(1)->allow_extra_args(false);
    if (option.repetable) ajoutee->multi_option_policy(CLI::MultiOptionPolicy::TakeAll);
  }

  void ExigeJuste() {
    for (const std::string& reste : app_.remaining()) {
      // "--" itself, which makes a key such as "-1" possible, is left among the rest.
      if (reste != "--") RefuseUsage("argument ou option inattendus : " + reste);
    }
    for (const Position& position : commande_.positions) {
      if (position.nom.empty() || position.facultative) continue;
      if (valeurs_[position.nom].empty()) RefuseUsage("il manque " + std::string(position.nom));
    }
  }

  [[noreturn]] void RefuseUsage(const std::string& raison) const {
    throw Echec(MauvaisUsage, nom_ + " : " + raison + ". « " + nom_ + " --help » donne l'usage.");
  }

  const Commande& commande_;
  std::string nom_;
  CLI::App app_;
  // Filled by the library; the map never moves what it holds.
  std::map<std::string_view, std::vector<std::string>> valeurs_;
  std::map<std::string_view, bool> drapeaux_;
};

void montreAide(std::ostream& sortie) {
  sortie << Presentation;
  for (const Commande& commande : Commandes) {
    std::string nom(commande.nom);
    nom.resize(ColonneResume, ' ');
    sortie << "  " << nom << commande.resume << '\n';
  }
  sortie << CodesRetour;
}

}  // namespace

LigneLue lireLigneCommande(const std::vector<std::string>& args, std::ostream& sortie) {
  constexpr std::string_view Aide = " « contrat-base --help » donne la liste des commandes.";
  if (args.empty()) throw Echec(MauvaisUsage, "Il manque la commande." + std::string(Aide));
  if (args[0] == "--help" || args[0] == "-h") {
    montreAide(sortie);
    return {};
  }
  const auto* const commande = std::find_if(std::begin(Commandes), std::end(Commandes),
                                            [&](const Commande& c) { return c.nom == args[0]; });
  if (commande == std::end(Commandes)) {
    throw Echec(MauvaisUsage, "Commande inconnue : " + args[0] + '.' + std::string(Aide));
  }
  LigneLue ligne;
  if (Lecteur(*commande).Lit({args.begin() + 1, args.end()}, sortie, ligne.arguments)) {
    ligne.commande = commande;
  }
  return ligne;
}

}  // namespace base
