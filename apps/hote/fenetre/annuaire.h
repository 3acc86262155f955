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
  // What tells carers of one name apart.
  long naissance = 0;  // internal day, 0 for unknown
  std::string ville = {};
};

// Every carer of the file. A data::StoreError rises.
std::vector<Aidant> lireAidants(data::Storage& stockage);

class Annuaire : public QAbstractTableModel {
 public:
  enum Colonne { Code, Nom, NombreColonnes };
  // The end of a name's text that tells it from its namesakes, or "".
  enum Role { Distinction = Qt::UserRole };

  // By name, then code; the filter is lifted. Those of one name are shown with their birth date,
  // where that does not part them with their town, else with their code.
  void Remplir(std::vector<Aidant> aidants);
  // Deleted carers are left out while they are hidden.
  void Filtrer(const QString& saisie);
  void MasquerSupprimes(bool masques) { supprimesMasques_ = masques; }
  // The carer of that code is open and marked so, "" for none.
  void Ouvrir(const std::string& code);
  const std::string& Ouvert() const { return ouvert_; }
  bool EstOuvert(int ligne) const { return Ligne(ligne).code == ouvert_; }
  // The carer of that code, filtered away or not; nullptr when there is none.
  const Aidant* Trouver(const std::string& code) const;

  int Total() const { return static_cast<int>(fiches_.size()); }
  // Deleted carers that are left out although what was typed fits them.
  int Masques() const { return masques_; }
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
    std::string distinction = {};
  };
  void DistinguerHomonymes();

  std::vector<Fiche> fiches_;
  std::vector<std::size_t> retenus_;
  std::string ouvert_;
  bool supprimesMasques_ = false;
  int masques_ = 0;
};

}  // namespace hote
