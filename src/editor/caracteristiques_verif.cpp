// The checks of the second tab, in their order.

#include "editor/editeur.h"
#include "editor/onglet_caracteristiques.h"

namespace editor {

namespace {

using screen::Icone;

}  // namespace

const rules::Verification<OngletCaracteristiques> OngletCaracteristiques::Verifications[] = {
    {[](OngletCaracteristiques& o) { return o.avenants_.DateEffet().empty(); },
     "La date d'effet de l'avenant est obligatoire.", Icone::Exclamation, "Txt_DatEffetContrat"},
    {[](OngletCaracteristiques& o) { return o.qualification_.Absente(); },
     "La qualification professionnelle est obligatoire.", Icone::Exclamation, "Cbo_QualifContrat"},
    {[](OngletCaracteristiques& o) { return o.pcs_.CategorieAbsente(); },
     "La catégorie P.C.S est obligatoire.", Icone::Exclamation, "Cbo_CategPCSContrat"},
    {[](OngletCaracteristiques& o) { return o.pcs_.FonctionAbsente(); },
     "La fonction P.C.S est obligatoire.", Icone::Exclamation, "Cbo_FoncPCSContrat"},
    {[](OngletCaracteristiques& o) { return o.duree_.DureeManque(); },
     "La durée de travail est obligatoire.", Icone::Information, "Txt_DureeWContrat"},
    {[](OngletCaracteristiques& o) { return o.duree_.FrequenceManque(); },
     "La fréquence est obligatoire.", Icone::Information, "Cbo_FreqWContrat"},
    {[](OngletCaracteristiques& o) { return o.grille_.TauxManque(); },
     "Le taux horaire est obligatoire.", Icone::Information, "Txt_TauxHorContrat"},
    {[](OngletCaracteristiques& o) {
       return o.modulation_.LissageManque() && o.editeur_.origine.Genre().Mensuel() &&
              o.editeur_.origine.Genre().Production();
     },
     "Le lissage des rémunérations est obligatoire.", Icone::Exclamation},
    {[](OngletCaracteristiques& o) { return !o.pcs_.CategorieJuste(); },
     "Cette catégorie P.C.S n'existe pas.", Icone::Exclamation, "Cbo_CategPCSContrat"},
    {[](OngletCaracteristiques& o) { return !o.pcs_.FonctionJuste(); },
     "Cette fonction P.C.S n'existe pas.", Icone::Exclamation, "Cbo_FoncPCSContrat"},
    {[](OngletCaracteristiques& o) { return o.grille_.Choisie() && !o.grille_.Connue(); },
     "Cette grille n'existe pas.", Icone::Exclamation, "Cbo_GrilleContrat"},
};

bool OngletCaracteristiques::Verif_Ong2() {
  return rules::Verifier<OngletCaracteristiques>(
      Verifications, *this, [this](const rules::Refus& refus) { Refuser(refus); });
}

}  // namespace editor
