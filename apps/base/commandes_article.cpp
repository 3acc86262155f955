// `lire`, `ecrire`, `supprimer`, `historique` and `retablir`: one record and its former texts.

#include <algorithm>
#include <iterator>

#include "base/affichage.h"
#include "base/article_json.h"
#include "base/commandes.h"
#include "base/ouverture.h"
#include "data/storage.h"

namespace base {
namespace {

std::string nomArticle(const Arguments& arguments) {
  return arguments.Texte("FICHIER") + " " + arguments.Texte("CLE");
}

data::AncienTexte ancienTexte(data::Storage& stockage, const Arguments& arguments, long numero) {
  const auto anciens = stockage.Historique(arguments.Texte("FICHIER"), arguments.Texte("CLE"));
  const auto place =
      std::find_if(anciens.begin(), anciens.end(),
                   [&](const data::AncienTexte& ancien) { return ancien.numero == numero; });
  if (place == anciens.end()) {
    throw Echec(Refuse, nomArticle(arguments) + " : il n'y a pas de texte antérieur n° " +
                            std::to_string(numero) + ". « historique » en donne la liste.");
  }
  return *place;
}

std::string texteDemande(data::Storage& stockage, const Arguments& arguments) {
  if (arguments.Donne("--ancien")) {
    return ancienTexte(stockage, arguments, arguments.Entier("--ancien", 1, 0)).texte;
  }
  std::string texte;
  if (!stockage.Get(arguments.Texte("FICHIER"), arguments.Texte("CLE"), texte)) {
    throw Echec(Refuse, nomArticle(arguments) + " : cet article n'existe pas.");
  }
  return texte;
}

void ecrireAncienJson(std::string& sortie, const data::AncienTexte& ancien) {
  sortie += "{\"numero\":" + std::to_string(ancien.numero) + ",\"date\":";
  ecrireValeur(sortie, ancien.horodatage);
  sortie += ",\"utilisateur\":";
  ecrireValeur(sortie, ancien.utilisateur);
  sortie += ancien.supprime ? ",\"supprime\":true,\"item\":" : ",\"supprime\":false,\"item\":";
  ecrireItem(sortie, ancien.texte);
  sortie += "}\n";
}

void ecrireAncien(std::string& sortie, const data::AncienTexte& ancien) {
  sortie += std::to_string(ancien.numero) + '\t' + ancien.horodatage + '\t';
  ecrireColonne(sortie, ancien.utilisateur);
  sortie += ancien.supprime ? "\tsupprimé\n" : "\tremplacé\n";
}

}  // namespace

int lire(Contexte& contexte, const Arguments& arguments) {
  Base base(contexte, arguments, Acces::Lecture);
  const std::string texte = texteDemande(base.Stockage(), arguments);
  std::string sortie;
  if (arguments.Donne("--json")) {
    ecrireItem(sortie, texte);
    sortie += '\n';
  } else {
    ecrireLignes(sortie, texte);
  }
  contexte.Ecrit(sortie);
  return Fait;
}

int ecrire(Contexte& contexte, const Arguments& arguments) {
  std::string json = arguments.Texte("--item");
  if (!arguments.Donne("--item")) {
    json.assign(std::istreambuf_iterator<char>(contexte.entree), {});
    if (contexte.entree.bad()) throw Echec(Panne, "L'entrée standard ne peut pas être lue.");
  }
  std::string texte;
  try {
    texte = lireItem(json);
  } catch (const RefusJson& refus) {
    throw Echec(Refuse, std::string(arguments.Donne("--item") ? "--item" : "entrée standard") +
                            ", ligne " + std::to_string(refus.Ligne()) + ", colonne " +
                            std::to_string(refus.Colonne()) + " : " + refus.what() +
                            ". Rien n'a été écrit.");
  }
  Base base(contexte, arguments, Acces::Ecriture);
  base.Stockage().Put(arguments.Texte("FICHIER"), arguments.Texte("CLE"), texte);
  contexte.Ecrit(nomArticle(arguments) + " est écrit.\n");
  return Fait;
}

int historique(Contexte& contexte, const Arguments& arguments) {
  Base base(contexte, arguments, Acces::Lecture);
  const auto anciens =
      base.Stockage().Historique(arguments.Texte("FICHIER"), arguments.Texte("CLE"));
  // Without history the record must at least be there: a mistyped key is no answer.
  if (anciens.empty()) texteDemande(base.Stockage(), arguments);
  std::string sortie;
  for (const auto& ancien : anciens) {
    if (arguments.Donne("--json")) {
      ecrireAncienJson(sortie, ancien);
    } else {
      ecrireAncien(sortie, ancien);
    }
  }
  contexte.Ecrit(sortie);
  return Fait;
}

int retablir(Contexte& contexte, const Arguments& arguments) {
  const long numero = arguments.Entier("N", 1, 0);
  Base base(contexte, arguments, Acces::Ecriture);
  // One block, so that no other station writes the record in between.
  base.Stockage().EnUnBloc([&] {
    const auto ancien = ancienTexte(base.Stockage(), arguments, numero);
    base.Stockage().Put(arguments.Texte("FICHIER"), arguments.Texte("CLE"), ancien.texte);
  });
  contexte.Ecrit(nomArticle(arguments) + " a de nouveau son texte n° " + std::to_string(numero) +
                 ".\n");
  return Fait;
}

int supprimer(Contexte& contexte, const Arguments& arguments) {
  Base base(contexte, arguments, Acces::Ecriture);
  if (!base.Stockage().Erase(arguments.Texte("FICHIER"), arguments.Texte("CLE"))) {
    throw Echec(Refuse, nomArticle(arguments) + " : cet article n'existe pas.");
  }
  contexte.Ecrit(nomArticle(arguments) + " est supprimé ; « retablir » peut le rendre.\n");
  return Fait;
}

}  // namespace base
