#pragma once
// What is due over all carers: fixed terms that end, trials that end, hiring declarations that were
// not printed, modulated contracts that nobody follows up. Each kind is looked for around today, by
// days of its own (Fenetres): what lies behind is late.
//
// A store with indexes is asked for the few contracts of these days; without, every contract is
// read. Either way the rule on the record decides.

#include <string>
#include <string_view>
#include <vector>

#include "data/db.h"
#include "data/echeances.h"

namespace rules {

struct Echeance {
  data::GenreEcheance genre = data::GenreEcheance::Fin;
  long jour = 0;
  std::string contrat;    // its key
  std::string libelle;    // French: what there is to do
  std::string aidant;     // name
  std::string employeur;  // private employer, or establishment
};

struct Fenetre {
  data::GenreEcheance genre;
  int avant;  // days before today, as long as something late is still worth telling
  int apres;  // days from today, at most; otherwise as many as are asked for
};

// The longest look ahead.
inline constexpr int JoursEcheancesMax = 3660;
inline constexpr int JoursEcheances = 30;

// What of that contract is due from today, `jours` ahead. Nothing of carer and employer is filled.
std::vector<Echeance> echeancesDe(std::string_view cle, std::string_view contrat, long aujourdhui,
                                  int jours);

// All of them by day, kind and key, with the names.
std::vector<Echeance> lireEcheances(data::Db& db, long aujourdhui, int jours);

}  // namespace rules
