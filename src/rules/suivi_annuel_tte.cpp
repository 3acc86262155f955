#include "rules/suivi_annuel_tte.h"

#include "data/layouts/voisins.h"
#include "rules/suivi_annuel_nombre.h"

namespace rules {

namespace {

namespace T = data::AidantTte;
using data::Monnaie;

constexpr int Attributs[] = {T::Mois,          T::HeuresParJour,  T::JoursMois,    T::JoursSamDim,
                             T::JoursFeries,   T::JoursConges,    T::JoursMaladie, T::JoursAutres,
                             T::TempsEffectif, T::Regularisation, T::Solde};

}  // namespace

Monnaie TempsMois::JoursOtes() const {
  return entierLu(samDim) + entierLu(feries) + conges + maladie + autres;
}

Monnaie TempsMois::JoursPotentiels() const {
  return entierLu(joursMois) - JoursOtes();
}

long long TempsMois::Difference() const {
  return centiemes(effectif - HeuresPotentielles());
}

SuiviTte::SuiviTte() : table_(Attributs) {}

void SuiviTte::Lire(const data::CItem& article) {
  table_.Lire(article, TableSuivi::Fin::Derniere);
}

TempsMois SuiviTte::Temps(int ligne) const {
  return {table_.Texte(ligne, JoursMois),  table_.Texte(ligne, SamDim),
          table_.Texte(ligne, Feries),     table_.Centiemes(ligne, HeuresJour),
          table_.Centiemes(ligne, Conges), table_.Centiemes(ligne, Maladie),
          table_.Centiemes(ligne, Autres), table_.Centiemes(ligne, Effectif),
          table_.Centiemes(ligne, Regul)};
}

std::vector<CalculTemps> SuiviTte::Calculs() const {
  std::vector<CalculTemps> calculs;
  long long cumul = 0;
  for (int i = 0; i < table_.Nombre(); ++i) {
    CalculTemps& calcul = calculs.emplace_back();
    calcul.temps = Temps(i);
    calcul.joursPotentiels = calcul.temps.JoursPotentiels();
    calcul.heuresPotentielles = calcul.temps.heuresJour * calcul.joursPotentiels;
    calcul.difference = centiemes(calcul.temps.effectif - calcul.heuresPotentielles);
    calcul.cumul = cumul += calcul.difference;
  }
  return calculs;
}

void SuiviTte::Ajouter(const std::string& periode, const TempsMois& temps) {
  const int ligne = table_.Inserer(periode);
  table_.Poser(ligne, JoursMois, temps.joursMois);
  PoserTemps(ligne, temps);
  RecalculerSoldes();
}

void SuiviTte::Corriger(int ligne, const TempsMois& temps) {
  PoserTemps(ligne, temps);
  RecalculerSoldes();
}

void SuiviTte::Retirer(int ligne) {
  table_.Retirer(ligne);
  RecalculerSoldes();
}

void SuiviTte::PoserTemps(int ligne, const TempsMois& temps) {
  table_.PoserCentiemes(ligne, HeuresJour, temps.heuresJour);
  table_.Poser(ligne, SamDim, temps.samDim);
  table_.Poser(ligne, Feries, temps.feries);
  table_.PoserCentiemes(ligne, Conges, temps.conges);
  table_.PoserCentiemes(ligne, Maladie, temps.maladie);
  table_.PoserCentiemes(ligne, Autres, temps.autres);
  table_.PoserCentiemes(ligne, Effectif, temps.effectif);
  table_.PoserCentiemes(ligne, Regul, temps.regul);
}

void SuiviTte::RecalculerSoldes() {
  long long solde = 0;
  for (int i = 0; i < table_.Nombre(); ++i) {
    const TempsMois temps = Temps(i);
    solde += temps.Difference() - centiemes(temps.regul);
    table_.Poser(i, Solde, std::to_string(solde));
  }
}

SuiviTte::Provisoire SuiviTte::PendantLaSaisie(std::string_view periode,
                                               const TempsMois& temps) const {
  Provisoire provisoire;
  for (int i = 0; i < table_.Nombre() && table_.Periode(i) < periode; ++i) {
    const TempsMois ligne = Temps(i);
    provisoire.cumul += ligne.Difference();
    provisoire.solde += ligne.Difference() + centiemes(ligne.regul);
  }
  provisoire.cumul += temps.Difference();
  provisoire.solde += temps.Difference() - centiemes(temps.regul);
  return provisoire;
}

}  // namespace rules
