#pragma once
// Where, and how many times, a page is printed. Dot-matrix printers are not offered: they have
// forms of their own.

#include <string>

#include "screen/form.h"

namespace dialogs {

class Frm_ImpressionA4 : public screen::Form {
 public:
  explicit Frm_ImpressionA4(screen::Platform& platform);

  // Results; the printer that was chosen is the one that prints.
  bool ImpressionAnnulee = true;
  int NbCopies = 1;
  std::string NomImprimante;
  // The workstation's own printer is a dot-matrix one.
  bool ImprimanteMatricielle = false;

  static constexpr int CopiesMax = 99;

  screen::Label Etq_Imprimante{*this, "Etq_Imprimante", "Imprimante"};
  screen::ComboBox Cbo_Imprimante{*this, "Cbo_Imprimante", false};
  // The place of each row among the printers of the workstation.
  screen::ComboBox Cbo_ImpSelect{*this, "Cbo_ImpSelect", false};
  screen::Label Etq_Ou{*this, "Etq_Ou", "Où"};
  screen::Label Etq_LibOu{*this, "Etq_LibOu", ""};
  screen::Label Etq_LibEtat{*this, "Etq_LibEtat", ""};
  screen::Label Etq_NbCopies{*this, "Etq_NbCopies", "Nombre de copies"};
  screen::TextField Txt_NbCopies{*this, "Txt_NbCopies", 2};
  screen::UpDown Bdh_NbCopies{*this, "Bdh_NbCopies"};
  screen::Button Cmd_Ok{*this, "Cmd_Ok", "Ok"};
  screen::Button Cmd_Annuler{*this, "Cmd_Annuler", "Annuler"};

 protected:
  void Activate() override;
  bool QueryUnload() override { return sortieAutorisee_; }

 private:
  void Remplir();
  void Cbo_Imprimante_Click();
  void Txt_NbCopies_Change();
  void Cmd_Ok_Click();
  void Sortir(bool annulee);

  bool prete_ = false;
  bool sortieAutorisee_ = false;
};

}  // namespace dialogs
