#pragma once
// A query put together from the names of the layouts, so that no attribute number stands in a text.
//
//   Requete(fichier::ACTIVITES)
//       .Avec(Cle, "=", citerDebut(entite))
//       .Avec(Activites::Genre, "=", citer("M"))
//       .Par(Activites::Libelle)
//       .Lire(db, {Cle, Activites::Libelle})
//
// sends SSELECT ACTIVITES AVEC 0 = "001]" AND AVEC 12 = "M" PAR 1 for the columns "0 1". Values
// come quoted, by citer or citerDebut. Clauses are joined by AND, but for OuAvec.

#include <initializer_list>
#include <string>
#include <string_view>

#include "data/db.h"
#include "data/question.h"

namespace data {

// The key of a record, as a field.
inline constexpr int Cle = 0;

class Requete {
 public:
  // A field: an attribute, or a name of the dictionary.
  struct Champ {
    Champ(int attribut) : texte(std::to_string(attribut)) {}
    Champ(const char* nom) : texte(nom) {}
    std::string texte;
  };

  explicit Requete(std::string_view fichier, const char* verbe = "SSELECT");

  // The field holds something; a value of it compares so; no value does.
  Requete& Avec(const Champ& champ) { return Clause("AVEC", champ); }
  Requete& Avec(const Champ& champ, const char* operateur, std::string_view valeur);
  // Another way to be found: what stands before it, or this and what follows.
  Requete& OuAvec(const Champ& champ, const char* operateur, std::string_view valeur);
  Requete& Sans(const Champ& champ) { return Clause("SANS", champ); }
  Requete& Sans(const Champ& champ, const char* operateur, std::string_view valeur);
  // A further comparison of the clause before.
  Requete& Et(const char* operateur, std::string_view valeur);
  Requete& Ou(const char* operateur, std::string_view valeur);
  Requete& Par(const Champ& champ);
  Requete& ParDecr(const Champ& champ);

  const std::string& Texte() const { return texte_; }
  CItem Lire(Db& db, std::initializer_list<int> colonnes) const;

 private:
  Requete& Clause(const char* mot, const Champ& champ);
  Requete& Ajouter(std::initializer_list<std::string_view> mots);

  std::string fichier_;
  std::string texte_;
  bool clause_ = false;
};

}  // namespace data
