#pragma once
// The window in which the suite's civil-state control shows a private employer. The control is
// another component, which the host has or has not.

#include <string>

#include "screen/form.h"

namespace editor {

class Frm_CivilAide : public screen::Form {
 public:
  // The control's name among those that the host has.
  static constexpr const char* NomControle = "Ctr_CivilAide";

  explicit Frm_CivilAide(screen::Platform& platform);

  // Hands the control the employer's code and the session's objects, these by the names that the
  // session has for them, and starts it; the form can then be shown. False, after a message, when
  // the host does not have the control.
  bool Demarrer(const std::string& codeAide);

 protected:
  // Not while the control says that it cannot be left.
  bool QueryUnload() override;

 private:
  screen::ControleHeberge* controle_;
};

}  // namespace editor
