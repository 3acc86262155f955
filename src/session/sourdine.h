#pragma once
// Change handlers that are silent while the program fills their fields.
//
//   Txt_CodPCSContrat.Change = sourdine_.SiAudible([this] { ChercherFonction(); });
//   ...
//   const Sourdine::Silence silence(sourdine_);      // until the end of the scope

#include <utility>

#include "screen/events.h"
#include "session/pendant.h"

namespace session {

class Sourdine {
 public:
  class Silence {
   public:
    explicit Silence(Sourdine& sourdine) : muette_(sourdine.muette_, true) {}

   private:
    Pendant muette_;
  };

  screen::Handler SiAudible(screen::Handler suite) const {
    return [this, suite = std::move(suite)] {
      if (!muette_) suite();
    };
  }

 private:
  bool muette_ = false;
};

}  // namespace session
