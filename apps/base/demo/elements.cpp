// What payroll needs of a contract: profiles, payment, activities, leave counters and the end.

#include <algorithm>

#include "data/layouts/contrat.h"
#include "demo/calendrier.h"
#include "demo/contrat.h"

namespace demo {
namespace {

namespace C = data::Contrat;

const char* profilDe(const Contrat& contrat) {
  if (contrat.plan.stage) return "140";
  if (contrat.administratif) return "130";
  if (contrat.plan.particulier) return contrat.mensuel ? "220" : "210";
  return contrat.mensuel ? "120" : "110";
}

void setPartage(Contrat& contrat) {
  data::CItem& item = contrat.item;
  const long nombre = static_cast<long>(contrat.activites.size());
  const std::string debut = data::periodeDe(contrat.plan.debut);
  // The first share takes what the division leaves, so that the total is 100,00.
  const auto part = [nombre](long rang) {
    return texte(rang == 1 ? 10000 - 10000 / nombre * (nombre - 1) : 10000 / nombre);
  };
  for (int rang = 1; rang <= nombre; ++rang) item.Set(C::PartsActivites, rang, part(rang));
  const std::string relu = data::decalePeriode(debut, 7);
  if (relu >= contrat.traitee || !contrat.alea.surCent(60)) {
    item.Set(C::PeriodeEffet, debut);
    return;
  }
  // The first split, from the start on, gave all to one activity.
  item.Set(C::PeriodeEffet, relu);
  item.Set(C::PeriodesEffetAnterieures, 1, debut);
  item.Set(C::ActivitesAnterieures, 1, 1, contrat.activites.front());
  item.Set(C::PartsAnterieures, 1, 1, "10000");
}

void setRubriques(Contrat& contrat) {
  data::CItem& item = contrat.item;
  if (contrat.plan.annule || !contrat.alea.surCent(12)) return;
  const std::string activite = contrat.administratif ? "" : contrat.activites.front();
  item.Set(C::RubriqueCode, 1, "330");
  item.Set(C::RubriqueBase, 1, "0");
  item.Set(C::RubriqueTaux, 1, "0");
  item.Set(C::RubriqueMontant, 1, texte(contrat.alea.entre(50, 300) * 100));
  item.Set(C::RubriqueActivite, 1, activite);
  item.Set(C::RubriqueCode, 2, "310");
  item.Set(C::RubriqueBase, 2, texte(contrat.alea.entre(10, 400) * 100));
  item.Set(C::RubriqueTaux, 2, "3500");
  item.Set(C::RubriqueMontant, 2, "0");
  item.Set(C::RubriqueActivite, 2, activite);
}

void setCommentaires(Contrat& contrat) {
  if (contrat.plan.annule || contrat.plan.fin != 0 || !contrat.alea.surCent(8)) return;
  const std::string& periode = contrat.parametres.periodeCourante;
  contrat.item.Set(C::CommentairePeriode, 1, periode);
  contrat.item.Set(C::CommentaireTexte, 1, "Rappel : entretien annuel à prévoir");
  contrat.item.Set(C::CommentairePeriode, 2, data::decalePeriode(periode, 1));
  contrat.item.Set(C::CommentaireTexte, 2, "Prime annuelle versée ce mois");
}

bool parmiCodes(std::string_view codes, std::string_view code) {
  return codes.find(code) != std::string_view::npos;
}

// The day at which the notice was given: a notice of two months from two years of service on, of
// one month from six months on, of a week before. Nobody gives notice of a death.
long notification(const PlanContrat& plan, std::string_view motif) {
  if (parmiCodes("65 66", motif)) return plan.fin;
  if (plan.type == 'D') return plan.debut;
  const long duree = plan.fin - plan.debut;
  const long jour = duree >= 730   ? moisPlusTard(plan.fin + 1, -2)
                    : duree >= 182 ? moisPlusTard(plan.fin + 1, -1)
                                   : plan.fin - 6;
  return std::max(plan.debut, jour);
}

void setPreavis(Contrat& contrat, std::string_view motif, long notifie) {
  data::CItem& item = contrat.item;
  if (parmiCodes("11 12 14 15 20 25 26 38 92", motif)) {
    item.Set(C::PreavisPayeDu, texte(notifie));
    item.Set(C::PreavisPayeAu, texte(contrat.plan.fin));
  } else if (parmiCodes("39 59", motif)) {
    item.Set(C::PreavisEffectueDu, texte(notifie));
    item.Set(C::PreavisEffectueAu, texte(contrat.plan.fin));
  } else if (parmiCodes("87 88", motif)) {
    item.Set(C::MotifNonVersement, "Faute privative de préavis");
  } else if (parmiCodes("91", motif)) {
    item.Set(C::PreavisNonEffectueDu, texte(notifie));
    item.Set(C::PreavisNonEffectueAu, texte(contrat.plan.fin));
  }
}

}  // namespace

void setElementsPaie(Contrat& contrat) {
  data::CItem& item = contrat.item;
  Alea& alea = contrat.alea;
  const bool particulier = contrat.plan.particulier;
  item.Set(C::Profil, profilDe(contrat));
  if (contrat.administratif && !contrat.plan.stage && alea.surCent(25)) item.Set(C::Profil2, "120");
  item.Set(C::ModePaiement, contrat.base.compteBancaire && alea.surCent(95) ? "1" : "2");
  const bool auMois = particulier && alea.surCent(60);
  item.Set(C::PaiementParEntite, !particulier || alea.surCent(75) ? "1" : "0");
  item.Set(C::ContratPrevoyance, contrat.prevoyance);
  item.Set(C::ConstanteB, "B");
  item.Set(C::CongesAuMois, auMois ? "1" : "0");
  item.Set(C::ProvisionConges, particulier && !auMois && alea.surCent(60) ? "1" : "0");
  const bool mutuelle = !particulier && alea.surCent(65);
  item.Set(C::MutuelleSalariale, mutuelle ? "2180" : "0");
  item.Set(C::MutuellePatronale, mutuelle ? "2180" : "0");
  if (mutuelle) item.Set(C::ChargeMutuelle, alea.surCent(60) ? "680" : "681");
  if (alea.surCent(4)) item.Set(C::ZoneTransport, alea.parmi(ZonesTransport).code);
  if (alea.surCent(2)) {
    item.Set(C::PlafondSecu, "196250");
    item.Set(C::AssietteSecu, "185000");
  }
  for (int rang = 0; const std::string& activite : contrat.activites) {
    item.Set(C::Activites, ++rang, activite);
  }
  if (contrat.administratif) setPartage(contrat);
  setRubriques(contrat);
  setCommentaires(contrat);
  item.Set(C::PeriodeTraitee, contrat.traitee);
  item.Set(C::DernierCalcul, contrat.calculee);
}

void setConges(Contrat& contrat) {
  data::CItem& item = contrat.item;
  Alea& alea = contrat.alea;
  const long mois = contrat.traitee.empty()
                        ? 0
                        : (data::premierJour(contrat.traitee).value() - contrat.plan.debut) / 30;
  const long acquis = mois >= 12 ? 30 : 0;
  const long enCours = std::min(30L, std::max(0L, mois % 12) * 5 / 2);
  const long valeurHeures = contrat.heuresMois / 26;
  item.Set(C::CPAcquis, texte(acquis * 100));
  item.Set(C::CPRestants, texte(alea.entre(0, acquis * 2) * 50));
  const long fractionnement = acquis > 0 ? alea.entre(0, 2) : 0;
  item.Set(C::FractionnementAcquis, texte(fractionnement));
  item.Set(C::FractionnementRestants, texte(alea.entre(0, fractionnement) * 100));
  item.Set(C::ValeurJourHeures, texte(valeurHeures));
  item.Set(C::ValeurJourMontant, texte(valeurHeures * 13));
  item.Set(C::CPEnCoursJours, texte(enCours * 100));
  item.Set(C::CPEnCoursHeures, texte(enCours * valeurHeures));
  item.Set(C::CPEnCoursMontant, texte(enCours * valeurHeures * 13));
  const long anciennete = mois / 60;
  item.Set(C::AncienneteAcquis, texte(anciennete));
  item.Set(C::AncienneteRestants, texte(alea.entre(0, anciennete) * 100));
  item.Set(C::JoursAnticipation, "0");
  const bool prevenance =
      !contrat.plan.particulier && !contrat.administratif && acquis > 0 && alea.surCent(20);
  item.Set(C::DelaiPrevAcquis, prevenance ? "2" : "0");
  item.Set(C::DelaiPrevRestants, prevenance ? "100" : "0");
  if (contrat.plan.particulier) {
    item.Set(C::ProvisionCP, texte(acquis * valeurHeures * 5));
    item.Set(C::ProvisionEnCours, texte(enCours * valeurHeures * 5));
  }
}

void setFin(Contrat& contrat) {
  const PlanContrat& plan = contrat.plan;
  if (plan.fin == 0) return;
  data::CItem& item = contrat.item;
  const std::string_view motif = plan.motifFin->code;
  const long notifie = notification(plan, motif);
  item.Set(C::DateFin, texte(plan.fin));
  item.Set(C::MotifFin, motif);
  item.Set(C::DateNotification, texte(notifie));
  const bool conges = plan.fin - plan.debut > 20 && contrat.alea.surCent(20);
  item.Set(C::DernierJourTravaille, texte(plan.fin - (conges ? contrat.alea.entre(1, 15) : 0)));
  // The bonus falls when the open-ended contract follows at once.
  const bool precarite = plan.type == 'D' && motif == "31" && plan.suivant == 0 && !plan.stage;
  item.Set(C::PrimePrecarite, precarite ? "1" : "0");
  if (plan.type == 'I') setPreavis(contrat, motif, notifie);
  item.Set(C::DernierBulletin, contrat.bulletin);
  if (contrat.alea.surCent(15)) {
    item.Set(C::ObservationsFin, 1, "Certificat de travail remis");
    item.Set(C::ObservationsFin, 2, "Solde de tout compte signé");
  }
  item.Set(C::OrganismeRetraite,
           plan.particulier ? std::string("IRCEM") : std::string(contrat.codeEntite()) + "03");
  if (motif == "43") item.Set(C::DateSignatureRupture, texte(notifie));
  if (parmiCodes("11 12 14 15 20 25 26 33 38 65 91 92 93", motif)) {
    item.Set(C::CalculLicenciement, plan.fin - plan.debut > 240 ? "1" : "0");
  }
  if (contrat.alea.surCent(10)) item.Set(C::DateFinReelle, texte(plan.fin));
}

}  // namespace demo
