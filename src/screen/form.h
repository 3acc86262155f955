#pragma once
// A form: a named set of fields, one of which may be active. Screens derive from it, hold their
// fields as members in tab order and tie their handlers in the constructor:
//
//   class Frm_Stage : public Form {
//     TextField Txt_Ecole{*this, "Txt_Ecole", 60};
//     Button Cmd_OK{*this, "Cmd_OK", "OK"};
//   };
//
// Moving the focus fires LostFocus of the field that had it before anything of the next field, a
// button's Click included. A handler that sets the focus back keeps it, and the act that was moving
// it does not happen.
//
// Invariants: names are unique in a form (a second one is a std::logic_error); the active field, if
// any, is enabled and visible, its frames included. A hidden form has no events of focus.

#include <memory>
#include <string>
#include <string_view>
#include <vector>

#include "screen/field.h"
#include "screen/platform.h"

namespace screen {

class Form {
 public:
  Form(Platform& platform, std::string nom, std::string titre = {});
  Form(const Form&) = delete;
  Form& operator=(const Form&) = delete;
  virtual ~Form();

  const std::string& Nom() const { return nom_; }
  const std::string& Titre() const { return titre_; }
  void SetTitre(std::string titre) { titre_ = std::move(titre); }
  Platform& Services() const { return platform_; }

  // Fields in tab order.
  const std::vector<Field*>& Fields() const { return fields_; }
  // nullptr when there is none of that name.
  Field* Find(std::string_view nom) const;

  Field* Active() const { return active_; }

  // A disabled form takes no user act, as during a long operation.
  bool Enabled() const { return enabled_; }
  void SetEnabled(bool enabled) { enabled_ = enabled; }

  bool Visible() const { return visible_; }
  // Shows the form above the others, runs Activate and returns when the form has been hidden. Also
  // hidden when an error rises through it. Showing a form that is shown is a std::logic_error.
  void ShowModal();
  // Shown without blocking: the host's own form. Runs Activate unless it is shown already.
  void Show();
  // No field is active afterwards, and no LostFocus is fired.
  void Hide();
  // Expires with the form: for whoever looks at it again after a handler has run.
  std::weak_ptr<const void> Vie() const { return vie_; }

  // Asks QueryUnload and, unless it refuses, hides. The frame's close box ends here. False when
  // refused.
  bool Close();

  // MessageBox with the title that all of the system's messages bear, or another.
  Reponse MessageBox(const std::string& texte, Boutons boutons = Boutons::Ok,
                     Icone icone = Icone::Aucune, const std::string& titre = TitreMessage);
  // A question whose hasty answer must lose nothing.
  Reponse Demander(const std::string& texte, Boutons boutons, Icone icone, Reponse prudente,
                   const std::string& titre = TitreMessage);

  // Moves the focus to `champ`, with LostFocus and GotFocus. False when the move did not happen: a
  // handler kept or redirected the focus or hid the form, or `champ` is or became unable to take
  // it; the field that had the focus then keeps it. During LostFocus it redirects, as SetFocus.
  bool MoveFocus(Field& champ);
  // Tab: to the next field that can take the focus in tab order, round the end. False as MoveFocus,
  // and when no field can.
  bool MoveFocusNext();

  // Message boxes and modal shows so far, of all forms: typing compares it, since the keys that
  // follow a box are meant for the box.
  static unsigned long Interruptions();

 protected:
  // The Form_Unload of a screen: false refuses the closing.
  virtual bool QueryUnload() { return true; }
  virtual void Activate() {}
  // The right button on the form's surface is 2.
  virtual void MouseDown(int /*bouton*/) {}

 private:
  friend class Field;
  friend class User;
  class Depart;
  void Register(Field& champ);
  // Drops the active field silently when it can no longer be active.
  void VerifierActif();

  Platform& platform_;
  std::string nom_;
  std::string titre_;
  std::vector<Field*> fields_;
  Field* active_ = nullptr;
  // Set while LostFocus of the active field runs: the field to go to afterwards, changed by a
  // SetFocus from inside.
  Field* destination_ = nullptr;
  bool enabled_ = true;
  bool visible_ = false;
  std::shared_ptr<const void> vie_ = std::make_shared<char>();
};

}  // namespace screen
