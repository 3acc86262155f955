#pragma once
// The working time of an amendment, and the legal hours that it must keep to. The times changed in
// states that are no longer shown are weighed with the one on the screen.

#include <map>
#include <string>
#include <vector>

#include "editor/avenants.h"
#include "rules/heures_legales.h"
#include "session/zones.h"

namespace editor {

class Frm_ElementsContrat;

class DureeTravail {
 public:
  // `avenants` says which state is shown. The fields stand on `page`.
  DureeTravail(Frm_ElementsContrat& editeur, const Avenants& avenants, screen::Frame& page);

  std::vector<session::Zone> Zones();
  // The tab is shown anew: no state has been left.
  void Oublier() { tempsQuittes_.clear(); }
  // The state shown stands as it is on file; a new contract's has nothing on file.
  void Retenir() { DureeFreqInitiale_ = DureeFreq(); }
  void RetenirNouveau() { DureeFreqInitiale_.clear(); }
  // Another state is about to be shown.
  void Quitter();

  // The legal hours, wherever the working time was changed: false when the user, asked, refuses
  // them, or when they cannot be weighed.
  bool Verif_NbHeures();
  // The same for the state on the screen.
  bool HeuresPermises() { return HeuresPermises(Temps()); }

  bool DureeManque() const { return Txt_DureeWContrat.Text().empty(); }
  bool FrequenceManque() const { return Cbo_FreqWContrat.Text().empty(); }

 private:
  static constexpr session::FormeNombre Duree{.avant = 5, .apres = 2};

  rules::TempsTravail Temps() const;
  bool HeuresPermises(const rules::TempsTravail& temps);
  // Working time and frequency as they are displayed.
  std::string DureeFreq() const { return Txt_DureeWContrat.Text() + Cbo_FreqWContrat.Text(); }

  Frm_ElementsContrat& editeur_;
  const Avenants& avenants_;
  screen::Frame& page_;
  std::string DureeFreqInitiale_;
  // By the rank of their states.
  std::map<int, rules::TempsTravail> tempsQuittes_;

  screen::Label Etq_DureeWContrat{page_, "Etq_DureeWContrat", "Durée de travail"};
  screen::TextField Txt_DureeWContrat{page_, "Txt_DureeWContrat", Duree.Largeur()};
  screen::Label Etq_FreqWContrat{page_, "Etq_FreqWContrat", "Fréquence"};
  screen::ComboBox Cbo_FreqWContrat{page_, "Cbo_FreqWContrat", false};
};

}  // namespace editor
