#pragma once
// A store that fails when told to: everything goes through to another store but the n-th write, or
// the n-th call, from now on, which is a StoreError EntreeSortie with file and key and changes
// nothing. For tests of what a half-done sequence leaves behind.
//
//   support::FaultyStorage store(memoire);
//   store.EchouerEcriture(3);   the third Put or Erase from now fails, the others pass

#include "data/storage.h"
#include "data/store_error.h"

namespace support {

class FaultyStorage : public data::Storage {
 public:
  // `dessous` must outlive this store.
  explicit FaultyStorage(data::Storage& dessous) : dessous_(dessous) {}

  // Counted from 1 from now on; 0 takes the fault back. Both counts start anew.
  void EchouerEcriture(int n) { Armer(n, 0); }
  void EchouerAppel(int n) { Armer(0, n); }

  // Writes since the last Echouer..., the failed one included.
  int Ecritures() const { return ecritures_; }

  bool Get(std::string_view fichier, std::string_view cle, std::string& texte) override {
    Appel(fichier, cle);
    return dessous_.Get(fichier, cle, texte);
  }
  void Put(std::string_view fichier, std::string_view cle, std::string_view texte) override {
    Ecriture(fichier, cle);
    dessous_.Put(fichier, cle, texte);
  }
  bool Erase(std::string_view fichier, std::string_view cle) override {
    Ecriture(fichier, cle);
    return dessous_.Erase(fichier, cle);
  }
  void Scan(std::string_view fichier, const data::KeyRange& cles,
            const Visiteur& visiteur) override {
    Appel(fichier, cles.debut);
    dessous_.Scan(fichier, cles, visiteur);
  }
  std::optional<std::size_t> Compter(std::string_view fichier, const data::Chemin& chemin,
                                     std::size_t plafond) override {
    Appel(fichier, {});
    return dessous_.Compter(fichier, chemin, plafond);
  }
  bool ScanChemins(std::string_view fichier, const std::vector<data::Chemin>& chemins,
                   const Visiteur& visiteur) override {
    Appel(fichier, {});
    return dessous_.ScanChemins(fichier, chemins, visiteur);
  }
  std::vector<data::FichierCompte> Fichiers() override {
    Appel({}, {});
    return dessous_.Fichiers();
  }
  std::vector<data::AncienTexte> Historique(std::string_view fichier,
                                            std::string_view cle) override {
    Appel(fichier, cle);
    return dessous_.Historique(fichier, cle);
  }
  void EnUnBloc(const std::function<void()>& travail) override {
    Appel({}, {});
    dessous_.EnUnBloc(travail);
  }

 private:
  void Armer(int ecriture, int appel) {
    ecritureFatale_ = ecriture;
    appelFatal_ = appel;
    ecritures_ = appels_ = 0;
  }
  void Ecriture(std::string_view fichier, std::string_view cle) {
    ++ecritures_;
    Appel(fichier, cle, ecritures_ == ecritureFatale_);
  }
  void Appel(std::string_view fichier, std::string_view cle, bool fatal = false) {
    if (++appels_ != appelFatal_ && !fatal) return;
    throw data::StoreError(data::NumeroErreur::EntreeSortie,
                           "Panne voulue à l'article « " + std::string(cle) + " » du fichier " +
                               std::string(fichier) + ".",
                           std::string(fichier), std::string(cle));
  }

  data::Storage& dessous_;
  int ecritureFatale_ = 0;
  int appelFatal_ = 0;
  int ecritures_ = 0;
  int appels_ = 0;
};

}  // namespace support
