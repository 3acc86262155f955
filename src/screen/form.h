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
// Invariants: names are unique in a form; the active field, if any, is accessible.

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
  // Shows the form above the others and returns when it has been hidden.
  void ShowModal();
  // Shown without blocking: the host's own form.
  void Show();
  void Hide();

  // Asks QueryUnload and, unless it refuses, hides. The frame's close box ends here. False when
  // refused.
  bool Close();

  // MessageBox with the title that all of the system's messages bear, or another.
  Reponse MessageBox(const std::string& texte, Boutons boutons = Boutons::Ok,
                     Icone icone = Icone::Aucune, const std::string& titre = TitreMessage);

  // Moves the focus to `champ`, with LostFocus and GotFocus. False when the move did not happen: a
  // handler kept or redirected the focus, or `champ` is or became inaccessible.
  bool MoveFocus(Field& champ);
  // Tab: to the next accessible field in tab order, round the end. False as MoveFocus.
  bool MoveFocusNext();

 protected:
  // The Form_Unload of a screen: false refuses the closing.
  virtual bool QueryUnload() { return true; }
  virtual void Activate() {}
  // The right button on the form's surface is 2.
  virtual void MouseDown(int /*bouton*/) {}

 private:
  friend class Field;
  friend class User;
  void Register(Field& champ);
  void Unfocus(const Field& champ);

  Platform& platform_;
  std::string nom_;
  std::string titre_;
  std::vector<Field*> fields_;
  Field* active_ = nullptr;
  // While LostFocus of the active field runs: the field to go to afterwards, changed by a SetFocus
  // from inside.
  Field* leaving_ = nullptr;
  Field* destination_ = nullptr;
  bool enabled_ = true;
  bool visible_ = false;
};

}  // namespace screen
