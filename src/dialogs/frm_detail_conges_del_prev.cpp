#include "dialogs/frm_detail_conges_del_prev.h"

namespace dialogs {

namespace {

constexpr FormeHebergee::Hebergement DetailConges{
    "Ctr_DetailCongesDelPrev",
    "Le détail ne peut pas être affiché ici : l'écran des congés de délai de prévenance n'est pas "
    "installé sur ce poste. Consultez-le depuis la paie.",
    "W_Occupe", "-1"};

}  // namespace

Frm_DetailCongesDelPrev::Frm_DetailCongesDelPrev(screen::Platform& platform, Conges conges)
    : FormeHebergee(platform, "Frm_DetailCongesDelPrev", "Détails", DetailConges),
      conges_(std::move(conges)) {}

std::vector<FormeHebergee::Propriete> Frm_DetailCongesDelPrev::Contexte() const {
  return {{"DroitsUtilisateur", "W_Droits"},
          {"W_CodeAidant", conges_.codeAidant},
          {"W_CodeAssoc", conges_.association},
          {"W_CodeEmployeur", conges_.employeur},
          {"W_Periode", conges_.periode},
          {"TheDatabase", "Db"},
          {"TheClient", "LeClient"}};
}

}  // namespace dialogs
