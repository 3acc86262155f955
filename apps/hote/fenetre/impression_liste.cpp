#include "fenetre/impression_liste.h"

#include <algorithm>

#include "data/jour.h"
#include "data/texte.h"

namespace hote {

namespace {

using control::Ctr_Contrat;

struct Colonne {
  screen::Label Ctr_Contrat::*titre;
  screen::ListBox Ctr_Contrat::*lignes;
  int largeur;  // characters, the gap to the next one included
};

constexpr Colonne Colonnes[] = {
    {&Ctr_Contrat::Etq_Debut, &Ctr_Contrat::Lst_DatDebContrat, 11},
    {&Ctr_Contrat::Etq_Fin, &Ctr_Contrat::Lst_DatFinContrat, 11},
    {&Ctr_Contrat::Etq_Type, &Ctr_Contrat::Lst_Type, 5},
    {&Ctr_Contrat::Etq_Employeur, &Ctr_Contrat::Lst_EmplEtabContrat, 30},
    {&Ctr_Contrat::Etq_Qualification, &Ctr_Contrat::Lst_QualifContrat, 52}};

// A sheet of 21 by 29.7 cm, in twips. At 8 points a character of the fixed font is 96 wide, so that
// the columns take 18.5 cm.
constexpr const char* Police = "Courier New";
constexpr double Points = 8;
constexpr int Marge = 760;
constexpr int PasLigne = 240;
constexpr int LignesParPage = 56;
// The name, an empty line, the captions.
constexpr int LignesEntete = 3;

int hauteur(int ligne) {
  return Marge + ligne * PasLigne;
}

template <typename Texte>
std::string rangee(Texte texte) {
  std::string ligne;
  for (const Colonne& colonne : Colonnes) {
    ligne += data::colonne(texte(colonne), colonne.largeur - 1) + " ";
  }
  return ligne;
}

void imprimerEntete(const Ctr_Contrat& liste, screen::Imprimante& papier, const std::string& bas) {
  papier.Police(Police, Points, true);
  papier.Texte(
      Marge, hauteur(0),
      "Contrats de " + liste.Etq_CodeAidant.Libelle() + " " + liste.Etq_NomPrenomAidant.Libelle());
  papier.Texte(Marge, hauteur(2),
               rangee([&](const Colonne& c) { return (liste.*c.titre).Libelle(); }));
  papier.Police(Police, Points, false);
  papier.Texte(Marge, hauteur(LignesEntete + LignesParPage + 1), bas);
}

}  // namespace

void imprimerListe(const Ctr_Contrat& liste, screen::Platform& plateforme) {
  screen::Imprimante& papier = plateforme.imprimante;
  // The list is always a PDF document, whatever else was printed before.
  papier.Choisir(0);
  const int nombre = liste.Lst_DatDebContrat.ListCount();
  const int pages = nombre == 0 ? 1 : (nombre + LignesParPage - 1) / LignesParPage;
  const std::string jour = data::dateAffichee(plateforme.poste.Aujourdhui());
  for (int page = 0; page < pages; ++page) {
    imprimerEntete(liste, papier,
                   jour + ", page " + std::to_string(page + 1) + " sur " + std::to_string(pages));
    if (nombre == 0) papier.Texte(Marge, hauteur(LignesEntete), "Aucun contrat.");
    for (int i = page * LignesParPage; i < std::min(nombre, (page + 1) * LignesParPage); ++i) {
      papier.Texte(Marge, hauteur(LignesEntete + i % LignesParPage),
                   rangee([&](const Colonne& c) { return (liste.*c.lignes).List(i); }));
    }
    papier.FinPage();
  }
  papier.FinDocument();
}

}  // namespace hote
