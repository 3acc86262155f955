#pragma once
// The names that queries may use for what is not simply one attribute: a slice of the key, a full
// name in capitals, something read in another file. One table, in dictionary.cpp, holds them all;
// a name belongs to one file and is unknown in every other.

#include <string>
#include <string_view>
#include <unordered_map>

#include "data/storage.h"

namespace data {

struct Definition {
  enum class Source : unsigned char {
    Attribut,    // attribute `a`
    Capitales,   // attributes `a` and `b` parted by a blank, in capitals
    Tranche,     // `longueur` characters of the key from `position`; 0: to its end
    SiExiste,    // the key when `autre` holds an item under it, else empty
    ParTranche,  // attribute `a` of the item of `autre` whose key is that slice, else empty
  };

  std::string_view fichier;
  std::string_view nom;
  Source source;
  int a = 0;
  int b = 0;
  int position = 0;
  int longueur = 0;
  std::string_view autre = {};
};

// Null when `fichier` has no such name.
const Definition* findDefinition(std::string_view fichier, std::string_view nom);

// What comparisons see of a field's content: names of persons as people search them, anything else
// as it is. `buffer` may hold it. Indexes keep the same.
std::string_view compared(const Definition& definition, std::string_view content,
                          std::string& buffer);

// Computes named fields for the records of one select. What it reads in other files is kept until
// its end, so that 10,000 interventions on 20 activities read 20 records.
class DictionaryReader {
 public:
  explicit DictionaryReader(Storage& storage) : storage_(&storage) {}
  // For fields that are made of their record alone; one that is not reads empty.
  DictionaryReader() = default;

  // The field's content for the record under `cle`; `a` and `b` are the contents of the attributes
  // that the definition names, when they are its record's own. The view lives until the next call.
  std::string_view read(const Definition& definition, std::string_view cle, std::string_view a,
                        std::string_view b);

 private:
  const std::string* record(std::string_view fichier, std::string_view cle);

  struct Kept {
    bool found = false;
    std::string text;
  };

  Storage* storage_ = nullptr;
  std::string buffer_;
  std::unordered_map<std::string, Kept> kept_;
};

}  // namespace data
