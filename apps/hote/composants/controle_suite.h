#pragma once
// What the controls that this host brings along have in common: their properties, and the objects
// behind the names that are handed over.

#include <QPointer>
#include <QWidget>
#include <memory>
#include <string>
#include <utility>
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
  std::string Lire(const std::string& propriete) const override { return Recue(propriete); }
  void Appeler(const std::string& /*methode*/) override {}

 protected:
  using Proprietes = std::vector<std::pair<std::string, std::string>>;
  const Proprietes& Recues() const { return proprietes_; }
  // As it was set, "" for one that never was.
  std::string Recue(const std::string& propriete) const;

 private:
  Proprietes proprietes_;
};

// One that shows itself in a window of its own.
class ControleVisible : public ControleSuite {
 public:
  // What stands in the window, made anew for each.
  virtual std::unique_ptr<QWidget> Vue() = 0;
};

}  // namespace hote
