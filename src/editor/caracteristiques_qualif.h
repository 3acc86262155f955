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

  // The labels of the table, read anew; the one shown stays.
  void Remplir();
  void Montrer(const data::CItem& contrat, int rang);
  void MontrerNouveau();
  void Ecrire(data::CItem& contrat, int rang) const;
  void SelonConvention(const std::string& convention);
  bool Absente() const { return Cbo_QualifContrat.Text().empty(); }

 private:
  static constexpr int LongueurLibelle = 60;

  void MontrerRegroupement();
  void Cmd_QualifPro_Click();

  Frm_ElementsContrat& editeur_;
  screen::Frame& page_;
  session::Sourdine& sourdine_;
  // The labels of the table, each with the code of its budget group; the groups.
  data::ListeCodes qualifications_;
  data::ListeCodes regroupements_;

  screen::Label Etq_QualifContrat{page_, "Etq_QualifContrat", "Qualif. Prof."};
  screen::ComboBox Cbo_QualifContrat{page_, "Cbo_QualifContrat", true, LongueurLibelle};
  screen::Button Cmd_QualifPro{page_, "Cmd_QualifPro", "Ajouter Qualification"};
  screen::Label Etq_RegroupBudget{page_, "Etq_RegroupBudget", "Regroup. budget"};
  screen::TextField Txt_RegroupBudget{page_, "Txt_RegroupBudget"};

  session::Zones zones_;
};

}  // namespace editor
