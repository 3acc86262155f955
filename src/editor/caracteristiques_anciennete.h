#pragma once
// Seniority: the day from which it counts, and the days of suspension that move it.

#include <optional>
#include <vector>

#include "editor/caracteristiques_reference.h"
#include "session/zones.h"

namespace editor {

class Frm_ElementsContrat;

class Anciennete {
 public:
  Anciennete(Frm_ElementsContrat& editeur, screen::Frame& page);

  std::vector<session::Zone> Zones();
  // After the zones, whose date is left otherwise.
  void Lier();
  void Montrer(const data::CItem& contrat) { date_.Montrer(contrat); }
  void MontrerNouveau() { date_.MontrerNouveau(); }
  void Ecrire(data::CItem& contrat) const { date_.Ecrire(contrat); }
  // The day from which seniority counts, its whole days of suspension added; nothing when none is
  // given. The contract in hand answers for a box that shows nothing.
  std::optional<long> Depart() const;

 private:
  static constexpr int LongueurDate = 10;
  static constexpr session::FormeNombre Jours{.avant = 5, .apres = 2};

  Frm_ElementsContrat& editeur_;
  screen::Frame& page_;
  screen::Frame Cdr_Anciennete{page_, "Cdr_Anciennete", "Ancienneté"};
  screen::Label Etq_DateAnciennete{Cdr_Anciennete, "Etq_DateAnciennete", "Date de départ"};
  screen::TextField Txt_DateAnciennete{Cdr_Anciennete, "Txt_DateAnciennete", LongueurDate};
  screen::Label Etq_JourSuspAnc{Cdr_Anciennete, "Etq_JourSuspAnc", "Jours de suspension"};
  screen::TextField Txt_JourSuspAnc{Cdr_Anciennete, "Txt_JourSuspAnc", Jours.Largeur()};
  screen::Label Etq_DatReferenceAnc{Cdr_Anciennete, "Etq_DatReferenceAnc", "Date référence"};
  screen::TextField Txt_DatReferenceAnc{Cdr_Anciennete, "Txt_DatReferenceAnc", LongueurDate};

  DateReference date_;
};

}  // namespace editor
