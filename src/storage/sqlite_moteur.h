#pragma once
// What SqliteStorage holds: the connection, the statements that it keeps, and the state of blocks
// and scans. For storage/sqlite.cpp alone.

#include <exception>
#include <functional>
#include <memory>
#include <vector>

#include "storage/index_sqlite.h"
#include "storage/sqlite.h"
#include "storage/sqlite_connexion.h"
#include "storage/veille.h"

namespace storage {

// A write transaction: taken when it is made, undone when it goes without Valider.
class Transaction {
 public:
  Transaction(Connexion& connexion, const Acte& acte);
  ~Transaction();
  Transaction(const Transaction&) = delete;
  Transaction& operator=(const Transaction&) = delete;
  // On return everything is on the disk.
  void Valider(const Acte& acte);

 private:
  Connexion& connexion_;
};

// Scans may nest, so one statement is not enough: as many as were ever under way at once are kept.
class ReserveRequetes {
 public:
  ReserveRequetes(Connexion& connexion, const char* sql) : connexion_(connexion), sql_(sql) {}
  std::unique_ptr<Requete> Prendre(const Acte& acte);
  void Rendre(std::unique_ptr<Requete> requete) noexcept;

 private:
  Connexion& connexion_;
  const char* sql_;
  std::vector<std::unique_ptr<Requete>> libres_;  // with room for all that were made
  std::size_t faites_ = 0;
};

class SqliteStorage::Moteur {
 public:
  // `veille` was made before `connexion`.
  Moteur(std::unique_ptr<Connexion> connexion, Veille veille, const data::Poste& poste,
         const SqliteOptions& options);
  ~Moteur();

  bool Lire(const Acte& acte, std::string& texte);
  void Parcourir(const Acte& acte, const data::KeyRange& cles, const Visiteur& visiteur);
  // As Storage::Compter and Storage::ScanChemins.
  std::optional<std::size_t> Compter(const Acte& acte, const data::Chemin& chemin,
                                     std::size_t plafond);
  bool ParcourirChemins(const Acte& acte, const std::vector<data::Chemin>& chemins,
                        const Visiteur& visiteur);
  std::vector<data::FichierCompte> Compter();
  std::vector<data::AncienTexte> Anciens(const Acte& acte);

  void Histoire(const VisiteurTexte& visiteur);
  void CompterAnciens(std::string_view avant, const VisiteurAnciens& visiteur);

  void Poser(const Acte& acte, std::string_view texte);
  bool Oter(const Acte& acte);
  void OterAnciens(const Acte& acte, std::string_view avant);
  // Among the former texts, as it is.
  void Ranger(const Acte& acte, const data::AncienTexte& ancien);
  void OterTout(const Acte& acte);
  bool Compacter();

  // Runs `ecriture` in the block under way, or in a transaction of its own.
  void Ecrire(const Acte& acte, const std::function<void()>& ecriture);
  void EnUnBloc(const std::function<void()>& travail);

  // Makes the indexes of a file that has none of this program's; leaves it without when it cannot.
  void PreparerIndex(const std::function<void(long)>& avance);
  void RefaireIndex(const std::function<void(long)>& avance);
  bool VerifierIndex(const std::function<void(const Dommage&)>& signaler,
                     const std::function<void(long)>& avance);

  Connexion& Lien() { return *connexion_; }
  const Veille& Garde() const { return veille_; }
  // The file has changed under a reader that takes no locks, and nothing is being read.
  bool Perime() const { return parcours_ == 0 && connexion_->Perimee(); }
  // Throws std::logic_error when a block or a scan is under way.
  void ExigerRepos() const;

 private:
  void Archiver(const Acte& acte, std::string_view texte, bool supprime);
  void ExigerBlocSain(const Acte& acte);

  std::unique_ptr<Connexion> connexion_;
  Veille veille_;
  const data::Poste& poste_;
  Requete lire_;
  Requete poser_;
  Requete oter_;
  Requete archiver_;
  Requete dernierNumero_;
  IndexSqlite index_;
  ReserveRequetes scans_;
  ReserveRequetes scansSansFin_;
  bool enBloc_ = false;
  std::exception_ptr rupture_;  // the first write of the block that failed
  int parcours_ = 0;            // scans under way
};

}  // namespace storage
