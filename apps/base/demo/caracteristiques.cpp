// What amendments change: trade, grid, working time, and the public-law elements.

#include <algorithm>

#include "data/layouts/contrat.h"
#include "demo/calendrier.h"
#include "demo/contrat.h"

namespace demo {
namespace {

namespace C = data::Contrat;

struct Temps {
  int duree;      // x100 hours
  int frequence;  // 1 weekly, 2 fortnightly, 3 monthly, 4 yearly
  int poids;
};
constexpr Temps TempsHoraire[] = {{2000, 1, 4}, {2400, 1, 5},  {2800, 1, 3}, {5000, 2, 1},
                                  {8667, 3, 3}, {10400, 3, 3}, {12133, 3, 2}};
constexpr Temps TempsMensuel[] = {
    {10400, 3, 3}, {12133, 3, 3}, {13000, 3, 2}, {15167, 3, 6}, {160700, 4, 1}};
constexpr Temps TempsMandataire[] = {{300, 1, 3},  {450, 1, 3},  {600, 1, 4}, {800, 1, 3},
                                     {1000, 1, 2}, {2600, 3, 2}, {4333, 3, 2}};

// Contract hours of a month, x100.
long parMois(const Temps& temps) {
  switch (temps.frequence) {
    case 1:
      return (temps.duree * 52L + 6) / 12;
    case 2:
      return (temps.duree * 26L + 6) / 12;
    case 4:
      return temps.duree / 12;
    default:
      return temps.duree;
  }
}

const Temps& tirerTemps(Contrat& contrat) {
  if (contrat.plan.particulier) return contrat.alea.parmiPoids(TempsMandataire);
  return contrat.mensuel ? contrat.alea.parmiPoids(TempsMensuel)
                         : contrat.alea.parmiPoids(TempsHoraire);
}

const char* libellePCS(std::string_view code) {
  const auto* ligne = std::find_if(std::begin(NomenclaturePCS), std::end(NomenclaturePCS),
                                   [&](const Libelle& l) { return code == l.code; });
  return ligne->libelle;
}

// The grid of a trade under an agreement, "" when that agreement has none for it.
std::string grilleDe(const char* convention, const Metier& metier) {
  const std::string code = std::string(convention) + metier.grille;
  const bool existe = std::any_of(std::begin(Grilles), std::end(Grilles),
                                  [&](const Libelle& l) { return code == l.code; });
  return existe ? code : "";
}

long smic(long jour) {
  const int rang = data::dateDe(jour).annee - PremiereAnneeSmic;
  return Smic[std::clamp(rang, 0, static_cast<int>(std::size(Smic)) - 1)];
}

// Effect dates: the start, then one for each amendment, later each time.
std::vector<long> tirerEffets(Contrat& contrat) {
  const PlanContrat& plan = contrat.plan;
  const long borne = plan.fin != 0 ? std::min(plan.fin, contrat.parametres.aujourdhui)
                                   : contrat.parametres.aujourdhui;
  std::vector<long> effets{plan.debut};
  const long duree = borne - plan.debut;
  if (plan.annule || plan.stage || duree < 150 || !contrat.alea.surCent(55)) return effets;
  const long nombre = contrat.alea.entre(1, std::min(5L, duree / 150));
  for (long i = 1; i <= nombre; ++i) {
    // Amendments take effect on a first of a month.
    const long jour = plan.debut + duree * i / (nombre + 1);
    const long premier = data::premierJour(data::periodeDe(jour)).value();
    if (premier > effets.back()) effets.push_back(premier);
  }
  return effets;
}

void setDroitPublic(Contrat& contrat, int rang, const std::string& corps) {
  data::CItem& item = contrat.item;
  const bool titulaire = std::string_view(contrat.codeConvention()) == "07";
  const long indice = 340 + 7L * rang + contrat.base.numero % 60;
  item.Set(C::PopulationEmploi, rang, titulaire ? "40" : "43");
  item.Set(C::StatutJuridique, rang, titulaire ? "011" : "030");
  item.Set(C::EmploiStatutaire, rang, corps);
  item.Set(C::Echelon, rang, chiffres(std::min(rang, 12), 3));
  item.Set(C::CategorieStatutaire, rang, "30");
  item.Set(C::IndiceBrut, rang, texte(indice + 27));
  item.Set(C::IndiceMajore, rang, texte(indice));
  item.Set(C::PointsNBI, rang, "1000");
  item.Set(C::Grade, rang, "Agent social");
  item.Set(C::Echelle, rang, "C1");
}

struct Etat {
  long effet;
  std::string grille;
  long departGrille;
  Temps temps;
};

void setEtat(Contrat& contrat, int rang, const Etat& etat) {
  data::CItem& item = contrat.item;
  const Metier& metier = *contrat.plan.metier;
  const bool grille = !etat.grille.empty();
  item.Set(C::Avenant, rang, rang == 1 ? "0" : chiffres(rang - 1, 2));
  item.Set(C::DateEffet, rang, texte(etat.effet));
  item.Set(C::Qualification, rang, metier.qualification);
  item.Set(C::CodePCS, rang, metier.pcs);
  item.Set(C::CategoriePCS, rang, libellePCS(std::string_view(metier.pcs).substr(0, 2)));
  item.Set(C::FonctionPCS, rang, libellePCS(metier.pcs));
  if (grille) {
    item.Set(C::Grille, rang, etat.grille);
    item.Set(C::DepartGrille, rang, texte(etat.departGrille));
  }
  item.Set(C::Coefficient, rang, texte(grille ? 0 : metier.coefficient * 1000L));
  item.Set(C::TauxHoraire, rang, texte(grille ? 0 : smic(etat.effet) + metier.plus));
  item.Set(C::DureeTravail, rang, texte(etat.temps.duree));
  item.Set(C::Frequence, rang, texte(etat.temps.frequence));
  item.Set(C::Lissage, rang, contrat.module ? "1" : "0");
  if (contrat.module) {
    constexpr const char* Traitements[] = {"C", "C", "L", "S"};
    item.Set(C::Modulation, rang, contrat.alea.parmi(Traitements));
  }
  item.Set(C::ChangementSituation, rang, rang > 1 && contrat.alea.surCent(10) ? "1" : "0");
  if (!contrat.plan.particulier) item.Set(C::NormeCRC, rang, "CRC" + chiffres(metier.plus, 5));
  if (!contrat.prevoyance.empty()) item.Set(C::PopulationPrevoyance, rang, "1");
  if (!grille && *Conventions[contrat.plan.convention].categorieLibre != '\0') {
    item.Set(C::Categorie, rang, "EMPLOYE");
  }
  if (rang > 1 && contrat.alea.surCent(30)) {
    item.Set(C::Commentaire1, rang, "Modification de la durée du travail");
    item.Set(C::Commentaire2, rang, "à la demande du salarié");
  }
  if (contrat.plan.convention >= 6) setDroitPublic(contrat, rang, "0123010007");
}

}  // namespace

void setCaracteristiques(Contrat& contrat) {
  const std::vector<long> effets = tirerEffets(contrat);
  contrat.avenants = static_cast<int>(effets.size()) - 1;
  Etat etat;
  if (contrat.alea.surCent(50)) {
    etat.grille = grilleDe(contrat.codeConvention(), *contrat.plan.metier);
  }
  etat.departGrille = contrat.plan.debut;
  for (int rang = 1; const long effet : effets) {
    etat.effet = effet;
    if (rang == 1 || contrat.alea.surCent(70)) etat.temps = tirerTemps(contrat);
    setEtat(contrat, rang++, etat);
  }
  contrat.heuresMois = parMois(etat.temps);
  const bool suspendu = contrat.alea.surCent(8);
  contrat.item.Set(C::JoursSuspensionGrille, suspendu ? "3000" : "0");
  contrat.item.Set(C::DateAnciennete, texte(contrat.plan.anciennete));
  contrat.item.Set(C::JoursSuspensionAnciennete, suspendu ? "3000" : "0");
}

}  // namespace demo
