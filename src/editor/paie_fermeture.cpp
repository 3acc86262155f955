#include "editor/paie_fermeture.h"

#include <algorithm>

#include "editor/editeur.h"

namespace editor {

namespace {

constexpr const char* HorsActivites[] = {"Cbo_PeriodeEffet",
                                         "Cbo_PeriodeEffetAffichage",
                                         "Cdr_Mutuelle",
                                         "Cdr_RegimePrev",
                                         "Cmd_OK",
                                         "Cmd_Retour",
                                         "Ong_Contrat",
                                         "Cmd_AjoutePeriodeEffet",
                                         "Cmd_Telegestion",
                                         "Cmd_Comment",
                                         "Cmd_RubSaisie",
                                         "Cmd_ImpContrat",
                                         "Txt_PlafSecu",
                                         "Txt_AssietteSecu",
                                         "Cac_CPMoisContrat",
                                         "Cac_ProvCP",
                                         "Txt_ProfilContrat",
                                         "Cbo_LibProfilContrat",
                                         "Txt_ProfilContrat2",
                                         "Cbo_LibProfilContrat2",
                                         "Cbo_ModPaieContrat",
                                         "Cac_PaieSalContrat"};

}  // namespace

void PaieFermeture::GriserSaufActivite(bool actif) {
  if (actif == !grise_) return;
  grise_ = !actif;
  if (grise_) fermes_.clear();
  for (const char* const nom : HorsActivites) {
    screen::Field& champ = *editeur_.Find(nom);
    if (grise_ && !champ.Enabled()) fermes_.push_back(&champ);
    const bool ferme = std::find(fermes_.begin(), fermes_.end(), &champ) != fermes_.end();
    champ.SetEnabled(actif && !ferme);
  }
}

}  // namespace editor
