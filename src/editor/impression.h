#pragma once
// What the editor prints: the hiring declaration and the letters of the contract that stands on the
// screen. Pages are made in documents/, letters by the suite's document-edit control; here stand
// the questions before and the mark after.

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
  // Validates and saves, then hands the contract, or the amendment shown, to the word processor. A
  // refusal on the way prints nothing.
  void Contrat();
  void Avenant(const std::string& numero);

 private:
  struct Lettre;
  void Imprimer(const Lettre& lettre);
  // How many copies; nothing when the user gives the printing up.
  std::optional<int> Demander() const;
  // The picture of the signature, which the suite's control knows; "" without that control.
  std::string Signature() const;
  void NoterDeclaration() const;

  Frm_ElementsContrat& editeur_;
};

}  // namespace editor
