#pragma once
// The base that a command works on, a file or on a server, open as long as the object lives.

#include <memory>
#include <string>

#include "base/contexte.h"
#include "data/poste.h"
#include "data/storage.h"
#include "storage/ouvrir.h"

namespace base {

// As every command opens and creates bases.
storage::OptionsOuverture optionsStockage(const Arguments& arguments);

enum class Acces { Lecture, Ecriture };

class Base {
 public:
  // Opens what the argument BASE names, and tells what that had to do. StoreError when it is
  // absent or no data file. A command that only reads works on a place that cannot be written, too.
  // The progress of an older file that gets its indexes shows on the terminal.
  Base(Contexte& contexte, const Arguments& arguments, Acces acces);

  data::Storage& Stockage() { return *stockage_; }
  storage::Magasin& Magasin() { return *stockage_; }
  std::shared_ptr<data::Storage> Partage() { return stockage_; }

 private:
  data::PosteSysteme poste_;
  std::shared_ptr<storage::Magasin> stockage_;
};

}  // namespace base
