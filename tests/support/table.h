#pragma once
// Expected values as those who know the trade read and correct them: tables of a Markdown page.
//
//   for (const auto& [motif, preavis] : support::table<2>("rules/preavis.md", "Les motifs"))
//
// One row a case, each cell without the blanks around it; the title is a heading of level 2.

#include <gtest/gtest.h>

#include <algorithm>
#include <array>
#include <fstream>
#include <map>
#include <string>
#include <vector>

#include "data/citem.h"

namespace support {

template <std::size_t N>
std::vector<std::array<std::string, N>> table(const std::string& page, const std::string& titre) {
  std::ifstream lignes(CONTRATS_SOURCE_DIR "/tests/" + page);
  std::string ligne;
  while (std::getline(lignes, ligne) && ligne != "## " + titre) {
  }
  std::vector<std::array<std::string, N>> rangees;
  int vues = 0;
  while (std::getline(lignes, ligne) && !ligne.starts_with("## ")) {
    // The first two lines of a table are its head and the rule under it.
    if (!ligne.starts_with("|") || ++vues <= 2) continue;
    std::size_t debut = 1;
    for (std::string& cellule : rangees.emplace_back()) {
      const std::size_t fin = ligne.find('|', debut);
      cellule = ligne.substr(debut, fin - debut);
      cellule.erase(0, std::min(cellule.find_first_not_of(' '), cellule.size()));
      cellule.erase(cellule.find_last_not_of(' ') + 1);
      debut = fin + 1;
    }
    EXPECT_EQ(debut, ligne.size()) << page << ": " << ligne;
  }
  EXPECT_FALSE(rangees.empty()) << page << ": " << titre;
  return rangees;
}

// The text of a cell in back quotes, which keep its blanks; that of another one as it is.
inline std::string code(const std::string& cellule) {
  return cellule.starts_with('`') ? cellule.substr(1, cellule.size() - 2) : cellule;
}

// The attributes of a cell, "14=0^01; 15=": "^" between values.
inline std::map<int, std::string> attributs(std::string cellule) {
  std::replace(cellule.begin(), cellule.end(), '^', data::SepValeur);
  std::map<int, std::string> lus;
  for (std::size_t debut = 0; debut < cellule.size();) {
    const std::size_t fin = std::min(cellule.find("; ", debut), cellule.size());
    const std::size_t egal = cellule.find('=', debut);
    lus[std::stoi(cellule.substr(debut))] = cellule.substr(egal + 1, fin - egal - 1);
    debut = fin + 2;
  }
  return lus;
}

}  // namespace support
