#pragma once
// The indexes of the store in memory: what data/index.h says of each record, and nothing else.

#include <array>
#include <cstddef>
#include <iterator>
#include <limits>
#include <optional>
#include <set>
#include <string>
#include <string_view>
#include <utility>
#include <vector>

#include "data/index.h"
#include "data/storage.h"

namespace storage {

class IndexMemoire {
 public:
  // Called for each change of a record, with its texts before and after; none stands for no record.
  void Suivre(std::string_view fichier, std::string_view cle,
              const std::optional<std::string_view>& avant,
              const std::optional<std::string_view>& apres);
  // The keys at the first `plafond` places of a road by an index, once for each of their values.
  std::vector<std::string> Cles(
      const data::Chemin& chemin,
      std::size_t plafond = std::numeric_limits<std::size_t>::max()) const;

 private:
  using Places = std::set<std::pair<std::string, std::string>>;  // value and key
  std::array<Places, std::size(data::IndexTenus)> places_;
};

}  // namespace storage
