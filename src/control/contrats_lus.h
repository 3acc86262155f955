#pragma once
// A carer's contracts as they were last read, whether or not the filters of the list keep them.
// What is opened or created since is as it stands now.

#include <functional>
#include <string>
#include <vector>

#include "control/contrat_aidant.h"
#include "data/storage.h"
#include "screen/events.h"
#include "session/session.h"

namespace control {

class ContratsLus {
 public:
  explicit ContratsLus(const session::Session& session) : session_(session) {}

  // Called when they are others. Unset, nothing happens.
  screen::Handler SurChangement;

  const std::vector<ContratAidant>& Tous() const { return tous_; }
  // False before the first reading, and after one that the store has broken off.
  bool Lus() const { return lus_; }

  // Tells the store what reading and listing them will ask for.
  void Annoncer(const std::string& aidant, data::Route& route) const;
  // Reads them anew, by number; `acte` sees each record.
  void Lire(const std::string& aidant, const std::function<void(const data::CItem&)>& acte = {});
  // A contract that is opened or created before any search is shown among the others all the same.
  void Assurer(const std::string& aidant);
  // Notes a contract that was opened or created as it stands on file now.
  void Noter(const std::string& cle);

 private:
  const session::Session& session_;
  std::vector<ContratAidant> tous_;
  bool lus_ = false;
};

}  // namespace control
