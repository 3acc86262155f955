#pragma once
// A store that notes what is asked of the one below, so that a benchmark can do the same work raw.

#include <string>
#include <vector>

#include "support/relais_storage.h"

namespace bench {

struct Lecture {
  std::string fichier;
  std::string debut;
  std::string fin;  // of a scan, past its last key; "" for one record
};

struct Ecriture {
  std::string fichier;
  std::string cle;
  std::string texte;
};

class Journal : public support::RelaisStorage {
 public:
  using RelaisStorage::RelaisStorage;

  bool noter = false;
  std::vector<Lecture> lectures;
  std::vector<Ecriture> ecritures;

  bool Get(std::string_view fichier, std::string_view cle, std::string& texte) override {
    if (noter) lectures.push_back({std::string(fichier), std::string(cle), ""});
    return RelaisStorage::Get(fichier, cle, texte);
  }
  void Put(std::string_view fichier, std::string_view cle, std::string_view texte) override {
    if (noter) ecritures.push_back({std::string(fichier), std::string(cle), std::string(texte)});
    RelaisStorage::Put(fichier, cle, texte);
  }
  // Roads by an index are not noted: no act that is measured here takes one.
  void Scan(std::string_view fichier, const data::KeyRange& cles,
            const Visiteur& visiteur) override {
    if (noter) {
      lectures.push_back({std::string(fichier), cles.debut, cles.sansFin ? "\x7f" : cles.fin});
    }
    RelaisStorage::Scan(fichier, cles, visiteur);
  }
};

}  // namespace bench
