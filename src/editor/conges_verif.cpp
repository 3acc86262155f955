// The checks of the fourth tab, in their order.

#include "editor/editeur.h"

namespace editor {

const rules::Verification<OngletConges> OngletConges::Verifications[] = {
    {[](OngletConges& o) { return o.AvecSeparateur(o.Txt_CFConsoAcqContrat); },
     "Le nombre de jours pour congés pour fractionnement acquis doit être un entier.",
     screen::Icone::Exclamation, "Txt_CFConsoAcqContrat"},
    {[](OngletConges& o) { return o.AvecSeparateur(o.Txt_CPCoursJContrat); },
     "Le nombre de jours pour congés payés en-cours doit être un entier.",
     screen::Icone::Exclamation, "Txt_CPCoursJContrat"},
    {[](OngletConges& o) { return o.AvecSeparateur(o.Txt_CAncAcqContrat); },
     "Le nombre de jours pour congés d'ancienneté acquis doit être un entier.",
     screen::Icone::Exclamation, "Txt_CAncAcqContrat"},
    {[](OngletConges& o) {
       const data::Monnaie restants = o.Valeur(o.Txt_CPRestConsoContrat);
       return restants < data::Monnaie() && restants.Absolue() > o.Valeur(o.Txt_CPCoursJContrat);
     },
     "Le nombre de jours pour congés payés pris par avance doit être inférieur au nombre de jours "
     "en cours d'acquisition.",
     screen::Icone::Exclamation, "Txt_CPRestConsoContrat"},
    {[](OngletConges& o) {
       return o.Valeur(o.Txt_CPRestConsoContrat) > o.Valeur(o.Txt_CPConsoAcqContrat);
     },
     "Le nombre de jours pour congés payés restants doit être inférieur au nombre de jours acquis.",
     screen::Icone::Exclamation, "Txt_CPRestConsoContrat"},
    {[](OngletConges& o) {
       return o.Valeur(o.Txt_CFRestConsoContrat) > o.Valeur(o.Txt_CFConsoAcqContrat);
     },
     "Le nombre de jours pour congés pour fractionnement restants doit être inférieur au nombre de "
     "jours acquis.",
     screen::Icone::Exclamation, "Txt_CFRestConsoContrat"},
    {[](OngletConges& o) {
       return o.Valeur(o.Txt_CAncRestContrat) > o.Valeur(o.Txt_CAncAcqContrat);
     },
     "Le nombre de jours pour congés d'ancienneté restants doit être inférieur au nombre de jours "
     "acquis.",
     screen::Icone::Exclamation, "Txt_CAncRestContrat"},
    {[](OngletConges& o) { return !o.Valeur(o.Txt_CPRestConsoContrat).EntierOuDemi(); },
     "Le nombre de jours restants pour congés payés acquis doit être un entier ou une "
     "demi-journée.",
     screen::Icone::Exclamation, "Txt_CPRestConsoContrat"},
    {[](OngletConges& o) { return !o.Valeur(o.Txt_CFRestConsoContrat).EntierOuDemi(); },
     "Le nombre de jours restants pour congés pour fractionnement acquis doit être un entier ou "
     "une demi-journée.",
     screen::Icone::Exclamation, "Txt_CFRestConsoContrat"},
    {[](OngletConges& o) { return !o.Valeur(o.Txt_CAncRestContrat).EntierOuDemi(); },
     "Le nombre de jours restants pour congés d'ancienneté en-cours doit être un entier ou une "
     "demi-journée.",
     screen::Icone::Exclamation, "Txt_CAncRestContrat"},
    {[](OngletConges& o) { return o.Cdr_DelaiPrev.Enabled() && o.AvecSeparateur(o.Txt_CDPAcquis); },
     "Le nombre de jours pour congés délai prévenance acquis doit être un entier.",
     screen::Icone::Exclamation, "Txt_CDPAcquis"},
    {[](OngletConges& o) {
       return o.Cdr_DelaiPrev.Enabled() && o.Valeur(o.Txt_CDPRestants) > o.Valeur(o.Txt_CDPAcquis);
     },
     "Le nombre de jours pour congés délai prévenance restants doit être inférieur au nombre de "
     "jours acquis.",
     screen::Icone::Exclamation, "Txt_CDPRestants"},
};

bool OngletConges::Verif_Ong4() {
  MettreZero();
  return rules::Verifier<OngletConges>(Verifications, *this,
                                       [this](const rules::Refus& refus) { Refuser(refus); });
}

}  // namespace editor
