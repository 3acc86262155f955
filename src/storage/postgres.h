#pragma once
// The store of many stations: one database on a PostgreSQL server, or on another that speaks its
// protocol and SQL. Each station has a connection of its own.
//
// A write that has returned is on the server's disk. Writes are serializable transactions, tried
// again when another station got in between. A connection that is lost is made anew in silence, and
// what was under way is done once more. When that fails too, the error tells whether the write is
// done, is not, or whether that is unknown; written again, it stands once. One object serves one
// thread.

#include <functional>
#include <memory>
#include <string>

#include "data/poste.h"
#include "data/storage.h"
#include "storage/magasin.h"

namespace storage {

struct PostgresOptions {
  int attenteMs = 5000;  // how long a write waits for other stations before StoreError Occupe
  // Told now and then, while a base gets its indexes, how many records have been read.
  std::function<void(long)> avanceIndex = {};
};

class PostgresStorage : public Magasin {
 public:
  // Of a base that Creer made, by its address (see storage/adresse.h). StoreError when the server
  // is not reached, refuses the account, or has no base of ours, or one of a newer version. One
  // from before is brought to the present version. `poste` must outlive the store.
  static std::unique_ptr<PostgresStorage> Ouvrir(const std::string& adresse,
                                                 const data::Poste& poste,
                                                 const PostgresOptions& options = {});
  // The same to consult: every write is a StoreError LectureSeule.
  static std::unique_ptr<PostgresStorage> OuvrirEnLecture(const std::string& adresse,
                                                          const data::Poste& poste,
                                                          const PostgresOptions& options = {});
  // Makes the tables of a new base in that database, and the roles of its users.
  static std::unique_ptr<PostgresStorage> Creer(const std::string& adresse,
                                                const data::Poste& poste,
                                                const PostgresOptions& options = {});
  ~PostgresStorage() override;

  // The address to show, without its password.
  const std::string& Adresse() const;
  // Trips over the line so far, those of connecting aside.
  long Voyages() const;

  const std::string& Avis() const override;
  bool Get(std::string_view fichier, std::string_view cle, std::string& texte) override;
  void Put(std::string_view fichier, std::string_view cle, std::string_view texte) override;
  bool Erase(std::string_view fichier, std::string_view cle) override;
  void Scan(std::string_view fichier, const data::KeyRange& cles,
            const Visiteur& visiteur) override;
  std::vector<data::FichierCompte> Fichiers() override;
  std::vector<data::AncienTexte> Historique(std::string_view fichier,
                                            std::string_view cle) override;
  std::optional<std::size_t> Compter(std::string_view fichier, const data::Chemin& chemin,
                                     std::size_t plafond) override;
  bool ScanChemins(std::string_view fichier, const std::vector<data::Chemin>& chemins,
                   const Visiteur& visiteur) override;
  // One serializable transaction. A statement of the block that failed takes the whole block with
  // it, even when `travail` passes over the failure. A nested block, or a write from a scan's
  // visitor, is a programmer's error (std::logic_error).
  void EnUnBloc(const std::function<void()>& travail) override;

  bool ALaLigne() const override { return true; }
  void DebuterRoute() override;
  void FinirRoute() noexcept override;
  void OublierRoute() noexcept override;
  void Annoncer(const std::vector<data::Annonce>& annonces) override;
  void AnnoncerBloc() override;
  void AnnoncerSuite(const std::vector<data::Annonce>& annonces) override;

  void ParcourirAnciens(std::string_view avant, const VisiteurAnciens& visiteur) override;
  void OublierAvant(std::string_view avant) override;
  void Oublier(std::string_view fichier, std::string_view cle) override;
  // The room goes back to the server, which reuses it. Always true.
  bool Compacter() override;
  void ParcourirHistorique(const VisiteurTexte& visiteur) override;
  void Reprendre(std::string_view fichier, std::string_view cle,
                 const data::AncienTexte& ancien) override;
  void Verifier(const std::function<void(const Dommage&)>& signaler,
                const std::function<void(long)>& avance = {}) override;
  bool VerifierIndex(const std::function<void(const Dommage&)>& signaler,
                     const std::function<void(long)>& avance = {}) override;
  void RefaireIndex(const std::function<void(long)>& avance = {}) override;

 private:
  class Moteur;
  class Controleur;
  explicit PostgresStorage(std::unique_ptr<Moteur> moteur);

  std::unique_ptr<Moteur> moteur_;
};

}  // namespace storage
