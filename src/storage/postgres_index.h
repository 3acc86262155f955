#pragma once
// The indexes on the server, made anew and compared with the records. For PostgresStorage alone.

#include <functional>

#include "storage/postgres_moteur.h"

namespace storage {

class PostgresStorage::Controleur {
 public:
  explicit Controleur(Moteur& moteur) : moteur_(moteur) {}

  // Every record and former text, each held against its checksum.
  void Textes(const std::function<void(const Dommage&)>& signaler,
              const std::function<void(long)>& avance);
  // False, and no report, while the entries are not those of this program.
  bool Index(const std::function<void(const Dommage&)>& signaler,
             const std::function<void(long)>& avance);
  // All entries anew.
  void Refaire(const std::function<void(long)>& avance);

 private:
  struct Page;
  bool Tenus();
  Page Lire(std::string_view fichier, const std::string& apres);
  void Comparer(std::string_view fichier, const Page& page, const std::string& apres,
                const std::function<void(const Dommage&)>& signaler);
  void Table(const Ordre& ordre, bool anciens, const std::function<void(const Dommage&)>& signaler,
             const std::function<void(long)>& avance, long& lus);

  Moteur& moteur_;
};

}  // namespace storage
