#include "editor/origine_listes.h"

namespace editor::Liste {

int chercher(const data::CItem& liste, std::string_view code) {
  for (int i = 1; i <= liste.DCount(); ++i) {
    if (liste.Vue(i, Code) == code) return i;
  }
  return 0;
}

std::string libelleDe(const data::CItem& liste, std::string_view code) {
  return liste(chercher(liste, code), Libelle);
}

data::CItem uneLigne(std::string_view code, std::string_view libelle) {
  data::CItem liste;
  liste.Set(1, Code, code);
  liste.Set(1, Libelle, libelle);
  return liste;
}

void remplir(screen::RowsField& champ, const data::CItem& liste) {
  champ.Clear();
  for (int i = 1; i <= liste.DCount(); ++i) champ.AddItem(liste.Vue(i, Libelle));
}

std::vector<PaireCode::Ligne> lignes(const data::CItem& liste) {
  std::vector<PaireCode::Ligne> resultat;
  for (int i = 1; i <= liste.DCount(); ++i) resultat.push_back({liste(i, Code), liste(i, Libelle)});
  return resultat;
}

}  // namespace editor::Liste
