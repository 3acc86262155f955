#include "base/plan.h"

#include "base/affichage.h"
#include "data/index.h"

namespace base {
namespace {

std::string cite(std::string_view texte) {
  std::string montre;
  ecrireColonne(montre, texte);
  return "« " + montre + " »";
}

// A bound that ends with a zero byte stands just after the text before it.
bool justeApres(std::string_view borne) {
  return borne.ends_with('\0');
}

std::string_view texteDe(std::string_view borne) {
  return justeApres(borne) ? borne.substr(0, borne.size() - 1) : borne;
}

// Of keys or values that are never empty.
std::string decrire(const data::KeyRange& intervalle, const std::string& toutes) {
  const auto& [debut, fin, sansFin] = intervalle;
  if (intervalle.Vide()) return "aucune";
  if (intervalle.EstUneCle()) return cite(debut);
  const data::KeyRange prefixe = data::KeyRange::Prefixe(debut);
  if (!debut.empty() && !sansFin && !prefixe.sansFin && fin == prefixe.fin) {
    return "commençant par " + cite(debut);
  }
  std::string texte;
  if (!texteDe(debut).empty()) {
    texte = (justeApres(debut) ? "après " : "à partir de ") + cite(texteDe(debut));
  }
  if (!sansFin) {
    if (!texte.empty()) texte += ", ";
    texte += (justeApres(fin) ? "jusqu'à " : "avant ") + cite(texteDe(fin));
  }
  return texte.empty() ? toutes : texte;
}

}  // namespace

std::string decrirePlan(const data::Query& question, const data::Plan& plan) {
  if (plan.scan) {
    return "parcours du fichier " + std::string(question.file) +
           ", clés : " + decrire(plan.keys, "toutes") + '\n';
  }
  std::string texte;
  for (const data::Chemin& chemin : plan.roads) {
    texte += chemin.index == nullptr ? "clés : " + decrire(chemin.valeurs, "toutes")
                                     : "index " + data::champIndex(*chemin.index) + " : " +
                                           decrire(chemin.valeurs, "toutes les valeurs");
    texte += '\n';
  }
  return texte + std::to_string(plan.candidates) +
         (plan.candidates > 1 ? " articles à regarder au plus\n" : " article à regarder au plus\n");
}

}  // namespace base
