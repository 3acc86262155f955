#include "data/requete.h"

namespace data {

Requete::Requete(std::string_view fichier, const char* verbe) : fichier_(fichier), texte_(verbe) {
  Ajouter({fichier});
}

Requete& Requete::Ajouter(std::initializer_list<std::string_view> mots) {
  for (const auto mot : mots) texte_.append(" ").append(mot);
  return *this;
}

Requete& Requete::Clause(const char* mot, const Champ& champ) {
  if (clause_) Ajouter({"AND"});
  clause_ = true;
  return Ajouter({mot, champ.texte});
}

Requete& Requete::Avec(const Champ& champ, const char* operateur, std::string_view valeur) {
  return Clause("AVEC", champ).Ajouter({operateur, valeur});
}

Requete& Requete::OuAvec(const Champ& champ, const char* operateur, std::string_view valeur) {
  return Ajouter({"OR AVEC", champ.texte, operateur, valeur});
}

Requete& Requete::Sans(const Champ& champ, const char* operateur, std::string_view valeur) {
  return Clause("SANS", champ).Ajouter({operateur, valeur});
}

Requete& Requete::Et(const char* operateur, std::string_view valeur) {
  return Ajouter({"AND", operateur, valeur});
}

Requete& Requete::Ou(const char* operateur, std::string_view valeur) {
  return Ajouter({"OR", operateur, valeur});
}

Requete& Requete::Par(const Champ& champ) {
  return Ajouter({"PAR", champ.texte});
}

Requete& Requete::ParDecr(const Champ& champ) {
  return Ajouter({"PAR-DECR", champ.texte});
}

CItem Requete::Lire(Db& db, std::initializer_list<int> colonnes) const {
  std::string liste;
  for (const int colonne : colonnes) {
    liste.append(liste.empty() ? "" : " ").append(std::to_string(colonne));
  }
  return db.Selectionner(texte_, fichier_, liste);
}

}  // namespace data
