#include "rules/conges.h"

#include <algorithm>

#include "data/jour.h"
#include "data/layouts/contrat.h"
#include "data/layouts/fichiers.h"
#include "data/layouts/voisins.h"
#include "data/nombre.h"

namespace rules {

namespace {

namespace C = data::Contrat;

// Pay headings of leave that comes from another contract.
constexpr std::string_view RubriquesReprise[] = {"843", "817", "803", "802"};
constexpr const char* Prestataire = "P";

bool reprend(const data::CItem& bulletin, int rubriques) {
  for (int v = 1; v <= bulletin.DCount(rubriques); ++v) {
    const auto rubrique = bulletin.Vue(rubriques, v);
    if (std::find(std::begin(RubriquesReprise), std::end(RubriquesReprise), rubrique) !=
        std::end(RubriquesReprise)) {
      return true;
    }
  }
  return false;
}

std::string date(const data::CItem& contrat, int attribut) {
  return data::dateAffichee(static_cast<long>(data::entier(contrat.Vue(attribut))));
}

// " débutant le 01/03/2026", or " du 01/03/2026 au 30/06/2026".
std::string dates(const data::CItem& contrat) {
  const std::string debut = date(contrat, C::DateDebut);
  if (contrat.Vue(C::DateFin).empty()) return " débutant le " + debut;
  return " du " + debut + " au " + date(contrat, C::DateFin);
}

}  // namespace

int attributLien(SensLien sens) {
  return sens == SensLien::Report ? C::CongesReportesSur : C::CongesReprisDe;
}
int attributRetour(SensLien sens) {
  return sens == SensLien::Report ? C::CongesReprisDe : C::CongesReportesSur;
}

bool Verif_ReportModifiable(data::Db& db, const data::CItem& contrat, SensLien sens) {
  data::CItem suivant = contrat;
  if (sens == SensLien::Report &&
      !db.OpenFile(data::fichier::CONTRAT).Lire(contrat(C::CongesReportesSur), suivant)) {
    return false;
  }
  // Without a payslip that was computed there is only the period processed, which proves nothing.
  const std::string periode = suivant(C::DernierCalcul);
  if (periode.empty()) return false;
  const auto lue = [&](std::string_view fichier, const std::string& cle, int rubriques) {
    data::CItem bulletin;
    return db.OpenFile(fichier).Lire(cle, bulletin) && reprend(bulletin, rubriques);
  };
  if (suivant.Vue(C::Statut) == "A") {
    return lue(data::fichier::DETAILADMIN, suivant(0) + periode, data::DetailAdmin::Rubriques);
  }
  data::CItem activite;
  db.OpenFile(data::fichier::ACTIVITES).Lire(suivant(C::Activites, 1), activite);
  if (activite.Vue(data::Activites::Genre) == Prestataire) {
    return lue(data::fichier::DETAILPREST, suivant(0) + periode, data::DetailPrest::Rubriques);
  }
  return lue(data::fichier::DETAILINTER, suivant(0) + "000" + periode,
             data::DetailInter::Rubriques);
}

std::string texteLien(SensLien sens, const data::CItem& lie) {
  return (sens == SensLien::Report ? "Droits aux congés reportés sur le contrat"
                                   : "Droits aux congés repris à partir du contrat") +
         dates(lie) + ".";
}

// "reportés" is what users read there.
std::string texteLienRompu(SensLien sens, const data::CItem& lie) {
  return std::string("Suite au changement de la période du dernier bulletin,") +
         (sens == SensLien::Report ? " il n'est plus possible de reportés les congés sur le contrat"
                                   : " il n'est plus possible de reprendre les congés du contrat") +
         dates(lie) + ".\r\nVérifiez l'état d'avancement des bulletins de ces contrats.";
}

bool bulletinRompt(const data::CItem& contrat, const data::CItem& lie) {
  return contrat.Vue(C::DernierBulletin) == lie.Vue(C::DernierBulletin);
}

}  // namespace rules
