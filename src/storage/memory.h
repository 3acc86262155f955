#pragma once
// A store in memory, gone with the object: for tests, scenarios and trial runs. It keeps the whole
// contract of data/storage.h, history and blocks included.

#include <map>
#include <optional>

#include "data/poste.h"
#include "data/storage.h"
#include "storage/index_memoire.h"

namespace storage {

class MemoryStorage : public data::Storage {
 public:
  // `poste` gives the time and user of the history's marks and must outlive the store.
  explicit MemoryStorage(const data::Poste& poste) : poste_(poste) {}

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
  // A nested block, or a write from a scan's visitor, is a programmer's error (std::logic_error).
  void EnUnBloc(const std::function<void()>& travail) override;

 private:
  using Articles = std::map<std::string, std::string, std::less<>>;
  using Anciens = std::map<std::string, std::vector<data::AncienTexte>, std::less<>>;
  // What a block must put back: the text before one write, none when there was no record.
  struct Retour {
    std::string fichier;
    std::string cle;
    std::optional<std::string> avant;
  };

  void Remplacer(std::string_view fichier, std::string_view cle,
                 std::optional<std::string_view> texte);
  void Annuler(const Retour& retour);

  const data::Poste& poste_;
  // A file without records is absent from `fichiers_`.
  std::map<std::string, Articles, std::less<>> fichiers_;
  std::map<std::string, Anciens, std::less<>> anciens_;
  IndexMemoire index_;
  std::vector<Retour> retours_;  // of the block under way, oldest first
  bool enBloc_ = false;
  int parcours_ = 0;  // scans under way
};

}  // namespace storage
