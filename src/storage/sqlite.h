#pragma once
// The store of a workstation: one data file, kept by SQLite, that several processes can share.
// Readers never wait for a writer nor it for them; writers wait for each other, up to a bound.
//
// A write that has returned survives a crash of the program and of the machine, and stood in the
// file of that name: one that was moved, removed or replaced takes no more writes. Every page and
// every record carries a checksum that each read verifies: a damaged place is a StoreError
// Endommage, never a text, and never taken for "no such record". One object serves one thread.

#include <functional>
#include <memory>
#include <string>

#include "data/poste.h"
#include "data/storage.h"
#include "storage/magasin.h"

namespace storage {

struct SqliteOptions {
  int attenteMs = 5000;  // how long a write waits for another process before StoreError Occupe
  long pagesMax = 0;     // 8 KB pages that the file may grow to (then DisquePlein), 0 without bound
  bool reseauAdmis = false;  // a file on a network folder opens all the same
  // Told now and then, while a file from before gets its indexes, how many records have been read.
  std::function<void(long)> avanceIndex = {};
};

class SqliteStorage : public Magasin {
 public:
  // Of an existing data file. StoreError when it is absent, a directory, no data file, of another
  // version, damaged, or on a place that cannot be written. `poste` must outlive the store. A file
  // from before gets its indexes now; where that fails it is used without them.
  static std::unique_ptr<SqliteStorage> Ouvrir(const std::string& chemin, const data::Poste& poste,
                                               const SqliteOptions& options = {});
  // The same to consult: every write is a StoreError LectureSeule. Whoever may not write the file,
  // or finds the disk full, reads it without leaving anything beside it; a scan under which others
  // change the file is then a StoreError Occupe.
  static std::unique_ptr<SqliteStorage> OuvrirEnLecture(const std::string& chemin,
                                                        const data::Poste& poste,
                                                        const SqliteOptions& options = {});
  // Of a new data file without records. StoreError when something has that name already.
  static std::unique_ptr<SqliteStorage> Creer(const std::string& chemin, const data::Poste& poste,
                                              const SqliteOptions& options = {});
  ~SqliteStorage() override;

  const std::string& Avis() const override;
  // What has become of a file that no longer stands under its name, and what its user can do; ""
  // while it is in place. Until it is put back, every write is a StoreError that says the same.
  std::string Defaut() const;
  // Another file has taken the name: what is read here is no longer what stands there.
  bool Remplace() const;

  bool Get(std::string_view fichier, std::string_view cle, std::string& texte) override;
  // A text equal to the stored one writes nothing. Over a damaged record it fails: what cannot be
  // read cannot go to the history.
  void Put(std::string_view fichier, std::string_view cle, std::string_view texte) override;
  bool Erase(std::string_view fichier, std::string_view cle) override;
  void Scan(std::string_view fichier, const data::KeyRange& cles,
            const Visiteur& visiteur) override;
  // Reads the whole file.
  std::vector<data::FichierCompte> Fichiers() override;
  std::vector<data::AncienTexte> Historique(std::string_view fichier,
                                            std::string_view cle) override;
  std::optional<std::size_t> Compter(std::string_view fichier, const data::Chemin& chemin,
                                     std::size_t plafond) override;
  bool ScanChemins(std::string_view fichier, const std::vector<data::Chemin>& chemins,
                   const Visiteur& visiteur) override;
  // One transaction. A write of the block that failed takes the whole block with it, even when
  // `travail` passes over the failure. A nested block, or a write from a scan's visitor, is a
  // programmer's error (std::logic_error).
  void EnUnBloc(const std::function<void()>& travail) override;

  void ParcourirAnciens(std::string_view avant, const VisiteurAnciens& visiteur) override;
  void OublierAvant(std::string_view avant) override;
  void Oublier(std::string_view fichier, std::string_view cle) override;
  bool Compacter() override;
  void ParcourirHistorique(const VisiteurTexte& visiteur) override;
  void Reprendre(std::string_view fichier, std::string_view cle,
                 const data::AncienTexte& ancien) override;

  // Reads every page, record and former text and reports each damaged one; where a damaged page
  // cuts the way, what stands behind it is read from the other end.
  void Verifier(const std::function<void(const Dommage&)>& signaler,
                const std::function<void(long)>& avance = {}) override;
  bool VerifierIndex(const std::function<void(const Dommage&)>& signaler,
                     const std::function<void(long)>& avance = {}) override;
  void RefaireIndex(const std::function<void(long)>& avance = {}) override;

 private:
  class Moteur;
  SqliteStorage(std::unique_ptr<Moteur> moteur, const data::Poste& poste,
                const SqliteOptions& options);
  // The engine to read with: another one when the file has changed under a reader without locks.
  Moteur& Lecteur();

  std::unique_ptr<Moteur> moteur_;
  const data::Poste& poste_;
  SqliteOptions options_;
};

}  // namespace storage
