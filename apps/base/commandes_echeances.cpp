// `echeances`: what is due over all carers, a line each, for a nightly mail.

#include "base/affichage.h"
#include "base/commandes.h"
#include "base/ouverture.h"
#include "data/cles.h"
#include "data/jour.h"
#include "rules/echeances.h"

namespace base {

int echeances(Contexte& contexte, const Arguments& arguments) {
  const long jours = arguments.Entier("--jours", 0, rules::JoursEcheances);
  if (jours > rules::JoursEcheancesMax) {
    throw Echec(MauvaisUsage,
                "--jours : au plus " + std::to_string(rules::JoursEcheancesMax) + " jours.");
  }
  const data::PosteSysteme poste;
  long aujourdhui = poste.Aujourdhui();
  if (arguments.Donne("--date")) {
    const std::string date = arguments.Texte("--date");
    const auto jour = data::lireDateAffichee(date);
    if (!jour)
      throw Echec(MauvaisUsage, "--date : « " + date + " » n'est pas une date JJ/MM/AAAA.");
    aujourdhui = *jour;
  }
  Base base(contexte, arguments, Acces::Lecture);
  data::Db db(base.Partage());
  std::string sortie;
  for (const auto& e : rules::lireEcheances(db, aujourdhui, static_cast<int>(jours))) {
    const std::string colonnes[] = {data::dateAffichee(e.jour),
                                    e.libelle,
                                    e.contrat.substr(0, data::LongueurCodeAidant),
                                    e.aidant,
                                    e.contrat.substr(data::LongueurCodeAidant),
                                    e.employeur};
    bool premiere = true;
    for (const std::string& colonne : colonnes) {
      if (!premiere) sortie += '\t';
      ecrireColonne(sortie, colonne);
      premiere = false;
    }
    sortie += '\n';
  }
  contexte.Ecrit(sortie);
  return Fait;
}

}  // namespace base
