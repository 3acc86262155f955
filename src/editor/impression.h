#pragma once
// What the editor prints: the hiring declaration of the contract that stands on the screen. The
// pages are made in documents/; here stand the questions before and the mark after.

#include <optional>
#include <string>

namespace editor {

class Frm_ElementsContrat;

class Impression {
 public:
  explicit Impression(Frm_ElementsContrat& editeur) : editeur_(editeur) {}

  // Prints the declaration of the contract on file and notes the day in it. A printer that fails is
  // told to the user, and the contract then bears no day.
  void Declaration();

 private:
  // How many copies; nothing when the user gives the printing up.
  std::optional<int> Demander() const;
  // The picture of the signature, which the suite's control knows; "" without that control.
  std::string Signature() const;
  void NoterDeclaration() const;

  Frm_ElementsContrat& editeur_;
};

}  // namespace editor
