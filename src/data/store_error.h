#pragma once
// The one exception of the data floor: the store could not do what was asked. It rises to the host,
// which tells the user; only "not found" is an ordinary outcome that callers test for.

#include <stdexcept>
#include <string>

namespace data {

// Numbers of the store's errors. NonTrouve is fixed by every program that shares the files; the
// others are ours.
enum class NumeroErreur : long {
  NonTrouve = -2147221493,    // 0x8004000B: no record under that key
  NonAttache = -2147221480,   // DBWrite on an item that belongs to no file
  Question = -2147221479,     // a query, a list command or a routine call that cannot be understood
  TexteRefuse = -2147221478,  // a key, file name or text that the store cannot hold
  PasUneBase = -2147221477,   // the file is no data file
  VersionInconnue = -2147221476,  // written by a newer version of this program
  LectureSeule = -2147221475,     // the place cannot be written
  DisquePlein = -2147221474,
  Endommage = -2147221473,     // a page or a record does not read back as it was written
  Occupe = -2147221472,        // another process kept the file locked longer than we wait
  EntreeSortie = -2147221471,  // any other failure of the disk or of the database library
};

class StoreError : public std::runtime_error {
 public:
  // `message` is French and complete: what failed, where, and what the user can do. `fichier` and
  // `cle` are empty when the error concerns no single file or record.
  StoreError(NumeroErreur numero, const std::string& message, std::string fichier = {},
             std::string cle = {})
      : std::runtime_error(message),
        numero_(numero),
        fichier_(std::move(fichier)),
        cle_(std::move(cle)) {}

  NumeroErreur Numero() const { return numero_; }
  bool EstNonTrouve() const { return numero_ == NumeroErreur::NonTrouve; }
  const std::string& Fichier() const { return fichier_; }
  const std::string& Cle() const { return cle_; }

 private:
  NumeroErreur numero_;
  std::string fichier_;
  std::string cle_;
};

}  // namespace data
