#pragma once
// The kind of contract, three choices of the first tab: open-ended or for a fixed term, paid by the
// hour or by the month, administrative or production staff. Each of them steers other tabs.

#include <functional>
#include <vector>

#include "screen/field.h"
#include "session/sourdine.h"
#include "session/zones.h"

namespace editor {

class Frm_ElementsContrat;

class GenreOrigine {
 public:
  // The fields stand on `page`; `sourdine` is their tab's.
  GenreOrigine(Frm_ElementsContrat& editeur, screen::Frame& page, session::Sourdine& sourdine);

  // The term was chosen, by the user or in Annoncer.
  std::function<void()> SurType;

  std::vector<session::Zone> Zones();
  // What a new contract begins with: open-ended, by the hour, production.
  void Vider();
  // Tells the other tabs all three choices as they stand.
  void Annoncer();
  // Tells them the status, which counts otherwise under the agreement of private employers.
  void AnnoncerStatut();

  bool Determine() const { return Opt_Determine.Value(); }
  bool Mensuel() const { return Opt_Mensuel.Value(); }
  bool Administratif() const { return Opt_Administratif.Value(); }
  bool Production() const { return Opt_Production.Value(); }

 private:
  void AnnoncerSalaire();

  Frm_ElementsContrat& editeur_;
  screen::Frame& page_;

  screen::Frame Cdr_Type{page_, "Cdr_Type", "Type "};
  screen::OptionButton Opt_Indetermine{Cdr_Type, "Opt_Indetermine", "Indéterminé"};
  screen::OptionButton Opt_Determine{Cdr_Type, "Opt_Determine", "Déterminé"};
  screen::Frame Cdr_Salaire{page_, "Cdr_Salaire", "Salaire "};
  screen::OptionButton Opt_Horaire{Cdr_Salaire, "Opt_Horaire", "Horaire"};
  screen::OptionButton Opt_Mensuel{Cdr_Salaire, "Opt_Mensuel", "Mensualisé"};
  screen::Frame Cdr_Fonction{page_, "Cdr_Fonction", "Statut "};
  screen::OptionButton Opt_Administratif{Cdr_Fonction, "Opt_Administratif", "Adm / Ssiad"};
  screen::OptionButton Opt_Production{Cdr_Fonction, "Opt_Production", "Production"};
};

}  // namespace editor
