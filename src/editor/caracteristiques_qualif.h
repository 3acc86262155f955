#pragma once
// The professional qualification, a label of its table, and the budget group that the table gives
// it. Private employers have no budget groups.

#include "data/citem.h"
#include "session/sourdine.h"
#include "session/zones.h"

namespace editor {

class Frm_ElementsContrat;

class Qualification {
 public:
  // `sourdine` is the tab's.
  Qualification(Frm_ElementsContrat& editeur, screen::Frame& page, session::Sourdine& sourdine);

  void Montrer(const data::CItem& contrat, int rang);
  void MontrerNouveau();
  void Ecrire(data::CItem& contrat, int rang) const;
  void SelonConvention(const std::string& convention);
  bool Absente() const { return Cbo_QualifContrat.Text().empty(); }

 private:
  static constexpr int LongueurLibelle = 60;

  // The labels of the table; the one shown stays.
  void Remplir();
  void MontrerRegroupement();
  void Cmd_QualifPro_Click();

  Frm_ElementsContrat& editeur_;
  session::Sourdine& sourdine_;
  data::CItem ItemQualif_;

  screen::Label Etq_QualifContrat;
  screen::ComboBox Cbo_QualifContrat;
  screen::Button Cmd_QualifPro;
  screen::Label Etq_RegroupBudget;
  screen::TextField Txt_RegroupBudget;

  session::Zones zones_;
};

}  // namespace editor
