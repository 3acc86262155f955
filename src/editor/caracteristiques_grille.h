#pragma once
// The career grid of an amendment: which one, since when, and what stands in its place without one:
// coefficient, hourly rate and, under some agreements, a category typed by hand.

#include "data/liste_codes.h"
#include "editor/caracteristiques_reference.h"
#include "rules/avenants.h"
#include "session/dossier.h"
#include "session/sourdine.h"
#include "session/zones.h"

namespace editor {

class Frm_ElementsContrat;

class GrilleCarriere {
 public:
  // `sourdine` is the tab's.
  GrilleCarriere(Frm_ElementsContrat& editeur, screen::Frame& page, session::Sourdine& sourdine);

  void Montrer(const data::CItem& contrat, int rang);
  void MontrerNouveau();
  // The date from which the grid counts follows the start of the contract where it was that day; a
  // grid chosen without one counts from the start.
  void Ecrire(data::CItem& contrat, int rang, const rules::Debut& debut) const;
  // The grids of an agreement, and whether it leaves the category free; none is chosen afterwards,
  // silently.
  void Remplir(const std::string& convention);
  // Without grid: coefficient and rate are open.
  void Vider();

  // The category: typed by hand where no grid gives it and the agreement leaves it free.
  void MontrerCategorie();

  bool Choisie() const { return !Cbo_GrilleContrat.Text().empty(); }
  bool Connue() const { return ListeGrilles_.ParLibelle(Cbo_GrilleContrat.Text()) != nullptr; }
  bool TauxManque() const {
    return Txt_TauxHorContrat.Enabled() && Txt_TauxHorContrat.Text().empty();
  }

 private:
  static constexpr session::FormeNombre Taux{.avant = 6, .apres = 3};
  static constexpr session::FormeNombre Jours{.avant = 5, .apres = 2};
  static constexpr int LongueurDate = 10;
  static constexpr int LongueurLibelle = 60;

  // The grid in the box: false when there is none, or none can be chosen yet.
  bool Choisir();
  void Cbo_GrilleContrat_Change();
  void Cbo_GrilleContrat_LostFocus();
  void Txt_DepartGrilContrat_LostFocus();
  void ActiverSelon(bool grille);
  std::string EcrireDepart(const data::CItem& contrat, const rules::Debut& debut) const;

  Frm_ElementsContrat& editeur_;
  screen::Frame& page_;
  session::Sourdine& sourdine_;
  // The grids that Cbo_GrilleContrat offers, each with its category.
  data::ListeCodes ListeGrilles_;
  bool categorieLibre_ = false;
  // The value shown, and what it shows untouched.
  int rang_ = 1;
  std::string departMontre_;
  std::string departSurFichier_;
  std::string grilleMontree_;
  std::string tauxSurFichier_;
  std::string categorieSurFichier_;
  // The grid that the user left last.
  std::string grilleQuittee_;

  screen::Frame Cdr_Grille{page_, "Cdr_Grille", "Grille"};
  screen::Label Etq_GrilleContrat{Cdr_Grille, "Etq_GrilleContrat",
                                  "Grille déroulement de carrière"};
  screen::ComboBox Cbo_GrilleContrat{Cdr_Grille, "Cbo_GrilleContrat", true, LongueurLibelle};
  screen::Label Etq_DepartGrilContrat{Cdr_Grille, "Etq_DepartGrilContrat",
                                      "Date départ calcul de grille"};
  screen::TextField Txt_DepartGrilContrat{Cdr_Grille, "Txt_DepartGrilContrat", LongueurDate};
  screen::Label Etq_JourSusp{Cdr_Grille, "Etq_JourSusp", "Jours de suspension"};
  screen::TextField Txt_JourSusp{Cdr_Grille, "Txt_JourSusp", Jours.Largeur()};
  screen::Label Etq_DatReference{Cdr_Grille, "Etq_DatReference", "Date référence"};
  screen::TextField Txt_DatReference{Cdr_Grille, "Txt_DatReference", LongueurDate};
  screen::Label Etq_CoefNivContrat{Cdr_Grille, "Etq_CoefNivContrat", "Coefficient / Niveau"};
  screen::TextField Txt_CoefNivContrat{Cdr_Grille, "Txt_CoefNivContrat", Taux.Largeur()};
  screen::Label Etq_TauxHorContrat{Cdr_Grille, "Etq_TauxHorContrat", "Taux horaire"};
  screen::TextField Txt_TauxHorContrat{Cdr_Grille, "Txt_TauxHorContrat", Taux.Largeur()};
  screen::Label Etq_Categorie{Cdr_Grille, "Etq_Categorie", "Catégorie"};
  screen::TextField Txt_Categorie{Cdr_Grille, "Txt_Categorie", 10};

  DateReference reference_;
  session::Zones zones_;
};

}  // namespace editor
