// The checks of the third tab, in their order.

#include "editor/editeur.h"

namespace editor {

namespace {

using screen::Icone;

constexpr const char* RubriquesSansActivite =
    "Les activités des rubriques de saisie ne sont pas en correspondance avec les activités du "
    "contrat.";

}  // namespace

const rules::Verification<OngletPaie> OngletPaie::Verifications[] = {
    {[](OngletPaie& o) { return o.cotisations_.ChargeManque(); },
     "La rubrique de charge liée à la mutuelle est obligatoire.", Icone::Exclamation,
     "Txt_ChargMutContrat"},
    {[](OngletPaie& o) { return o.profils_.Manque(); }, "Le profil est obligatoire.",
     Icone::Exclamation, "Txt_ProfilContrat"},
    {[](OngletPaie& o) { return o.paiement_.ModeManque(); }, "Le mode de paiement est obligatoire.",
     Icone::Exclamation, "Cbo_ModPaieContrat"},
    {[](OngletPaie& o) { return o.activites_.Manquent(); },
     "Au moins une activité est obligatoire.", Icone::Exclamation, "Cbo_Activite"},
    {[](OngletPaie& o) { return o.cotisations_.PrevoyanceManque(); },
     "Le choix d'un contrat de prévoyance dans la liste est obligatoire."},
    {[](OngletPaie& o) { return o.activites_.PeriodeManque(); },
     "La période d'effet des activités est obligatoire.", Icone::Exclamation,
     "Cbo_PeriodeEffetAffichage"},
    {[](OngletPaie& o) { return o.activites_.TotalFaux(); },
     "Le total de la répartition des activités est différent de 100."},
};

// After the list: the profile rule.
bool OngletPaie::Verif_Ong3() {
  return rules::Verifier<OngletPaie>(Verifications, *this,
                                     [this](const rules::Refus& refus) { Refuser(refus); }) &&
         profils_.Verif_Profil();
}

// The bank details of a transfer, and the headings that hang on the activities.
bool OngletPaie::Ecrivable_Ong() {
  if (paiement_.RibManquant("paiement")) return false;
  if (activites_.RubriqueSansActivite()) {
    Refuser({RubriquesSansActivite});
    return false;
  }
  return true;
}

}  // namespace editor
