#pragma once
// A store that lasts, as the data tool and the hosts use it: what a Storage does, and what only one
// that stands on a disk or a server can be asked.

#include <functional>
#include <string>
#include <string_view>

#include "data/storage.h"

namespace storage {

// A place that does not read back as it was written.
struct Dommage {
  std::string fichier;  // with `cle`, the damaged record; empty when it is no single record
  std::string cle;
  std::string message;  // French, one sentence
};

class Magasin : public data::Storage {
 public:
  // What the opening had to do that the user should know, a French sentence; "" for nothing.
  virtual const std::string& Avis() const = 0;

  // Forgetting, which leaves no former text. The records that have former texts, with their number;
  // with `avant`, a time as in the history, only those replaced before it.
  using VisiteurAnciens =
      std::function<void(std::string_view fichier, std::string_view cle, long anciens)>;
  virtual void ParcourirAnciens(std::string_view avant, const VisiteurAnciens& visiteur) = 0;
  // Removes for good the former texts replaced before `avant`, or one record with all of its own.
  // In a block or outside.
  virtual void OublierAvant(std::string_view avant) = 0;
  virtual void Oublier(std::string_view fichier, std::string_view cle) = 0;
  // Gives the room of what was removed back to the disk, where nothing of it is left in the file or
  // its log. False when a reader keeps a part of the log until it ends. Not in a block.
  virtual bool Compacter() = 0;

  // Moving over. All former texts, by file, key and number.
  using VisiteurTexte = std::function<void(std::string_view fichier, std::string_view cle,
                                           const data::AncienTexte& ancien)>;
  virtual void ParcourirHistorique(const VisiteurTexte& visiteur) = 0;
  // Adds a former text as another store kept it. In a block.
  virtual void Reprendre(std::string_view fichier, std::string_view cle,
                         const data::AncienTexte& ancien) = 0;

  // Reads everything and reports what is damaged. `avance`, if any, is told now and then how many
  // records and former texts have been read. Others may go on working.
  virtual void Verifier(const std::function<void(const Dommage&)>& signaler,
                        const std::function<void(long)>& avance = {}) = 0;
  // Compares the indexes with the records, and reports where they differ. False, and no report,
  // where no index is that this program can use. Others may go on working.
  virtual bool VerifierIndex(const std::function<void(const Dommage&)>& signaler,
                             const std::function<void(long)>& avance = {}) = 0;
  // Makes all indexes anew from the records; others wait to write.
  virtual void RefaireIndex(const std::function<void(long)>& avance = {}) = 0;
};

}  // namespace storage
