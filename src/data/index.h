#pragma once
// Indexes: for each thing of data/layouts/recherches.h, which keys hold which values. Every store
// takes the values of a record from here, and every question looks for the same ones, so that what
// is kept and what is sought cannot differ.
//
// An index holds each value and subvalue that is not empty. A number that is not written in its
// shortest form stands twice, once as it is and once in that form: "12.0" and "12" are equal, and
// "12.]" must find the first.
//
//   CIVILAIDANT 00001, attribute 2 "Martin", 3 "Rose"     NomPrenomAidant: "MARTIN ROSE"
//   TPSMOI 1, attribute 4 "00001001" and "+7"             4: "00001001", "+7", "7"

#include <optional>
#include <set>
#include <string>
#include <string_view>
#include <vector>

#include "data/layouts/recherches.h"
#include "data/query.h"

namespace data {

// Its place in IndexTenus.
int rangIndex(const Index& index);
// "116" or "NomPrenomAidant", as a question names it.
std::string champIndex(const Index& index);
// Null when nothing is looked up by that field.
const Index* indexDe(std::string_view fichier, const Field& champ);
bool aDesIndex(std::string_view fichier);
// The files that have indexes, each once, by name.
std::set<std::string_view> fichiersIndexes();

// The shortest text of that number; `texte` itself for what does not compare as a number.
std::string formeCherchee(std::string_view texte);

struct EntreeIndex {
  const Index* index = nullptr;
  std::string valeur;

  bool operator==(const EntreeIndex& autre) const = default;
  bool operator<(const EntreeIndex& autre) const {
    return index != autre.index ? index < autre.index : valeur < autre.valeur;
  }
};

// What the indexes hold of one record: in order, each once.
std::vector<EntreeIndex> entreesDe(std::string_view fichier, std::string_view cle,
                                   std::string_view texte);

// What a write changes in the indexes. No text stands for no record.
struct ChangementIndex {
  std::vector<EntreeIndex> retraits;
  std::vector<EntreeIndex> ajouts;
};
ChangementIndex changementIndex(std::string_view fichier, std::string_view cle,
                                const std::optional<std::string_view>& avant,
                                const std::optional<std::string_view>& apres);

}  // namespace data
