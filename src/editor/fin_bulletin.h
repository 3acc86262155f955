#pragma once
// The period of the last payslip, which is chosen with a spin: the month of the end, or one of the
// four before it as far as the contract reaches back. The box only shows it.

#include <optional>
#include <string>

#include "screen/field.h"
#include "session/sourdine.h"

namespace editor {

class BulletinFin {
 public:
  // The fields stand on `page`; `sourdine` is their tab's.
  BulletinFin(screen::Frame& page, session::Sourdine& sourdine);

  // The period shown, AAAAMM; "" for none.
  const std::string& Periode() const { return periode_; }
  void Montrer(const std::string& periode);
  // The months that can be chosen for a contract from `debut` to `fin`. A period shown stays, and
  // the spin takes its place; where there is no month to choose, that of the end is shown.
  void Borner(std::optional<long> debut, long fin);
  // Shows the month of the end.
  void MontrerFin() { Montrer(reference_); }
  // Steps down until the period of that day is shown, as far as the months reach.
  void RevenirAu(long jour);
  // No end, no period.
  void Vider();
  // The period is to be chosen anew; the months stay.
  void Effacer() { Montrer(""); }
  void Activer(bool active);

 private:
  void Placer(int min, int valeur);

  screen::Frame& page_;
  session::Sourdine& sourdine_;
  std::string periode_;
  // The month of the end, for which the spin stands at 0.
  std::string reference_;

  screen::Label Etq_DernBullContrat{page_, "Etq_DernBullContrat", "Période du Dernier Bulletin"};
  screen::TextField Txt_DernBullContrat{page_, "Txt_DernBullContrat", 0};
  screen::UpDown Bdh_Bulletin{page_, "Bdh_Bulletin"};
};

}  // namespace editor
