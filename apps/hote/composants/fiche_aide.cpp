#include "composants/fiche_aide.h"

#include <algorithm>

#include "data/jour.h"
#include "data/layouts/fichiers.h"
#include "data/layouts/voisins.h"
#include "data/nombre.h"
#include "data/texte.h"

namespace hote {

using namespace data;

const std::vector<PlaceAide>& FicheAide::Places() {
  namespace A = data::CivilAide;
  using Genre = PlaceAide::Genre;
  static const std::vector<PlaceAide> Places{
      {A::Nom, "Nom", 40, Genre::Texte, true},
      {A::Prenom, "Prénom", 40},
      {A::NomNaissance, "Nom de naissance", 40},
      {A::DateNaissance, "Date de naissance", 10, Genre::Date},
      {A::VoieNumero, "N°", 6},
      {A::VoieBis, "Bis, ter", 5},
      {A::VoieNature, "Voie", 4, Genre::Voie},
      {A::VoieNom, "Nom de la voie", 60},
      {A::AdresseComplement, "Complément", 60},
      {A::CodePostal, "Code postal", 5, Genre::Postal},
      {A::Ville, "Ville", 50},
      {A::Telephone, "Téléphone", 20},
  };
  return Places;
}

FicheAide::FicheAide(Db& db, const std::string& code, int annee)
    : db_(db),
      code_(code),
      annee_(annee),
      item_(db.OpenFile(fichier::CIVILAIDE).Read(code)),
      initial_(item_) {
  db.OpenFile(fichier::TABLES).Lire(Tables::NatureVoie, natures_);
}

std::string FicheAide::Lire(const PlaceAide& place) const {
  std::string texte = item_(place.attribut);
  if (place.genre != PlaceAide::Genre::Date || texte.empty() || !estNombre(texte)) return texte;
  return dateAffichee(static_cast<long>(entier(texte)));
}

std::string FicheAide::Ecrire(const PlaceAide& place, const std::string& saisi) {
  // What nobody touched stays as it is on file.
  if (saisi == Lire(place)) return "";
  const std::string libelle = std::string("« ") + place.libelle + " »";
  std::string texte = sansBlancs(sansControles(saisi));
  if (place.obligatoire && texte.empty()) return libelle + " est obligatoire.";
  if (longueur(texte) > place.longueur) {
    return libelle + " a plus de " + std::to_string(place.longueur) + " caractères.";
  }
  if (place.genre == PlaceAide::Genre::Postal && !texte.empty() &&
      (texte.size() != 5 || !std::ranges::all_of(texte, estChiffre))) {
    return "Le code postal a cinq chiffres.";
  }
  if (place.genre == PlaceAide::Genre::Date && !texte.empty()) {
    const auto jour = lireDateSaisie(texte, annee_);
    if (!jour) return "« " + texte + " » n'est pas une date.";
    // A short year may be read as one of this century.
    if (dateDe(*jour).annee > annee_) {
      return "« " + dateAffichee(*jour) + " » est à venir : donnez les quatre chiffres de l'année.";
    }
    texte = std::to_string(*jour);
  }
  item_.Set(place.attribut, texte);
  return "";
}

std::string FicheAide::Enregistrer() {
  std::string refus;
  db_.Stockage().EnUnBloc([&] {
    if (db_.OpenFile(fichier::CIVILAIDE).Read(code_).Text() != initial_.Text()) {
      refus =
          "Un autre poste a modifié cette fiche entre-temps. Fermez sans enregistrer, puis "
          "recommencez.";
    } else {
      item_.DBWriteU();
    }
  });
  if (refus.empty()) initial_ = item_;
  return refus;
}

}  // namespace hote
