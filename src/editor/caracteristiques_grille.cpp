#include "editor/caracteristiques_grille.h"

#include "data/layouts/fichiers.h"
#include "data/layouts/voisins.h"
#include "data/requete.h"
#include "data/texte.h"
#include "editor/editeur.h"

namespace editor {

namespace {

namespace C = data::Contrat;
using data::GrillesCC::Categorie;

// What an agreement holds when a category is typed by hand.
constexpr std::string_view CategorieLibre = "VRAI";

}  // namespace

GrilleCarriere::GrilleCarriere(Frm_ElementsContrat& editeur, screen::Frame& page,
                               session::Sourdine& sourdine)
    : editeur_(editeur),
      page_(page),
      sourdine_(sourdine),
      reference_(editeur.Session(), Txt_DepartGrilContrat, Txt_JourSusp, Txt_DatReference,
                 C::JoursSuspensionGrille, [this] { return editeur_.origine.DateDebut(); }),
      zones_({session::code(Cbo_GrilleContrat, C::Grille, ListeGrilles_).ParAvenant(),
              session::nombre(Txt_CoefNivContrat, C::Coefficient, Taux, 3).ParAvenant(),
              session::nombre(Txt_TauxHorContrat, C::TauxHoraire, Taux, 3).ParAvenant(),
              session::texte(Txt_Categorie, C::Categorie).ParAvenant()}) {
  zones_.Lier(editeur_.Session());
  Cbo_GrilleContrat.Click = sourdine_.SiAudible([this] {
    if (Choisir()) Txt_DepartGrilContrat.SetFocus();
  });
  Cbo_GrilleContrat.Change = sourdine_.SiAudible([this] { Cbo_GrilleContrat_Change(); });
  Cbo_GrilleContrat.LostFocus = [this] { Cbo_GrilleContrat_LostFocus(); };
  Txt_DepartGrilContrat.LostFocus = [this] { Txt_DepartGrilContrat_LostFocus(); };
  Txt_Categorie.LostFocus = [this] {
    Txt_Categorie.SetText(data::majuscules(Txt_Categorie.Text()));
  };
}

// Display.

void GrilleCarriere::Remplir(const std::string& convention) {
  using namespace data;
  CItem item;
  CItem grilles;
  if (!convention.empty()) {
    editeur_.Session().F_CONVENTIONCOL.Lire(convention, item);
    grilles = Requete(fichier::GRILLESCC)
                  .Avec(Cle, "=", citerDebut(convention))
                  .Par(GrillesCC::Libelle)
                  .Lire(*editeur_.Session().Db, {Cle, GrillesCC::Libelle, GrillesCC::Categorie});
  }
  const session::Sourdine::Silence silence(sourdine_);
  ListeGrilles_ = ListeCodes::DeSelection(grilles);
  categorieLibre_ = item.Vue(ConventionCol::CategorieLibre) == CategorieLibre;
  Cbo_GrilleContrat.Clear();
  for (const auto& ligne : ListeGrilles_.Lignes()) Cbo_GrilleContrat.AddItem(ligne.libelle);
}

void GrilleCarriere::Montrer(const data::CItem& contrat, int rang) {
  const data::Lib& lib = editeur_.Session().Lib;
  rang_ = rang;
  zones_.Montrer(lib, contrat, rang);
  ActiverSelon(!contrat.Vue(C::Grille, rang).empty());
  departSurFichier_ = contrat(C::DepartGrille, rang);
  Txt_DepartGrilContrat.SetText(lib.DateFromInternal(departSurFichier_));
  departMontre_ = Txt_DepartGrilContrat.Text();
  grilleMontree_ = grilleQuittee_ = Cbo_GrilleContrat.Text();
  tauxSurFichier_ = contrat(C::TauxHoraire, rang);
  categorieSurFichier_ = contrat(C::Categorie, rang);
  reference_.Montrer(contrat);
  MontrerCategorie();
  zones_.Retenir(contrat, rang);
}

void GrilleCarriere::MontrerNouveau() {
  rang_ = 1;
  zones_.Vider();
  zones_.Oublier();
  Txt_DepartGrilContrat.SetText("");
  for (std::string* const montre : {&departMontre_, &departSurFichier_, &grilleMontree_,
                                    &grilleQuittee_, &tauxSurFichier_, &categorieSurFichier_}) {
    montre->clear();
  }
  reference_.MontrerNouveau();
  ActiverSelon(false);
  Txt_Categorie.SetEnabled(false);
}

void GrilleCarriere::Vider() {
  ActiverSelon(false);
}

void GrilleCarriere::ActiverSelon(bool grille) {
  screen::Activer({&Etq_DepartGrilContrat, &Txt_DepartGrilContrat}, grille);
  screen::Activer(
      {&Etq_CoefNivContrat, &Txt_CoefNivContrat, &Etq_TauxHorContrat, &Txt_TauxHorContrat},
      !grille);
}

void GrilleCarriere::MontrerCategorie() {
  const bool libre = !Choisie() && categorieLibre_;
  const auto* const grille = ListeGrilles_.ParLibelle(Cbo_GrilleContrat.Text());
  Txt_Categorie.SetEnabled(libre);
  const bool classee = grille != nullptr && !grille->suite.empty();
  Txt_Categorie.SetText(libre ? categorieSurFichier_ : classee ? grille->suite.front() : "");
}

// Choosing.

// A grid needs an agreement and a start of the contract; it then decides coefficient and rate.
bool GrilleCarriere::Choisir() {
  const auto& origine = editeur_.origine;
  if (Choisie() && (origine.Convention().empty() || origine.DateDebut().empty())) {
    {
      const session::Sourdine::Silence silence(sourdine_);
      Cbo_GrilleContrat.SetText("");
    }
    if (!origine.Convention().empty()) {
      editeur_.origine.DemanderDebut();
    } else {
      editeur_.MessageBox("Vous devez d'abord sélectionner une convention collective.",
                          screen::Boutons::Ok, screen::Icone::Exclamation);
    }
    return false;
  }
  MontrerCategorie();
  if (!Choisie()) return false;
  ActiverSelon(true);
  Txt_CoefNivContrat.SetText("0");
  Txt_TauxHorContrat.SetText("");
  return true;
}

// A grid typed in full is one chosen; the focus stays in the box until it is left. The date of an
// emptied one closes at once, so that Tab goes past it.
void GrilleCarriere::Cbo_GrilleContrat_Change() {
  if (!Choisie()) ActiverSelon(false);
  if (!Choisie() || Connue()) Choisir();
}

// To the date of a grid just chosen. Passing through the box does not send the user there again.
void GrilleCarriere::Cbo_GrilleContrat_LostFocus() {
  ActiverSelon(Choisie());
  if (!Choisie()) {
    Txt_DepartGrilContrat.SetText("");
    Txt_DatReference.SetText("");
  }
  const bool changee = Cbo_GrilleContrat.Text() != grilleQuittee_;
  grilleQuittee_ = Cbo_GrilleContrat.Text();
  if (Choisie() && changee) Txt_DepartGrilContrat.SetFocus();
}

void GrilleCarriere::Txt_DepartGrilContrat_LostFocus() {
  ActiverSelon(Choisie());
  reference_.QuitterDepart();
}

// Writing.

void GrilleCarriere::Ecrire(data::CItem& contrat, int rang, const rules::Debut& debut) const {
  const bool nouveau = editeur_.Dossier().ModeCreation;
  zones_.Ecrire(editeur_.Session().Lib, contrat, rang);
  // A rate that is not given is one of 0; one that stands empty on file stays so.
  if (Txt_TauxHorContrat.Text().empty() && (nouveau || !tauxSurFichier_.empty())) {
    contrat.Set(C::TauxHoraire, rang, "0");
  }
  contrat.Set(C::DepartGrille, rang, EcrireDepart(contrat, debut));
  reference_.Ecrire(contrat);
}

std::string GrilleCarriere::EcrireDepart(const data::CItem& contrat,
                                         const rules::Debut& debut) const {
  const data::Lib& lib = editeur_.Session().Lib;
  const auto jour = lib.LireDate(Txt_DepartGrilContrat.Text());
  std::string saisi = jour ? lib.DateToInternal(*jour) : "";
  const bool intact = !editeur_.Dossier().ModeCreation &&
                      Txt_DepartGrilContrat.Text() == departMontre_ &&
                      Cbo_GrilleContrat.Text() == grilleMontree_;
  if (std::string suivi = debut.Suivre(saisi); suivi != saisi) return suivi;
  if (intact) return departSurFichier_;
  if (!saisi.empty()) return saisi;
  return Choisie() ? contrat(C::DateDebut) : "";
}

}  // namespace editor
