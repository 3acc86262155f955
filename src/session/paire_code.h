#pragma once
// A code box and its label list: a complete code shows its label, a label chosen in the list writes
// its code; what a label typed by hand means is the pair's own affair. The pair owns the code's
// length and padding, where its label comes from, what is said of an unknown code, and what a
// choice leads to.
//
//   PaireCode entite_{Txt_AssocContrat, Cbo_LibAssocContrat, sourdine_,
//                     {.longueur = 3,
//                      .inconnu = "Cette entité juridique n'existe pas.",
//                      .avant = [this] { ViderEntite(); },
//                      .choisi = [this] { ChoisirEntite(); }}};
//   entite_.Remplir(entites);     // the rows of the list, and with them the labels of the codes
//
// A refused code is emptied and its box takes the focus. When the store fails while a code is read,
// the code is emptied too, or stands as one that is not valid yet (Cherche).

#include <functional>
#include <optional>
#include <string>
#include <string_view>

#include "data/liste_codes.h"
#include "screen/field.h"
#include "screen/platform.h"
#include "session/sourdine.h"

namespace session {

struct RegleCode {
  // Characters of a complete code. A shorter one is completed on leaving, with zeros.
  int longueur = 0;
  enum { AGauche, ADroite } completee = AGauche;
  // What is said of a code that is not known; nullptr: it stands, with the label that it has.
  const char* inconnu = nullptr;
  screen::Icone icone = screen::Icone::Information;
  // The label of a complete code, nothing when it is unknown. Unset: the rows of the list.
  std::function<std::optional<std::string>(const std::string& code)> source = {};
  // What is said of a code that is known and cannot be taken; nullptr when it can.
  std::function<const char*(const std::string& code)> refus = {};
  // A label typed by hand: has no code; is a name to search, which keeps the code until it is
  // emptied and goes back to the code's own when it is left; has the code of the row of that label,
  // and goes when there is none.
  enum { SansCode, Cherche, Nomme } tape = SansCode;
  // What every change of the code does first; what one that is not complete does; what a known one
  // leads to; what a label chosen in the list does before its code is written.
  std::function<void()> avant = {};
  std::function<void()> incomplet = {};
  std::function<void()> choisi = {};
  std::function<void(const std::string& code)> avantChoix = {};
};

class PaireCode {
 public:
  // `sourdine`: that of the form or tab, whose fields are silent while it is filled.
  PaireCode(screen::TextField& code, screen::ComboBox& libelle, Sourdine& sourdine,
            RegleCode regle);

  // Another rule from now on: the employer is an establishment or a person.
  void Suivre(RegleCode regle) { regle_ = std::move(regle); }
  // The rows of the list. No row is selected afterwards and the label is empty, silently; one that
  // the user is typing stays.
  void Remplir(data::ListeCodes lignes);
  const data::ListeCodes& Lignes() const { return lignes_; }
  // Shows a label by program: the row of the code in the box where it has that label, else the
  // text alone. Nothing happens while the user is typing the label.
  void Montrer(std::string_view libelle);
  // Code and label of a record, silently.
  void Afficher(std::string_view code, std::string_view libelle);
  // Empties both; as the user would.
  void Vider();
  // Empties the code and gives its box the focus.
  void Refuser();
  // Writes the code, as if it were typed.
  void Choisir(std::string_view code) { code_.SetText(code); }
  // Completes the code in the box and reads it unless that is done: false when it was refused. An
  // empty box passes.
  bool Completer();

 private:
  void Suivi();
  void Lire();
  void LibelleTape();
  void QuitterLibelle();
  std::string CodeChoisi() const;

  screen::TextField& code_;
  screen::ComboBox& libelle_;
  Sourdine& sourdine_;
  RegleCode regle_;
  data::ListeCodes lignes_;
  // The code in the box has been read and taken, and showed this label.
  bool valide_ = false;
  std::string montre_;
  bool muette_ = false;
  bool saisie_ = false;
};

}  // namespace session
