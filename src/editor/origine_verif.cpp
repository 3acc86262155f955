#include "editor/origine_verif.h"

#include "data/jour.h"
#include "data/layouts/contrat.h"
#include "data/nombre.h"
#include "data/texte.h"

namespace editor {

namespace {

namespace C = data::Contrat;
using screen::Icone;

constexpr const char* DateIncorrecte = "La date saisie est incorrecte, veuillez la ressaisir.";
constexpr const char* BulletinCalcule =
    "Impossible de modifier la date de début : un bulletin a déjà été calculé pour ce contrat.";

bool sansMotif(const data::CItem& contrat) {
  for (const auto motif : {contrat.Vue(C::MotifEmbaucheTexte, 1),
                           contrat.Vue(C::MotifEmbaucheTexte, 2), contrat.Vue(C::MotifEmbauche)}) {
    if (!data::sansBlancs(motif).empty()) return false;
  }
  return true;
}

bool stageIncomplet(const data::CItem& contrat) {
  for (const int a : C::GroupeStage) {
    if (contrat.Vue(a).empty()) return true;
  }
  return false;
}

bool debutDeplace(const SaisieOrigine& s) {
  return s.existant && s.debut && std::to_string(*s.debut) != s.debutInitial;
}

// Payroll has not processed the contract yet.
bool jamaisTraite(const SaisieOrigine& s) {
  return s.contrat.Vue(C::PeriodeTraitee).empty();
}

bool apresSecondAvenant(const SaisieOrigine& s) {
  const auto depart = s.contrat.Vue(C::DepartGrille, 2);
  return debutDeplace(s) && !depart.empty() && *s.debut > data::entier(depart);
}

// Compared as texts on purpose: internal dates of today all have five digits.
bool avantPeriodePaie(const SaisieOrigine& s) {
  if (!debutDeplace(s) || !jamaisTraite(s)) return false;
  const auto premier = data::premierJour(s.periodePaie);
  return premier && std::to_string(*s.debut) < std::to_string(*premier);
}

std::string premierJourAffiche(const SaisieOrigine& s) {
  return data::dateAffichee(data::premierJour(s.periodePaie).value_or(0)) + ".";
}

bool bulletinDuMois(const SaisieOrigine& s) {
  if (!debutDeplace(s) || !jamaisTraite(s) || !data::premierJour(s.periodePaie)) return false;
  return s.bulletinCalcule(s.periodePaie) ||
         s.bulletinCalcule(data::decalePeriode(s.periodePaie, 1));
}

// The start on file, not the one that a copy of the screen may have put in the contract meanwhile.
bool dejaTraite(const SaisieOrigine& s) {
  return debutDeplace(s) && !jamaisTraite(s) &&
         s.contrat.Vue(C::PeriodeTraitee) >=
             data::periodeDe(static_cast<long>(data::entier(s.debutInitial)));
}

constexpr VerificationOrigine Verifications[] = {
    {[](const SaisieOrigine& s) { return s.convention.empty(); },
     "La convention collective est obligatoire.", Icone::Exclamation, "Txt_ConvColContrat"},
    {[](const SaisieOrigine& s) { return s.association.empty(); },
     "L'entité juridique est obligatoire.", Icone::Exclamation, "Txt_AssocContrat"},
    {[](const SaisieOrigine& s) { return s.employeur.empty(); }, "L'employeur est obligatoire.",
     Icone::Exclamation, "Cbo_LibEmplEtabContrat"},
    {[](const SaisieOrigine& s) { return s.dateDebut.empty(); },
     "La date de début de contrat est obligatoire.", Icone::Information, "Txt_DatDebContrat"},
    {[](const SaisieOrigine& s) { return !s.debut; }, DateIncorrecte, Icone::Information,
     "Txt_DatDebContrat"},
    {[](const SaisieOrigine& s) { return !s.dateSignature.empty() && s.reference.empty(); },
     "Le numéro de référence est obligatoire si la date de signature convention emploi aidé est "
     "renseignée.",
     Icone::Information, "Txt_NumRef"},
    {[](const SaisieOrigine& s) { return s.determine && !s.dateFin.empty() && !s.fin; },
     DateIncorrecte, Icone::Information, "Txt_DatFinContrat"},
    {[](const SaisieOrigine& s) { return s.determine && s.fin && s.debut && *s.fin < *s.debut; },
     "La date de fin de contrat présumée doit être supérieure ou égale à la date de début de "
     "contrat.",
     Icone::Information, "Txt_DatFinContrat"},
    {[](const SaisieOrigine& s) {
       return s.determine && NatureExigeFin(s.nature) && s.dateFin.empty();
     },
     "La date de fin présumée est obligatoire pour un CDD.", Icone::Information,
     "Txt_DatFinContrat"},
    {[](const SaisieOrigine& s) { return s.determine && sansMotif(s.contrat); },
     "La saisie d'un motif d'embauche est obligatoire.", Icone::Exclamation, "", Suite::MotifCDD},
    {[](const SaisieOrigine& s) {
       return s.nature == NatureStagiaire && stageIncomplet(s.contrat);
     },
     "La saisie du détail de la convention de stage est obligatoire.", Icone::Exclamation, "",
     Suite::Stage},
    {apresSecondAvenant,
     "La date de début de contrat ne peut être supérieure à la date d'effet du second avenant, "
     "veuillez supprimer le contrat et le recréer pour effectuer votre modification.",
     Icone::Exclamation, "Txt_DatDebContrat"},
    {avantPeriodePaie, "La date de début de contrat ne peut être antérieure au ",
     Icone::Exclamation, "Txt_DatDebContrat", Suite::Aucune, premierJourAffiche},
    {bulletinDuMois, BulletinCalcule, Icone::Exclamation, "Txt_DatDebContrat"},
    {dejaTraite, BulletinCalcule, Icone::Exclamation, "Txt_DatDebContrat"},
};

}  // namespace

std::span<const VerificationOrigine> verificationsOrigine() {
  return Verifications;
}

}  // namespace editor
