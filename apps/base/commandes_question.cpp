// `select`: a query of the store, its rows on lines.

#include "base/affichage.h"
#include "base/article_json.h"
#include "base/commandes.h"
#include "base/ouverture.h"
#include "base/plan.h"
#include "data/db.h"
#include "data/query.h"

namespace base {
namespace {

// Column 1 of the result is the key that leads every row; it is not shown.
void ecrireRangee(std::string& sortie, const data::CItem& rangees, int rangee, int colonnes,
                  bool json) {
  if (json) sortie += '[';
  for (int colonne = 1; colonne <= colonnes; ++colonne) {
    const std::string_view valeur = rangees.Vue(rangee, colonne + 1);
    if (colonne > 1) sortie += json ? ',' : '\t';
    if (json) {
      ecrireValeur(sortie, valeur);
    } else {
      ecrireColonne(sortie, valeur);
    }
  }
  sortie += json ? "]\n" : "\n";
}

bool vide(data::Storage& stockage, const std::string& fichier) {
  bool vide = true;
  stockage.Scan(fichier, data::KeyRange::Tout(),
                [&](std::string_view, std::string_view) { return vide = false; });
  return vide;
}

int montrerPlan(Contexte& contexte, data::Storage& stockage, const std::string& question) {
  const data::Query demande = data::parseQuery(question);
  contexte.Ecrit(decrirePlan(demande, data::planQuery(stockage, demande)));
  return Fait;
}

}  // namespace

int select(Contexte& contexte, const Arguments& arguments) {
  const std::string question = arguments.Texte("QUESTION");
  const std::string champs = arguments.Texte("CHAMPS", "0");
  // Both are read before the file is opened: a mistyped query needs no data to be refused.
  const std::string fichier(data::parseQuery(question).file);
  const int colonnes = static_cast<int>(data::parseFieldList(fichier, champs).size());
  if (arguments.Donne("--plan") && arguments.Donne("--json")) {
    throw Echec(MauvaisUsage, "--plan et --json ne se donnent pas ensemble.");
  }
  Base base(contexte, arguments, Acces::Lecture);
  if (arguments.Donne("--plan")) return montrerPlan(contexte, base.Stockage(), question);
  data::Db db(base.Partage());
  // The key goes before the columns asked for, so that no row is empty: an item cuts empty ends.
  const data::CItem rangees = db.Selectionner(question, fichier, "0 " + champs);
  std::string sortie;
  for (int rangee = 1; rangee <= rangees.DCount(); ++rangee) {
    ecrireRangee(sortie, rangees, rangee, colonnes, arguments.Donne("--json"));
    if (sortie.size() < TailleEnvoi) continue;
    contexte.Ecrit(sortie);
    sortie.clear();
  }
  contexte.Ecrit(sortie);
  // A mistyped name would otherwise look like a question without an answer.
  if (rangees.Vide() && vide(base.Stockage(), fichier)) {
    contexte.erreurs << fichierSansArticle(fichier) << '\n';
  }
  return Fait;
}

}  // namespace base
