#pragma once
// The carers of a data file, found as one types: read once, then filtered in memory at each key.
//
//   Annuaire annuaire;
//   annuaire.Remplir(lireAidants(stockage));
//   annuaire.Filtrer("helene du");        // DUPONT Hélène, DUVAL Marie-Hélène
//
// A carer is kept when every word typed begins the code (with or without its leading zeros) or one
// of the words of the name. Case, accents, hyphens and apostrophes make no difference.

#include <QAbstractTableModel>
#include <QString>
#include <string>
#include <vector>

namespace data {
class Storage;
}

namespace hote {

struct Aidant {
  std::string code;
  std::string nomPrenom;  // as the contract screen shows it
  bool supprime = false;  // no contract can be added
};

// Every carer of the file. A data::StoreError rises.
std::vector<Aidant> lireAidants(data::Storage& stockage);

class Annuaire : public QAbstractTableModel {
 public:
  enum Colonne { Code, Nom, NombreColonnes };

  // By name, then code; the filter is lifted.
  void Remplir(std::vector<Aidant> aidants);
  void Filtrer(const QString& saisie);

  int Total() const { return static_cast<int>(fiches_.size()); }
  const Aidant& Ligne(int ligne) const;
  // The row of the carer of that code, -1 when the filter hides it or there is none.
  int LigneDe(const std::string& code) const;

  int rowCount(const QModelIndex& parent = {}) const override;
  int columnCount(const QModelIndex& parent = {}) const override;
  QVariant data(const QModelIndex& index, int role) const override;

 private:
  struct Fiche {
    Aidant aidant;
    std::string nom;   // without accents
    std::string mots;  // every word that can be typed, each after a blank
  };

  std::vector<Fiche> fiches_;
  std::vector<std::size_t> retenus_;
};

}  // namespace hote
