#pragma once
// The one door for what a user does. The desktop binder, the scenario pilot and the tests all act
// through it, so that a rule that holds in one holds in all. Every act first brings the focus to
// its field, as a click or a Tab would; bars, menus and the form's surface leave it where it is.

#include <memory>
#include <string>
#include <string_view>

#include "screen/field.h"
#include "screen/form.h"

namespace screen {

enum class Acte {
  Fait,
  Inaccessible,  // the field or its form is disabled or hidden, the row or tab does not exist, or
                 // a field of that kind takes no such act: nothing happened
  Avale,  // the field that had the focus kept it (or sent it elsewhere), or a handler took the
          // screen away before the act was complete
};

class User {
 public:
  explicit User(Form& form) : form_(form), vie_(form.Vie()) {}

  // Focus alone, as a click into a text field or a Tab does.
  Acte Focus(Field& champ);
  // Tab: leaves the active field for the next one.
  Acte Quitter();

  // Focus, then the text in place of what stood there, key by key: KeyPress may drop or change each
  // key, and Change is fired after each that counts. The first key that counts replaces the text.
  // Keys go where the focus is, as on a keyboard: a Change handler that moves it takes the rest
  // along. Avale when keys are left over: after a message box or a modal form, or when the form is
  // hidden or disabled or has no active field any more. An empty text erases what stood there.
  // Fields of no typed text are Inaccessible.
  Acte Taper(Field& champ, std::string_view texte);
  // One key into the field: Entree, Echap, Retour (erases the last character) or a character, added
  // at the end. Enter and the blank press a focused button, the blank a check box or an option.
  Acte Touche(Field& champ, char32_t touche);
  // One key about to go into a field whose text the host edits itself, and hands over whole to
  // Coller: focus, then KeyPress. What is left of the key; 0 when it is dropped, when the field
  // takes no keys or no acts, and when the handler took the screen or the focus away.
  // `horsSelection`: what the text holds beside the selection that the key replaces.
  char32_t Filtrer(Field& champ, char32_t touche, std::string_view horsSelection);
  // The whole new text at once, as a paste or an input method gives it: no KeyPress, one Change.
  // Cut at the field's length; control characters are left out.
  Acte Coller(Field& champ, std::string_view texte);

  // Button, option, check box, menu entry; on a list or drop-down, its selected row again; on a
  // text the focus alone.
  Acte Cliquer(Field& champ);
  // A row of a list or drop-down. Clicking the row that is already selected fires Click too.
  Acte Choisir(Field& champ, int ligne);
  // Opens a drop-down: its rows may be filled now.
  Acte Derouler(ComboBox& champ);
  // A double click on a row: Choisir, then DblClick.
  Acte DoubleCliquer(Field& champ, int ligne);
  Acte Onglet(TabStrip& onglets, int onglet);
  // Held between the bounds, as a bar that is dragged.
  Acte Barre(RangeField& barre, int valeur);
  Acte ClicDroit();
  // The frame's close box: Fait when the form went away, Avale when it refused.
  Acte Fermer();

 private:
  Acte Entrer(Field& champ);
  // Whether the form still is there for the user.
  bool Presente() const;
  char32_t Montrer(Field& champ, char32_t touche, std::string_view horsSelection);
  bool Presser(Field& champ, char32_t touche, bool remplacer);

  Form& form_;
  std::weak_ptr<const void> vie_;
};

}  // namespace screen
