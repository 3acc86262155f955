#pragma once
// A store that kills its process, as a cut of the current would, next to the n-th write. Every
// write that came back is noted in a file first, so that whoever outlives the process knows what
// was acknowledged. A write inside a block is acknowledged when the block comes back.

#include <unistd.h>

#include <csignal>
#include <fstream>
#include <memory>

#include "support/relais_storage.h"

namespace support {

class KillingStorage : public RelaisStorage {
 public:
  enum class Quand { Avant, Apres };

  // Counted from 1; 0 never kills. `journal` gets one line a write: "FICHIER CLE TEXTE", or for a
  // removal "FICHIER CLE".
  KillingStorage(std::unique_ptr<data::Storage> dessous, int ecriture, Quand quand,
                 const std::string& journal)
      : RelaisStorage(*dessous),
        dessous_(std::move(dessous)),
        fatale_(ecriture),
        quand_(quand),
        journal_(journal) {}

  void Put(std::string_view fichier, std::string_view cle, std::string_view texte) override {
    Debuter();
    RelaisStorage::Put(fichier, cle, texte);
    Finir(std::string(fichier) + ' ' + std::string(cle) + ' ' + std::string(texte));
  }
  bool Erase(std::string_view fichier, std::string_view cle) override {
    Debuter();
    const bool present = RelaisStorage::Erase(fichier, cle);
    Finir(std::string(fichier) + ' ' + std::string(cle));
    return present;
  }
  void EnUnBloc(const std::function<void()>& travail) override {
    enBloc_ = true;
    RelaisStorage::EnUnBloc([&] {
      enAttente_.clear();
      travail();
    });
    enBloc_ = false;
    Acquitter();
  }

 private:
  void Debuter() {
    ++ecritures_;
    if (quand_ == Quand::Avant) Tuer();
  }
  void Finir(const std::string& ligne) {
    enAttente_ += ligne + '\n';
    if (!enBloc_) {
      Acquitter();
    } else if (quand_ == Quand::Apres) {
      Tuer();
    }
  }
  void Acquitter() {
    journal_ << enAttente_ << std::flush;
    enAttente_.clear();
    if (quand_ == Quand::Apres) Tuer();
  }
  void Tuer() const {
    if (ecritures_ == fatale_) kill(getpid(), SIGKILL);
  }

  std::unique_ptr<data::Storage> dessous_;
  int fatale_;
  Quand quand_;
  std::ofstream journal_;
  int ecritures_ = 0;
  bool enBloc_ = false;
  std::string enAttente_;
};

}  // namespace support
