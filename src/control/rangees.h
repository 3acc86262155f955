#pragma once
// The rows of the contract list, each with the key of its contract behind it.

#include <string>

#include "control/placement.h"
#include "data/citem.h"
#include "screen/colonnes.h"
#include "session/session.h"

namespace control {

class Rangees {
 public:
  // `colonnes` shows the rows.
  Rangees(const session::Session& session, screen::Colonnes& colonnes)
      : session_(session), colonnes_(colonnes) {}

  void Vider();
  void Ajouter(const LigneContrat& ligne);
  // A contract just created stands on top, whatever the sort, until the next search. False when it
  // is not on file.
  bool AjouterEnTete(const std::string& cle);
  // The dates of the row that was opened, from the record as it stands now; employer and agreement
  // wait for the next search. A contract that was cancelled meanwhile leaves the list: true.
  bool Actualiser(const std::string& cle);

  // The contract of the selected row, "" for none.
  std::string Choisie() const { return colonnes_.Ligne() < 0 ? "" : cles_(colonnes_.Ligne() + 1); }
  // The contract key of each row: attribute = row + 1.
  const data::CItem& Cles() const { return cles_; }

 private:
  const session::Session& session_;
  screen::Colonnes& colonnes_;
  data::CItem cles_;
};

}  // namespace control
