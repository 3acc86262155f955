#pragma once
// A parameter table as a clerk maintains it: the lines of an item of TABLES, added, renamed and
// removed in memory, then stored at once. What a contract uses is never taken away from it.

#include <string>
#include <vector>

#include "data/citem.h"
#include "data/db.h"

namespace hote {

// Where a table keeps what a clerk sees of it, and how contracts hold it.
struct GenreTable {
  const char* cle;  // item of TABLES
  int codes;        // 0: lines have no code, and contracts hold the label
  int libelles;
  int regroupements;  // codes of budget groups, 0 for a table without
  int attributContrat;
};
// nullptr for a table that no clerk maintains here.
const GenreTable* genreTable(const std::string& cle);

class TableCodes {
 public:
  struct Ligne {
    std::string code, libelle, regroupement;
  };

  TableCodes(data::Db& db, const GenreTable& genre);

  const GenreTable& Genre() const { return genre_; }
  int Nombre() const;
  Ligne A(int rang) const;  // from 0
  // The budget groups to choose from, codes and labels.
  const data::CItem& Regroupements() const { return regroupements_; }
  bool Modifiee() const { return item_.Text() != initial_.Text(); }

  // Each answers why it does nothing, in French, "" when it was done.
  std::string Ajouter(const Ligne& ligne);
  // The label and the group; a code is never changed.
  std::string Changer(int rang, const Ligne& ligne);
  std::string Retirer(int rang);
  std::string Enregistrer();

 private:
  std::string RefusTexte(const Ligne& ligne, int saufRang) const;
  // What contracts hold of a line, and how many of them do.
  std::string Tenu(int rang) const;
  bool Tient(const std::string& tenu) const;
  int Emplois(const std::string& tenu) const;

  data::Db& db_;
  const GenreTable& genre_;
  data::CItem item_;
  data::CItem initial_;
  data::CItem regroupements_;
  // What contracts may have begun to hold since it was taken away here.
  std::vector<std::string> otes_;
};

}  // namespace hote
