// The checks of the last tab, in their order.

#include "data/jour.h"
#include "editor/editeur.h"

namespace editor {

namespace {

using screen::Icone;

constexpr const char* SignatureObligatoire =
    "La date de signature de convention pour le motif de fin de contrat \"Rupture "
    "conventionnelle\" est obligatoire.";
constexpr const char* SignatureApresFinReelle =
    "La date de signature de convention pour le motif de fin de contrat \"Rupture "
    "conventionnelle\" doit être inférieure ou égale à la date de fin réelle.";
constexpr const char* SignatureApresFin =
    "La date de signature de convention pour le motif de fin de contrat \"Rupture "
    "conventionnelle\" doit être inférieure ou égale à la date de fin du contrat.";

}  // namespace

const rules::Verification<OngletFin> OngletFin::Verifications[] = {
    {[](OngletFin& o) {
       return !o.Txt_DatNotifContrat.Text().empty() && o.dates_.DateFin().empty();
     },
     "La date de notification est renseignée, mais pas la date de fin.\r\nVous devez supprimer la "
     "date de notification ou terminer la saisie de fin du contrat.",
     Icone::Exclamation, "Txt_DatNotifContrat"},
};

// What an end asks for.
const rules::Verification<OngletFin> OngletFin::VerificationsFin[] = {
    {[](OngletFin& o) { return apres(o.editeur_.origine.Debut(), o.dates_.Fin()); },
     "La date de fin de contrat doit être supérieure à la date de début de contrat.",
     Icone::Exclamation, "Txt_DateFinContrat"},
    {[](OngletFin& o) { return o.motif_.Vide(); }, "Le motif de fin de contrat est obligatoire.",
     Icone::Exclamation, "Cbo_MotifFinContrat"},
    {[](OngletFin& o) { return o.motif_.Signee() && o.motif_.SignatureManque(); },
     SignatureObligatoire, Icone::Exclamation, "Txt_DateSignConvCol"},
    {[](OngletFin& o) {
       return o.motif_.Signee() && apres(o.motif_.Signature(), o.dates_.FinReelle());
     },
     SignatureApresFinReelle, Icone::Exclamation, "Txt_DateSignConvCol"},
    {[](OngletFin& o) {
       return o.motif_.Signee() && o.dates_.FinReelleVide() &&
              apres(o.motif_.Signature(), o.dates_.Fin());
     },
     SignatureApresFin, Icone::Exclamation, "Txt_DateSignConvCol"},
    {[](OngletFin& o) {
       return !o.editeur_.origine.Genre().Determine() && o.Txt_DatNotifContrat.Text().empty();
     },
     "La date de notification de fin de contrat est obligatoire.", Icone::Exclamation,
     "Txt_DatNotifContrat"},
    {[](OngletFin& o) {
       return !o.editeur_.origine.Genre().Determine() &&
              apres(o.dates_.Jour(o.Txt_DatNotifContrat), o.dates_.Fin());
     },
     "La date de notification ne peut être supérieure à la date de fin de contrat.",
     Icone::Exclamation, "Txt_DatNotifContrat"},
    {[](OngletFin& o) { return o.DernierJour().empty(); },
     "Le dernier jour travaillé est obligatoire.", Icone::Exclamation, "Txt_DernJrWContrat"},
    {[](OngletFin& o) { return apres(o.dates_.DernierJourTravaille(), o.dates_.Fin()); },
     "La date du dernier jour travaillé ne peut être supérieure à la date de fin de contrat.",
     Icone::Exclamation, "Txt_DernJrWContrat"},
    {[](OngletFin& o) { return o.bulletin_.Periode().empty(); },
     "La période du dernier bulletin est obligatoire.", Icone::Exclamation, "",
     [](OngletFin& o) {
       if (const auto fin = o.FinAffichee()) o.bulletin_.Borner(o.editeur_.origine.Debut(), *fin);
     }},
    {[](OngletFin& o) {
       const auto fin = o.FinAffichee();
       return fin && o.bulletin_.Periode() > data::periodeDe(*fin);
     },
     "La période du dernier bulletin doit être inférieure ou égale au mois de la date de fin."},
    // The one notice that is chosen.
    {[](OngletFin& o) {
       const auto* const p = o.preavis_.Choisi();
       return p != nullptr && apres(o.dates_.Jour(p->debut), o.dates_.Jour(p->fin));
     },
     "La date de début de préavis ne peut être supérieure à la date de fin de préavis.",
     Icone::Exclamation, "", [](OngletFin& o) { o.preavis_.Choisi()->debut.SetFocus(); }},
    {[](OngletFin& o) {
       const auto* const p = o.preavis_.Choisi();
       return p != nullptr && apres(o.editeur_.origine.Debut(), o.dates_.Jour(p->debut));
     },
     "La date de début du préavis ne peut être inférieure à la date de début de contrat.",
     Icone::Exclamation, "", [](OngletFin& o) { o.preavis_.Choisi()->debut.SetFocus(); }},
    {[](OngletFin& o) {
       const auto* const p = o.preavis_.Choisi();
       return p != nullptr && apres(o.dates_.Jour(p->fin), o.dates_.Fin());
     },
     "La date de fin du préavis ne peut être supérieure à la date de fin de contrat.",
     Icone::Exclamation, "", [](OngletFin& o) { o.preavis_.Choisi()->fin.SetFocus(); }},
    {[](OngletFin& o) {
       const auto* const p = o.preavis_.Choisi();
       return p != nullptr && p->fin.Text().empty();
     },
     "La date de fin du préavis doit être renseignée.", Icone::Exclamation, "",
     [](OngletFin& o) { o.preavis_.Choisi()->fin.SetFocus(); }},
    {[](OngletFin& o) {
       const auto* const p = o.preavis_.Choisi();
       return p != nullptr && p->debut.Text().empty();
     },
     "La date de début du préavis doit être renseignée.", Icone::Exclamation, "",
     [](OngletFin& o) { o.preavis_.Choisi()->debut.SetFocus(); }},
    {[](OngletFin& o) { return o.retraite_.Vide() && !o.editeur_.origine.Particuliers(); },
     "L'organisme de retraite est obligatoire.", Icone::Exclamation, "Cbo_OrgRetraite"},
};

bool OngletFin::Verif_Ong5() {
  const auto refuser = [this](const rules::Refus& refus) { Refuser(refus); };
  if (!rules::Verifier<OngletFin>(Verifications, *this, refuser)) return false;
  return dates_.DateFin().empty() || rules::Verifier<OngletFin>(VerificationsFin, *this, refuser);
}

}  // namespace editor
