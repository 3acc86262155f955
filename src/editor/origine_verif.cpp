// The checks of the first tab, in their order.

#include "data/jour.h"
#include "data/nombre.h"
#include "data/texte.h"
#include "editor/onglet_origine.h"

namespace editor {

namespace {

namespace C = data::Contrat;
using screen::Icone;

constexpr const char* DateIncorrecte = "La date saisie est incorrecte, veuillez la ressaisir.";
constexpr const char* BulletinDejaCalcule =
    "Impossible de modifier la date de début : un bulletin a déjà été calculé pour ce contrat.";

// Whether a fixed term of that nature must say when it is presumed to end: each of them must.
constexpr bool NatureExigeFin(std::string_view /*nature*/) {
  return true;
}

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

// Payroll has not processed the contract yet.
bool jamaisTraite(const data::CItem& contrat) {
  return contrat.Vue(C::PeriodeTraitee).empty();
}

bool bulletinCalcule(const session::Dossier& dossier, const std::string& periode) {
  data::CItem calcul;
  return dossier.Session.F_DETAILCALCUL.Lire(dossier.CleContratCourant + periode, calcul);
}

}  // namespace

const rules::Verification<OngletOrigine> OngletOrigine::Verifications[] = {
    {[](OngletOrigine& o) { return o.Convention().empty(); },
     "La convention collective est obligatoire.", Icone::Exclamation, "Txt_ConvColContrat"},
    {[](OngletOrigine& o) { return o.Entite().empty(); }, "L'entité juridique est obligatoire.",
     Icone::Exclamation, "Txt_AssocContrat"},
    {[](OngletOrigine& o) { return o.Employeur().empty(); }, "L'employeur est obligatoire.",
     Icone::Exclamation, "Cbo_LibEmplEtabContrat"},
    {[](OngletOrigine& o) { return o.DateDebut().empty(); },
     "La date de début de contrat est obligatoire.", Icone::Information, "Txt_DatDebContrat"},
    {[](OngletOrigine& o) { return !o.Debut(); }, DateIncorrecte, Icone::Information,
     "Txt_DatDebContrat"},
    {[](OngletOrigine& o) { return o.emploiAide_.ReferenceManque(); },
     "Le numéro de référence est obligatoire si la date de signature convention emploi aidé est "
     "renseignée.",
     Icone::Information, "Txt_NumRef"},
    {[](OngletOrigine& o) {
       return o.genre_.Determine() && !o.duree_.DateFin().empty() && !o.duree_.FinPresumee();
     },
     DateIncorrecte, Icone::Information, "Txt_DatFinContrat"},
    {[](OngletOrigine& o) {
       return o.genre_.Determine() && o.duree_.FinPresumee() &&
              *o.duree_.FinPresumee() < *o.Debut();
     },
     "La date de fin de contrat présumée doit être supérieure ou égale à la date de début de "
     "contrat.",
     Icone::Information, "Txt_DatFinContrat"},
    {[](OngletOrigine& o) {
       return o.genre_.Determine() && NatureExigeFin(o.nature_.Libelle()) &&
              o.duree_.DateFin().empty();
     },
     "La date de fin présumée est obligatoire pour un CDD.", Icone::Information,
     "Txt_DatFinContrat"},
    {[](OngletOrigine& o) { return o.genre_.Determine() && sansMotif(o.Contrat()); },
     "La saisie d'un motif d'embauche est obligatoire.", Icone::Exclamation, "",
     [](OngletOrigine& o) { o.Cmd_MotifCDD_Click(); }, true},
    {[](OngletOrigine& o) { return o.nature_.StageRequis() && stageIncomplet(o.Contrat()); },
     "La saisie du détail de la convention de stage est obligatoire.", Icone::Exclamation, "",
     [](OngletOrigine& o) { o.nature_.Cmd_Stage_Click(); }},
    {[](OngletOrigine& o) {
       const auto depart = o.Contrat().Vue(C::DepartGrille, 2);
       return o.duree_.DebutDeplace() && !depart.empty() && *o.Debut() > data::entier(depart);
     },
     "La date de début de contrat ne peut être supérieure à la date d'effet du second avenant, "
     "veuillez supprimer le contrat et le recréer pour effectuer votre modification.",
     Icone::Exclamation, "Txt_DatDebContrat"},
    // Compared as texts on purpose: internal dates of today all have five digits.
    {[](OngletOrigine& o) {
       if (!o.duree_.DebutDeplace() || !jamaisTraite(o.Contrat())) return false;
       const auto premier = data::premierJour(o.Session().PeriodePaie());
       return premier && std::to_string(*o.Debut()) < std::to_string(*premier);
     },
     "La date de début de contrat ne peut être antérieure au ", Icone::Exclamation,
     "Txt_DatDebContrat", nullptr, false,
     [](OngletOrigine& o) {
       return data::dateAffichee(data::premierJour(o.Session().PeriodePaie()).value_or(0)) + ".";
     }},
    {[](OngletOrigine& o) {
       const std::string periode = o.Session().PeriodePaie();
       return o.duree_.DebutDeplace() && jamaisTraite(o.Contrat()) && data::premierJour(periode) &&
              (bulletinCalcule(o.Dossier(), periode) ||
               bulletinCalcule(o.Dossier(), data::decalePeriode(periode, 1)));
     },
     BulletinDejaCalcule, Icone::Exclamation, "Txt_DatDebContrat"},
    // The start on file, not the one that a copy of the screen may have put in the contract.
    {[](OngletOrigine& o) {
       const auto debut = data::entier(o.Dossier().Initial.Vue(C::DateDebut));
       return o.duree_.DebutDeplace() && !jamaisTraite(o.Contrat()) &&
              o.Contrat().Vue(C::PeriodeTraitee) >= data::periodeDe(static_cast<long>(debut));
     },
     BulletinDejaCalcule, Icone::Exclamation, "Txt_DatDebContrat"},
};

bool OngletOrigine::Verif_Ong1() {
  nature_.RendreStage();
  return rules::Verifier<OngletOrigine>(Verifications, *this,
                                        [this](const rules::Refus& refus) { Refuser(refus); });
}

}  // namespace editor
