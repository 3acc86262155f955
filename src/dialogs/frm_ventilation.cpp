#include "dialogs/frm_ventilation.h"

namespace dialogs {

namespace {

constexpr FormeHebergee::Hebergement Ventilation{
    .controle = "Ctr_Ventilation",
    .absent =
        "Le détail du décompte ne peut pas être affiché ici : l'écran du décompte des congés n'est "
        "pas installé sur ce poste. Consultez-le depuis la paie.",
    .sortie = "W_Sortir",
    .retenue = nullptr,
    .liberee = "-1"};

}  // namespace

Frm_Ventilation::Frm_Ventilation(screen::Platform& platform, Decompte decompte)
    : FormeHebergee(platform, "Frm_Ventilation", "Detail décompte", Ventilation),
      decompte_(std::move(decompte)) {}

std::vector<FormeHebergee::Propriete> Frm_Ventilation::Contexte() const {
  return {{"TheDatabase", "Db"},
          {"TheClient", "LeClient"},
          {"DroitsUtilisateur", "W_Droits"},
          {"W_CodeAidant", decompte_.codeAidant},
          {"W_NomPrenom", decompte_.nomPrenom},
          {"W_CodeEmployeur", decompte_.codeEmployeur},
          {"W_NomEmployeur", decompte_.nomEmployeur},
          {"W_CodeContrat", decompte_.cleContrat},
          // Every heading.
          {"W_NumMotif", ""}};
}

}  // namespace dialogs
