#pragma once
// A store in a data file that refuses to write once the file no longer stands under its name: what
// the system would still let it write, nobody would find again. Reading goes on.
//
// The name is looked at before each write and again after it, so that a write which has returned
// stood in the named file. A file that is put back takes writes again.

#include <memory>

#include "data/storage.h"
#include "fenetre/fichier_suivi.h"

namespace hote {

class StockageVeille : public data::Storage {
 public:
  // `fichier`: the file that `dessous` has open.
  StockageVeille(FichierSuivi fichier, std::unique_ptr<data::Storage> dessous);
  ~StockageVeille() override { EcarterJournal(); }

  const FichierSuivi& Fichier() const { return fichier_; }
  // What has become of the file and what its user can do, "" while it is in place.
  std::string Defaut() const;
  // When another file has taken the name: renames the log of the former file, which the new one
  // would take for its own and be damaged by. Its new name, "" when there was nothing to do.
  std::string EcarterJournal() const;

  bool Get(std::string_view fichier, std::string_view cle, std::string& texte) override;
  void Put(std::string_view fichier, std::string_view cle, std::string_view texte) override;
  bool Erase(std::string_view fichier, std::string_view cle) override;
  void Scan(std::string_view fichier, const data::KeyRange& cles,
            const Visiteur& visiteur) override;
  std::optional<std::size_t> Compter(std::string_view fichier, const data::Chemin& chemin,
                                     std::size_t plafond) override {
    return dessous_->Compter(fichier, chemin, plafond);
  }
  bool ScanChemins(std::string_view fichier, const std::vector<data::Chemin>& chemins,
                   const Visiteur& visiteur) override {
    return dessous_->ScanChemins(fichier, chemins, visiteur);
  }
  std::vector<data::FichierCompte> Fichiers() override;
  std::vector<data::AncienTexte> Historique(std::string_view fichier,
                                            std::string_view cle) override;
  // The name is looked at last inside the block: a block that fails there is undone.
  void EnUnBloc(const std::function<void()>& travail) override;

 private:
  // A data::StoreError while the file is not in place.
  void Exiger(std::string_view fichier = {}, std::string_view cle = {}) const;

  FichierSuivi fichier_;
  // The log beside it, which holds the last writes.
  FichierSuivi journal_;
  std::unique_ptr<data::Storage> dessous_;
};

}  // namespace hote
