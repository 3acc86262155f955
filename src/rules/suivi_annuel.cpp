#include "rules/suivi_annuel.h"

#include "data/layouts/contrat.h"

namespace rules {

namespace C = data::Contrat;

SuiviRemunere::SuiviRemunere() : table_(C::GroupeSuivi) {}

void SuiviRemunere::Lire(const data::CItem& contrat, Annee annee) {
  table_ =
      annee == Annee::EnCours ? TableSuivi(C::GroupeSuivi) : TableSuivi(C::GroupeSuiviPrecedent);
  table_.Lire(contrat, TableSuivi::Fin::PremierVide);
}

void SuiviRemunere::Ecrire(data::CItem& contrat) {
  table_.Ecrire(contrat);
}

HeuresMois SuiviRemunere::Heures(int ligne) const {
  return {table_.Centiemes(ligne, Contrat), table_.Centiemes(ligne, Absences),
          table_.Centiemes(ligne, Reel), table_.Centiemes(ligne, Difference),
          table_.Centiemes(ligne, Regul)};
}

std::vector<CalculMois> SuiviRemunere::Calculs() const {
  std::vector<CalculMois> calculs;
  data::Monnaie cumul, solde;
  for (int i = 0; i < table_.Nombre(); ++i) {
    const HeuresMois heures = Heures(i);
    cumul += heures.difference;
    solde += heures.difference - heures.regul;
    calculs.push_back({heures, heures.Forfait(), cumul, solde});
  }
  return calculs;
}

int SuiviRemunere::Ajouter(const std::string& periode, data::Monnaie heures, data::Monnaie regul) {
  const int ligne = table_.Inserer(periode);
  Corriger(ligne, {heures, {}, heures, {}, regul});
  return ligne;
}

void SuiviRemunere::Corriger(int ligne, const HeuresMois& heures) {
  table_.PoserCentiemes(ligne, Contrat, heures.contrat);
  table_.PoserCentiemes(ligne, Absences, heures.absences);
  table_.PoserCentiemes(ligne, Reel, heures.reel);
  table_.PoserCentiemes(ligne, Difference, heures.difference);
  table_.PoserCentiemes(ligne, Regul, heures.regul);
}

}  // namespace rules
