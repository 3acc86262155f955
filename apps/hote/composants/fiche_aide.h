#pragma once
// The civil state of a person helped, as a clerk reads and corrects it: one table of places.

#include <string>
#include <vector>

#include "data/citem.h"
#include "data/db.h"

namespace hote {

struct PlaceAide {
  enum class Genre { Texte, Postal, Date, Voie };
  int attribut;
  const char* libelle;
  int longueur;  // characters, most
  Genre genre = Genre::Texte;
  bool obligatoire = false;
};

class FicheAide {
 public:
  // `annee`: the current one, for dates typed without theirs. A StoreError when the person is not
  // on file.
  FicheAide(data::Db& db, const std::string& code, int annee);

  static const std::vector<PlaceAide>& Places();
  // Codes and labels of the kinds of street.
  const data::CItem& NaturesVoie() const { return natures_; }

  // As it is shown: dates as days, the rest as on file.
  std::string Lire(const PlaceAide& place) const;
  // Why the text cannot stand there, in French; "" when it was taken.
  std::string Ecrire(const PlaceAide& place, const std::string& texte);
  bool Modifiee() const { return item_.Text() != initial_.Text(); }
  // Why nothing was stored, "" when all was.
  std::string Enregistrer();

 private:
  data::Db& db_;
  std::string code_;
  int annee_;
  data::CItem item_;
  data::CItem initial_;
  data::CItem natures_;
};

}  // namespace hote
