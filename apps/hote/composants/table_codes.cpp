#include "composants/table_codes.h"

#include <algorithm>

#include "data/layouts/contrat.h"
#include "data/layouts/fichiers.h"
#include "data/layouts/voisins.h"
#include "data/texte.h"

namespace hote {

namespace {

using namespace data;
namespace C = data::Contrat;

constexpr GenreTable Genres[] = {
    {Tables::Qualif, 0, Tables::QualifLibelles, Tables::QualifRegroupements, C::Qualification},
    {Tables::MotifEmbauche, Tables::MotifCodes, Tables::MotifLibelles, 0, C::MotifEmbauche}};

constexpr int LongueurLibelleMax = 60;
constexpr int LongueurCodeMax = 5;

CItem lireTable(Db& db, const char* cle) {
  CItem item = db.OpenFile(fichier::TABLES).NewItem(cle);
  db.OpenFile(fichier::TABLES).Lire(cle, item);
  return item;
}

std::string contrats(int nombre) {
  return nombre == 1 ? "Un contrat emploie" : std::to_string(nombre) + " contrats emploient";
}

}  // namespace

const GenreTable* genreTable(const std::string& cle) {
  const auto* const trouve =
      std::find_if(std::begin(Genres), std::end(Genres),
                   [&](const GenreTable& genre) { return genre.cle == cle; });
  return trouve == std::end(Genres) ? nullptr : trouve;
}

TableCodes::TableCodes(Db& db, const GenreTable& genre)
    : db_(db),
      genre_(genre),
      item_(lireTable(db, genre.cle)),
      initial_(item_),
      regroupements_(genre.regroupements == 0 ? CItem() : lireTable(db, Tables::RegroupBudget)) {}

int TableCodes::Nombre() const {
  return item_.DCount(genre_.libelles);
}

TableCodes::Ligne TableCodes::A(int rang) const {
  Ligne ligne;
  if (genre_.codes != 0) ligne.code = item_(genre_.codes, rang + 1);
  ligne.libelle = item_(genre_.libelles, rang + 1);
  if (genre_.regroupements != 0) ligne.regroupement = item_(genre_.regroupements, rang + 1);
  return ligne;
}

// A code and a label stand once in their table: screens find one by the other.
std::string TableCodes::RefusTexte(const Ligne& ligne, int saufRang) const {
  if (ligne.libelle.empty()) return "Le libellé est obligatoire.";
  if (longueur(ligne.libelle) > LongueurLibelleMax) {
    return "Le libellé a plus de " + std::to_string(LongueurLibelleMax) + " caractères.";
  }
  for (int i = 0; i < Nombre(); ++i) {
    if (i == saufRang) continue;
    const Ligne autre = A(i);
    if (plier(autre.libelle) == plier(ligne.libelle)) {
      return "Le libellé « " + autre.libelle + " » existe déjà.";
    }
    if (genre_.codes != 0 && autre.code == ligne.code) {
      return "Le code « " + ligne.code + " » existe déjà.";
    }
  }
  return "";
}

std::string TableCodes::Ajouter(const Ligne& ligne) {
  if (genre_.codes != 0) {
    const bool ecrit = !ligne.code.empty() && longueur(ligne.code) <= LongueurCodeMax &&
                       std::ranges::all_of(ligne.code, [](char c) {
                         return estChiffre(c) || (c >= 'A' && c <= 'Z');
                       });
    if (!ecrit) {
      return "Le code est obligatoire : des chiffres et des capitales, " +
             std::to_string(LongueurCodeMax) + " au plus.";
    }
  }
  if (std::string refus = RefusTexte(ligne, -1); !refus.empty()) return refus;
  const int place = Nombre() + 1;
  if (genre_.codes != 0) item_.Set(genre_.codes, place, ligne.code);
  item_.Set(genre_.libelles, place, ligne.libelle);
  if (genre_.regroupements != 0) item_.Set(genre_.regroupements, place, ligne.regroupement);
  return "";
}

std::string TableCodes::Changer(int rang, const Ligne& ligne) {
  if (std::string refus = RefusTexte({A(rang).code, ligne.libelle, {}}, rang); !refus.empty()) {
    return refus;
  }
  if (genre_.codes == 0 && ligne.libelle != A(rang).libelle) {
    if (const int emplois = Emplois(Tenu(rang)); emplois > 0) {
      return contrats(emplois) + " « " + A(rang).libelle +
             " » sous ce nom, qui ne peut donc pas changer. Ajoutez une ligne au nouveau nom.";
    }
    otes_.push_back(Tenu(rang));
  }
  item_.Set(genre_.libelles, rang + 1, ligne.libelle);
  if (genre_.regroupements != 0) item_.Set(genre_.regroupements, rang + 1, ligne.regroupement);
  return "";
}

// The attributes of a table are parallel lists, those that nobody shows too.
std::string TableCodes::Retirer(int rang) {
  if (const int emplois = Emplois(Tenu(rang)); emplois > 0) {
    return contrats(emplois) + " « " + A(rang).libelle +
           " » : cette ligne ne peut pas être retirée.";
  }
  otes_.push_back(Tenu(rang));
  for (int a = 1; a <= item_.DCount(); ++a) item_.Delete(a, rang + 1);
  return "";
}

std::string TableCodes::Tenu(int rang) const {
  return genre_.codes != 0 ? A(rang).code : A(rang).libelle;
}

bool TableCodes::Tient(const std::string& tenu) const {
  int rang = 0;
  while (rang < Nombre() && Tenu(rang) != tenu) ++rang;
  return rang < Nombre();
}

int TableCodes::Emplois(const std::string& tenu) const {
  int emplois = 0;
  db_.Stockage().Scan(fichier::CONTRAT, KeyRange::Tout(),
                      [&](std::string_view, std::string_view texte) {
                        const CItem contrat(texte);
                        for (int v = 1; v <= contrat.DCount(genre_.attributContrat); ++v) {
                          if (contrat.Vue(genre_.attributContrat, v) != tenu) continue;
                          ++emplois;
                          break;
                        }
                        return true;
                      });
  return emplois;
}

std::string TableCodes::Enregistrer() {
  std::string refus;
  db_.Stockage().EnUnBloc([&] {
    if (lireTable(db_, genre_.cle).Text() != initial_.Text()) {
      refus =
          "Un autre poste a modifié cette table entre-temps. Fermez sans enregistrer, puis "
          "recommencez.";
      return;
    }
    for (const std::string& ote : otes_) {
      if (Tient(ote)) continue;
      if (const int emplois = Emplois(ote); emplois > 0) {
        refus = contrats(emplois) + " désormais « " + ote +
                " », que vous avez ôté de la table. Fermez sans enregistrer, puis recommencez.";
        return;
      }
    }
    item_.DBWriteU();
  });
  if (refus.empty()) initial_ = item_;
  return refus;
}

}  // namespace hote
