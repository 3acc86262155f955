#pragma once
// A store that notes what is asked of the one below, so that a benchmark can do the same work raw.

#include <string>
#include <vector>

#include "data/storage.h"

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

class Journal : public data::Storage {
 public:
  explicit Journal(data::Storage& dessous) : dessous_(dessous) {}

  bool noter = false;
  std::vector<Lecture> lectures;
  std::vector<Ecriture> ecritures;

  bool Get(std::string_view fichier, std::string_view cle, std::string& texte) override {
    if (noter) lectures.push_back({std::string(fichier), std::string(cle), ""});
    return dessous_.Get(fichier, cle, texte);
  }
  void Put(std::string_view fichier, std::string_view cle, std::string_view texte) override {
    if (noter) ecritures.push_back({std::string(fichier), std::string(cle), std::string(texte)});
    dessous_.Put(fichier, cle, texte);
  }
  bool Erase(std::string_view fichier, std::string_view cle) override {
    return dessous_.Erase(fichier, cle);
  }
  void Scan(std::string_view fichier, const data::KeyRange& cles,
            const Visiteur& visiteur) override {
    if (noter) {
      lectures.push_back({std::string(fichier), cles.debut, cles.sansFin ? "\x7f" : cles.fin});
    }
    dessous_.Scan(fichier, cles, visiteur);
  }
  // Roads are followed as they are: no act that is measured here takes one.
  std::optional<std::size_t> Compter(std::string_view fichier, const data::Chemin& chemin,
                                     std::size_t plafond) override {
    return dessous_.Compter(fichier, chemin, plafond);
  }
  bool ScanChemins(std::string_view fichier, const std::vector<data::Chemin>& chemins,
                   const Visiteur& visiteur) override {
    return dessous_.ScanChemins(fichier, chemins, visiteur);
  }
  std::vector<data::FichierCompte> Fichiers() override { return dessous_.Fichiers(); }
  std::vector<data::AncienTexte> Historique(std::string_view fichier,
                                            std::string_view cle) override {
    return dessous_.Historique(fichier, cle);
  }
  void EnUnBloc(const std::function<void()>& travail) override { dessous_.EnUnBloc(travail); }

 private:
  data::Storage& dessous_;
};

}  // namespace bench
