#include "dialogs/forme_param_table.h"

#include "data/nombre.h"

namespace dialogs {

std::vector<FormeHebergee::Propriete> FormeParamTable::Contexte() const {
  return {{"TheDatabase", "Db"},
          {"TheClient", "LeClient"},
          {"TheCle", table_},
          {"W_Droits", droits_},
          {"DroitsUtilisateur", "W_Droits"}};
}

void FormeParamTable::AdapteExe() {
  largeur_ = static_cast<int>(data::entier(Controle()->Lire("Width"))) + Marge;
  hauteur_ = static_cast<int>(data::entier(Controle()->Lire("Height"))) + Marge;
}

}  // namespace dialogs
