#pragma once
// A store on a server that counts what an act of the user takes of trips over the line, and how
// much it writes: from the beginning of its road, or from his answer to a question on the way, to
// the next question or the end.

#include <vector>

#include "storage/postgres.h"
#include "support/relais_storage.h"

namespace support {

class CompteStorage : public RelaisStorage {
 public:
  struct Acte {
    int ecritures = 0;
    long voyages = 0;
  };

  explicit CompteStorage(storage::PostgresStorage& serveur)
      : RelaisStorage(serveur), serveur_(serveur) {}

  int ecritures = 0;
  std::vector<Acte> actes;  // those that wrote

  void Put(std::string_view fichier, std::string_view cle, std::string_view texte) override {
    ++ecritures;
    RelaisStorage::Put(fichier, cle, texte);
  }
  bool Erase(std::string_view fichier, std::string_view cle) override {
    ++ecritures;
    return RelaisStorage::Erase(fichier, cle);
  }
  void DebuterRoute() override {
    if (profondeur_++ == 0) debut_ = {ecritures, serveur_.Voyages()};
    RelaisStorage::DebuterRoute();
  }
  void FinirRoute() noexcept override {
    RelaisStorage::FinirRoute();
    if (--profondeur_ == 0) Clore();
  }
  void OublierRoute() noexcept override {
    RelaisStorage::OublierRoute();
    Clore();
  }

 private:
  void Clore() {
    const Acte acte{ecritures - debut_.ecritures, serveur_.Voyages() - debut_.voyages};
    if (acte.ecritures > 0) actes.push_back(acte);
    debut_ = {ecritures, serveur_.Voyages()};
  }

  storage::PostgresStorage& serveur_;
  int profondeur_ = 0;
  Acte debut_;
};

}  // namespace support
