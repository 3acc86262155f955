#pragma once
// A code box and its label list, kept in step: a complete code shows its label, a label chosen in
// the list writes its code, a label typed by hand has no code. The tab decides what a code means;
// the pair only keeps each of the two from answering to what it caused in the other.

#include <functional>
#include <string>
#include <string_view>
#include <vector>

#include "screen/field.h"

namespace editor {

class PaireCode {
 public:
  struct Ligne {
    std::string code;
    std::string libelle;
  };

  PaireCode(screen::TextField& code, screen::ComboBox& libelle) : code_(code), libelle_(libelle) {}

  // The rows of the list. No row is selected afterwards and the label is empty, silently; one that
  // the user is typing stays.
  void Remplir(std::vector<Ligne> lignes);
  // Shows a label by program: the row of the code in the box where it has that label, else the
  // text alone. Nothing happens while the user is typing the label.
  void Montrer(std::string_view libelle);

  // Click and Change of the list: the code of the selected row, "" without one, into the box.
  // Nothing while the program shows a label.
  void SuivreChoix();
  void SuivreSaisie();

  // Completes a code that is not empty with zeros on the left.
  void Completer(int longueur);
  // Empties both.
  void Vider();
  // Empties the code and gives its box the focus.
  void Refuser();
  // Runs what a code stands for. Whatever rises from it leaves no unchecked code in the box.
  void Controler(const std::function<void()>& lecture);

 private:
  std::string CodeChoisi() const;

  screen::TextField& code_;
  screen::ComboBox& libelle_;
  std::vector<Ligne> lignes_;
  bool muette_ = false;
  bool saisie_ = false;
};

}  // namespace editor
