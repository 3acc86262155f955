#pragma once
// The end of the contract, its real end and the last day worked.

#include <functional>
#include <optional>
#include <string>
#include <vector>

#include "screen/field.h"
#include "session/sourdine.h"
#include "session/zones.h"

namespace editor {

class Frm_ElementsContrat;

class DatesFin {
 public:
  // The fields stand on `page`; `sourdine` is their tab's.
  DatesFin(Frm_ElementsContrat& editeur, screen::Frame& page, session::Sourdine& sourdine);

  // The end is being typed; it was left as a date or empty.
  std::function<void()> SurSaisie;
  std::function<void()> SurFin;

  std::vector<session::Zone> Zones();
  // The end as if the user had typed it and left it, "" for none.
  void Poser(const std::string& dateFin);
  // The same, but not left.
  void ViderFin() { Txt_DateFinContrat.SetText(""); }
  // Without an end there is no last day and no real end either.
  void ViderJours();
  // The end can be given; its caption alone is lit; the other two days can be given.
  void OuvrirFin(bool ouverte);
  void Eclairer() { Etq_DateFinContrat.SetEnabled(true); }
  void Activer(bool actives);

  // The end and the last day worked as displayed, and the days.
  const std::string& DateFin() const { return Txt_DateFinContrat.Text(); }
  std::string DernierJour() const;
  bool FinReelleVide() const { return Txt_FinReelle.Text().empty(); }
  std::optional<long> Fin() const { return Jour(Txt_DateFinContrat); }
  std::optional<long> FinReelle() const { return Jour(Txt_FinReelle); }
  std::optional<long> DernierJourTravaille() const { return Jour(Txt_DernJrWContrat); }
  // The day of a box of the tab; nothing for what is no date.
  std::optional<long> Jour(const screen::TextField& champ) const;

 private:
  void Txt_DateFinContrat_LostFocus();
  // A day that the contract cannot have before it starts.
  void QuitterJour(screen::TextField& champ, const char* refus);

  Frm_ElementsContrat& editeur_;
  screen::Frame& page_;
  screen::Label Etq_DateFinContrat{page_, "Etq_DateFinContrat", "Date Fin de Contrat"};
  screen::TextField Txt_DateFinContrat{page_, "Txt_DateFinContrat", 10};
  screen::Label Etq_FinReelle{page_, "Etq_FinReelle", "Date de fin réelle"};
  screen::TextField Txt_FinReelle{page_, "Txt_FinReelle", 10};
  screen::Label Etq_DernJrWContrat{page_, "Etq_DernJrWContrat", "Dernier Jour Travaillé"};
  screen::TextField Txt_DernJrWContrat{page_, "Txt_DernJrWContrat", 10};
};

// False when one of the two is no date.
inline bool apres(std::optional<long> jour, std::optional<long> borne) {
  return jour && borne && *jour > *borne;
}

}  // namespace editor
