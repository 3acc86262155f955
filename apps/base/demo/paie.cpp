// Results of the payroll, by contract and period: the last months of recent contracts, the last
// month of older ones. Nothing stands after the month of the last payslip.

#include "data/layouts/fichiers.h"
#include "data/layouts/voisins.h"
#include "demo/contrat.h"

namespace demo {
namespace {

using data::CItem;
namespace fichier = data::fichier;

// How long a contract counts as recent, in days after its end.
constexpr long Recent = 200;
constexpr int MoisRecents = 3;

// Pay headings. "843" is the leave taken over from the contract before.
void setRubriques(CItem& item, int attribut, const Contrat& contrat, bool report) {
  int rang = 0;
  item.Set(attribut, ++rang, contrat.mensuel ? "101" : "100");
  item.Set(attribut, ++rang, "120");
  if (report) item.Set(attribut, ++rang, "843");
}

void ecrireMois(Sortie& sortie, const Contrat& contrat, const std::string& periode, bool report) {
  const PlanContrat& plan = contrat.plan;
  const std::string cle = contrat.cle + periode;
  CItem calcul;
  const bool aFacturer =
      plan.particulier && periode > baseAide(contrat.parametres, plan.employeur).derniereFacture;
  calcul.Set(data::DetailCalcul::Facturation, aFacturer ? "P" : "F");
  sortie.ecrire(fichier::DETAILCALCUL, cle, calcul);
  CItem detail;
  if (contrat.administratif) {
    setRubriques(detail, data::DetailAdmin::Rubriques, contrat, report);
    sortie.ecrire(fichier::DETAILADMIN, cle, detail);
  } else if (plan.particulier) {
    setRubriques(detail, data::DetailMandat::Rubriques, contrat, false);
    sortie.ecrire(fichier::DETAILMANDAT, cle, detail);
    CItem intervention;
    setRubriques(intervention, data::DetailInter::Rubriques, contrat, report);
    sortie.ecrire(fichier::DETAILINTER, contrat.cle + "000" + periode, intervention);
  } else {
    setRubriques(detail, data::DetailPrest::Rubriques, contrat, report);
    sortie.ecrire(fichier::DETAILPREST, cle, detail);
  }
}

}  // namespace

void ecrireBulletins(Sortie& sortie, Contrat& contrat) {
  if (contrat.calculee.empty()) return;
  const PlanContrat& plan = contrat.plan;
  const bool recent = plan.fin == 0 || plan.fin > contrat.parametres.aujourdhui - Recent;
  std::string periode = data::decalePeriode(contrat.calculee, recent ? 1 - MoisRecents : 0);
  periode = std::max(periode, data::periodeDe(plan.debut));
  const bool reprise = plan.precedent != 0 && contrat.alea.surCent(70);
  while (periode <= contrat.calculee) {
    ecrireMois(sortie, contrat, periode, reprise && periode == contrat.calculee);
    periode = data::decalePeriode(periode, 1);
  }
}

}  // namespace demo
