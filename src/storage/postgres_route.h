#pragma once
// What came back over the line within one road: records, ranges of keys and roads by an index, to
// answer the same reads again. Outside a road it holds nothing and takes nothing in.

#include <map>
#include <memory>
#include <optional>
#include <string>
#include <string_view>
#include <utility>
#include <vector>

#include "data/storage.h"

namespace storage {

// Records in ascending order of their keys.
using Rangs = std::vector<std::pair<std::string, std::string>>;

class MemoireDeRoute {
 public:
  bool Ouverte() const { return profondeur_ > 0; }
  void Debuter() { ++profondeur_; }
  void Finir() noexcept;
  void Vider() noexcept;

  // A record that was read, or that there is none.
  void Retenir(std::string_view fichier, std::string_view cle,
               const std::optional<std::string>& texte);
  // All records of a range, and those to which a road by an index leads.
  void Retenir(std::string_view fichier, const data::KeyRange& cles,
               std::shared_ptr<const Rangs> rangs);
  void Retenir(const data::Chemin& chemin, std::shared_ptr<const Rangs> rangs);
  // What this station has just written: nothing is known any more of that record, nor of what it
  // may stand in.
  void Oublier(std::string_view fichier, std::string_view cle);

  // Null when nothing is known; else whether there is such a record, and its text.
  const std::optional<std::string>* Article(std::string_view fichier, std::string_view cle);
  // Of a range that lies within one that was read; null when none does.
  std::shared_ptr<const Rangs> Plage(std::string_view fichier, const data::KeyRange& cles) const;
  std::shared_ptr<const Rangs> Chemin(const data::Chemin& chemin) const;

 private:
  struct PlageLue {
    std::string fichier;
    data::KeyRange cles;
    std::shared_ptr<const Rangs> rangs;
  };
  struct CheminLu {
    data::Chemin chemin;
    std::shared_ptr<const Rangs> rangs;
  };

  int profondeur_ = 0;
  std::map<std::pair<std::string, std::string>, std::optional<std::string>, std::less<>> articles_;
  std::vector<PlageLue> plages_;
  std::vector<CheminLu> chemins_;
};

}  // namespace storage
