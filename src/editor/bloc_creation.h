#pragma once
// The one block of the store in which a new contract comes into being: number, test of the other
// contracts, link to the contract before, declaration event, contract, carer's counter. Everything
// that it decides by is read again inside it, so that another station cannot come between.
//
// What an earlier attempt of the same creation has stored is taken back first, in the same block:
// the user may have changed dates, type or employer since. Only the number stays.

#include <string>
#include <vector>

#include "rules/chevauchement.h"
#include "session/dossier.h"

namespace editor {

class BlocCreation {
 public:
  // What the user takes over of the contract before: its key when its leave, and the internal days
  // that are not empty.
  struct Reprise {
    std::string cle = {};
    std::string departGrille = {};
    std::string anciennete = {};
  };

  BlocCreation(session::Dossier& dossier, rules::Portee portee, const rules::Dates& dates)
      : dossier_(dossier), portee_(std::move(portee)), dates_(dates) {}

  // Stores the contract under the dossier's key. False when nothing was stored, for the reason that
  // Refus or Voisins tell.
  bool Stocker(const Reprise& reprise);
  // The contract is given up: it bears the mark of a cancelled one, all else is as it was.
  void Annuler();

  // Another contract stands in the way.
  const rules::Voisinage& Voisins() const { return voisins_; }
  // Why no number could be given; "" otherwise.
  const std::string& Refus() const { return refus_; }
  // Numbers that were passed over because a contract bears them, in a sentence; "" for none.
  std::string Avis() const;

 private:
  // Ends the block without a write.
  struct Rien {};

  void Reprendre();
  bool ChoisirNumero(data::CItem& aidant);
  bool Libre(const std::string& numero, bool rendu) const;
  void Lier(data::CItem& contrat, const std::string& clePrecedent, const std::string& cle);
  void Noter(const std::string& cleEvenement);

  session::Dossier& dossier_;
  rules::Portee portee_;
  rules::Dates dates_;
  rules::Voisinage voisins_;
  std::string refus_;
  std::string numero_;
  std::vector<std::string> pris_;
};

}  // namespace editor
