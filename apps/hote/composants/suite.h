#pragma once
// The suite's other controls, as far as a contract screen alone brings them along: the letters, the
// parameter tables and the civil state of the person helped are real, the others show what was
// handed over and can be closed. A host that has a control of its own tells the desk before the
// first widget, and that one holds.

#include <QPointer>
#include <QWidget>
#include <map>
#include <memory>
#include <string>
#include <vector>

#include "data/db.h"
#include "screen/platform.h"
#include "session/droits.h"

namespace hote {

class Bureau;

// The objects that are handed over by the name that the session has for them.
struct ObjetsSuite {
  data::Db* Db = nullptr;
  const session::Droits* W_Droits = &session::SansDroits;
};

// A control with its properties as they were set, in order.
class ControleSuite : public screen::ControleHeberge {
 public:
  void Regler(const std::string& propriete, const std::string& valeur) override;
  std::string Lire(const std::string& propriete) const override;
  void Appeler(const std::string& /*methode*/) override {}

 protected:
  using Proprietes = std::vector<std::pair<std::string, std::string>>;
  const Proprietes& Recues() const { return proprietes_; }

 private:
  Proprietes proprietes_;
};

// One that shows itself in a window of its own.
class ControleVisible : public ControleSuite {
 public:
  // What stands in the window, made anew for each.
  virtual std::unique_ptr<QWidget> Vue() = 0;
};

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
