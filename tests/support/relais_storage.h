#pragma once
// A store that hands everything on to another one, which must outlive it. What a test is about is
// done before each call, or in an override.

#include "data/storage.h"

namespace support {

class RelaisStorage : public data::Storage {
 public:
  explicit RelaisStorage(data::Storage& dessous) : dessous_(dessous) {}

  bool Get(std::string_view fichier, std::string_view cle, std::string& texte) override {
    Appel(fichier, cle);
    return dessous_.Get(fichier, cle, texte);
  }
  void Put(std::string_view fichier, std::string_view cle, std::string_view texte) override {
    dessous_.Put(fichier, cle, texte);
  }
  bool Erase(std::string_view fichier, std::string_view cle) override {
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
  bool ALaLigne() const override { return dessous_.ALaLigne(); }
  void DebuterRoute() override { dessous_.DebuterRoute(); }
  void FinirRoute() noexcept override { dessous_.FinirRoute(); }
  void OublierRoute() noexcept override { dessous_.OublierRoute(); }
  void Annoncer(const std::vector<data::Annonce>& annonces) override {
    if (ALaLigne()) Appel({}, {});
    dessous_.Annoncer(annonces);
  }
  void AnnoncerBloc() override { dessous_.AnnoncerBloc(); }
  void AnnoncerSuite(const std::vector<data::Annonce>& annonces) override {
    dessous_.AnnoncerSuite(annonces);
  }

 protected:
  // Before everything but a write.
  virtual void Appel(std::string_view /*fichier*/, std::string_view /*cle*/) {}

 private:
  data::Storage& dessous_;
};

}  // namespace support
