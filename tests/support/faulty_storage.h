#pragma once
// A store that fails when told to: everything goes through to another store but the n-th write, or
// the n-th call, from now on, which is a StoreError EntreeSortie with file and key and changes
// nothing. For tests of what a half-done sequence leaves behind.
//
//   support::FaultyStorage store(memoire);
//   store.EchouerEcriture(3);   the third Put or Erase from now fails, the others pass

#include "data/store_error.h"
#include "support/relais_storage.h"

namespace support {

class FaultyStorage : public RelaisStorage {
 public:
  using RelaisStorage::RelaisStorage;

  // Counted from 1 from now on; 0 takes the fault back. Both counts start anew.
  void EchouerEcriture(int n) { Armer(n, 0); }
  void EchouerAppel(int n) { Armer(0, n); }

  // Writes since the last Echouer..., the failed one included.
  int Ecritures() const { return ecritures_; }

  void Put(std::string_view fichier, std::string_view cle, std::string_view texte) override {
    Ecriture(fichier, cle);
    RelaisStorage::Put(fichier, cle, texte);
  }
  bool Erase(std::string_view fichier, std::string_view cle) override {
    Ecriture(fichier, cle);
    return RelaisStorage::Erase(fichier, cle);
  }

 private:
  void Armer(int ecriture, int appel) {
    ecritureFatale_ = ecriture;
    appelFatal_ = appel;
    ecritures_ = appels_ = 0;
  }
  void Ecriture(std::string_view fichier, std::string_view cle) {
    ++ecritures_;
    Compte(fichier, cle, ecritures_ == ecritureFatale_);
  }
  void Appel(std::string_view fichier, std::string_view cle) override {
    Compte(fichier, cle, false);
  }
  void Compte(std::string_view fichier, std::string_view cle, bool fatal) {
    if (++appels_ != appelFatal_ && !fatal) return;
    throw data::StoreError(data::NumeroErreur::EntreeSortie,
                           "Panne voulue à l'article « " + std::string(cle) + " » du fichier " +
                               std::string(fichier) + ".",
                           std::string(fichier), std::string(cle));
  }

  int ecritureFatale_ = 0;
  int appelFatal_ = 0;
  int ecritures_ = 0;
  int appels_ = 0;
};

}  // namespace support
