#pragma once
// How long the contract runs: its start, the presumed end of a fixed term, its trial period. A
// start that is moved takes the first state of the contract along; an open-ended contract has no
// presumed end.

#include <optional>
#include <string>
#include <vector>

#include "data/citem.h"
#include "screen/field.h"
#include "session/zones.h"

namespace editor {

class Frm_ElementsContrat;

class DureeOrigine {
 public:
  // The fields stand on `page`.
  DureeOrigine(Frm_ElementsContrat& editeur, screen::Frame& page);

  std::vector<session::Zone> Zones();
  // After the zones, whose date is left otherwise.
  void Lier();
  // Clears what belongs to one contract.
  void Preparer();
  // The dates of a contract on file are always open; those of a new one until payroll processes it.
  void Ouvrir();
  // What only a fixed term has is shown. Back to one after a copy of the screen made the contract
  // open-ended, the end that was emptied then comes back.
  void SelonType(bool determine);
  // Run by the frame on every tab change too.
  void Txt_DatDebContrat_LostFocus();
  // A moved start and what it takes along; no end for an open-ended contract. Run again on other
  // fields, it leaves what a single run on them would.
  void Ecrire(data::CItem& contrat, bool determine);

  // The dates as displayed, and their internal days; nothing for what is no date.
  const std::string& DateDebut() const { return Txt_DatDebContrat.Text(); }
  const std::string& DateFin() const { return Txt_DatFinContrat.Text(); }
  std::optional<long> Debut() const;
  std::optional<long> FinPresumee() const;
  // The start is another one than on file.
  bool DebutDeplace() const;

 private:
  static constexpr int LongueurDate = 10;
  static constexpr int LongueurTexte = 30;

  void EcrireDebut(data::CItem& contrat);
  void EcrireTerme(data::CItem& contrat);

  Frm_ElementsContrat& editeur_;
  screen::Frame& page_;

  screen::Label Etq_DatDebContrat{page_, "Etq_DatDebContrat", "Date début"};
  screen::TextField Txt_DatDebContrat{page_, "Txt_DatDebContrat", LongueurDate};
  screen::Label Etq_DatFinContrat{page_, "Etq_DatFinContrat", "Date fin présumée"};
  screen::TextField Txt_DatFinContrat{page_, "Txt_DatFinContrat", LongueurDate};
  screen::Label Etq_PerEssaiContrat{page_, "Etq_PerEssaiContrat", "Période Essai"};
  screen::TextField Txt_PerEssaiContrat{page_, "Txt_PerEssaiContrat", LongueurTexte};
  screen::Label Etq_JoursEssai{page_, "Etq_JoursEssai", "jours"};
  screen::CheckBox Cac_RenouvEssaiContrat{page_, "Cac_RenouvEssaiContrat", "Renouvelable"};
  screen::Label Etq_DureeMinContrat{page_, "Etq_DureeMinContrat", "Durée minimale"};
  screen::TextField Txt_DureeMinContrat{page_, "Txt_DureeMinContrat", LongueurTexte};

  // What a copy of the screen took away, to be put back when the fields are set back: the first
  // values of effect date and grid start before a moved start date changed them, the presumed end
  // of a contract made open-ended.
  bool debutDeplace_ = false;
  std::string debutPose_;
  std::string effetAvant_;
  std::string departGrilleAvant_;
  std::string finAvant_;
};

}  // namespace editor
