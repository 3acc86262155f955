#include "editor/origine_genre.h"

#include "editor/editeur.h"

namespace editor {

namespace C = data::Contrat;

GenreOrigine::GenreOrigine(Frm_ElementsContrat& editeur, screen::Frame& page,
                           session::Sourdine& sourdine)
    : editeur_(editeur), page_(page) {
  // Before the handlers are tied: the other tabs, which these steer, do not stand yet.
  Vider();
  Opt_Determine.Click = Opt_Indetermine.Click = sourdine.SiAudible([this] { SurType(); });
  Opt_Horaire.Click = Opt_Mensuel.Click = sourdine.SiAudible([this] { AnnoncerSalaire(); });
  Opt_Production.Click = Opt_Administratif.Click = sourdine.SiAudible([this] {
    AnnoncerStatut();
    editeur_.paie.ChangerStatut();
  });
}

std::vector<session::Zone> GenreOrigine::Zones() {
  return {session::option(Opt_Determine, "D", Opt_Indetermine, "I", C::Type),
          session::option(Opt_Administratif, "A", Opt_Production, "P", C::Statut),
          session::option(Opt_Mensuel, "M", Opt_Horaire, "H", C::Salaire)};
}

void GenreOrigine::Vider() {
  Opt_Indetermine.SetValue(true);
  Opt_Horaire.SetValue(true);
  Opt_Production.SetValue(true);
}

void GenreOrigine::Annoncer() {
  SurType();
  AnnoncerStatut();
  AnnoncerSalaire();
}

void GenreOrigine::AnnoncerSalaire() {
  editeur_.caracteristiques.SelonSalaire(Mensuel(), Production());
}

void GenreOrigine::AnnoncerStatut() {
  editeur_.paie.SelonStatut(Administratif(), editeur_.origine.Particuliers());
}

}  // namespace editor
