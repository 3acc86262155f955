#pragma once
// The one place where a base is opened from what a person gives for it: the name of a data file, or
// the address of a database on a server (see storage/adresse.h).

#include <functional>
#include <memory>
#include <string>

#include "data/poste.h"
#include "storage/magasin.h"

namespace storage {

struct OptionsOuverture {
  bool lecture = false;      // to consult: every write is a StoreError LectureSeule
  int attenteMs = 5000;      // how long a write waits for others before StoreError Occupe
  bool reseauAdmis = false;  // a file on a network folder opens all the same
  // Told now and then, while a base from before gets its indexes, how many records have been read.
  std::function<void(long)> avanceIndex = {};
};

// StoreError when it cannot be. `poste` must outlive the store.
std::unique_ptr<Magasin> ouvrir(const std::string& base, const data::Poste& poste,
                                const OptionsOuverture& options = {});
// A new base, without records. StoreError when there is one already.
std::unique_ptr<Magasin> creer(const std::string& base, const data::Poste& poste,
                               const OptionsOuverture& options = {});

}  // namespace storage
