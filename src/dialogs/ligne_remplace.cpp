#include "dialogs/ligne_remplace.h"

#include "data/cles.h"
#include "data/texte.h"

namespace dialogs {

namespace {

constexpr int NomCoupe = 35;
constexpr int AbsenceCoupee = 60;
constexpr int LargeurNom = 38;
constexpr int LargeurAbsence = 80;
constexpr const char* Intervalle = "  ";
constexpr const char* MargeLibre = "       ";

// Where a part is read in a row: first column, and number of columns.
struct Colonnes {
  int debut;
  int nombre;
};
constexpr Colonnes ColCode{1, data::LongueurCodeAidant};
constexpr Colonnes ColNom{7, 39};
constexpr Colonnes ColAbsence{46, 60};
constexpr int DebutCleAbsence = 125;
constexpr Colonnes ColTexteLibre{7, 35};
constexpr Colonnes ColAbsenceComparee{38, 60};

std::string partie(std::string_view ligne, Colonnes c) {
  return data::sansBlancs(data::milieu(ligne, c.debut, c.nombre));
}

}  // namespace

std::string FaireLigne(const LigneRemplace& ligne) {
  return data::colonne(ligne.code, ColCode.nombre) + Intervalle +
         data::colonne(data::gauche(ligne.nom, NomCoupe), LargeurNom) +
         data::colonne(data::gauche(ligne.absence, AbsenceCoupee), LargeurAbsence) +
         ligne.cleAbsence;
}

std::string FaireLigneLibre(std::string_view texte) {
  return std::string(MargeLibre).append(texte);
}

LigneRemplace LireLigne(std::string_view ligne) {
  LigneRemplace lue;
  lue.code = partie(ligne, ColCode);
  lue.nom = partie(ligne, ColNom);
  if (lue.code.empty()) return lue;
  lue.absence = partie(ligne, ColAbsence);
  lue.cleAbsence = data::sansBlancs(data::milieu(ligne, DebutCleAbsence));
  return lue;
}

std::string TexteLibre(std::string_view ligne) {
  return partie(ligne, ColTexteLibre);
}

std::string AbsenceComparee(std::string_view ligne) {
  return partie(ligne, ColAbsenceComparee);
}

}  // namespace dialogs
