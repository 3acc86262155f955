#pragma once
// The deletion of a contract. Its record stays, marked as cancelled; its links to other contracts
// go with it, and its event in the monthly declaration follows. All that is one block of the store:
// a contract is deleted as a whole or not at all.

namespace editor {

class Frm_ElementsContrat;

class Suppression {
 public:
  explicit Suppression(Frm_ElementsContrat& editeur) : editeur_(editeur) {}

  // Payroll, the user's answer, oppositions and the planning, in this order; then the deletion,
  // after which the editor is closed.
  void Cmd_SupprimerContrat_Click();

 private:
  bool Admise();
  bool PlanningLibre();
  void Supprimer();

  Frm_ElementsContrat& editeur_;
};

}  // namespace editor
