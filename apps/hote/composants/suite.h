#pragma once
// The suite's other controls, as far as a contract screen alone brings them along: the letters, the
// parameter tables and the civil state of the person helped are real, the others show what was
// handed over and can be closed. A host that has a control of its own tells the desk before the
// first widget, and that one holds.

#include <map>
#include <memory>
#include <string>

#include "composants/controle_suite.h"

namespace hote {

class Bureau;

class Suite {
 public:
  explicit Suite(Bureau& bureau);
  ~Suite();
  Suite(const Suite&) = delete;
  Suite& operator=(const Suite&) = delete;

  ObjetsSuite& Objets() { return objets_; }

 private:
  Bureau& bureau_;
  ObjetsSuite objets_;
  std::map<std::string, std::unique_ptr<ControleSuite>> controles_;
};

// Makes the desk know the windows of the forms that host a control.
void enregistrerHebergees(Bureau& bureau);

}  // namespace hote
