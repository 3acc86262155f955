#pragma once
// Saving a contract: several files written in a fixed order, each write final. The order keeps the
// data usable when a later write fails, and no check runs after the first write of a new contract.
// A StoreError rises from the write that failed; nothing later in the order has been written, the
// fields are as they were, and saving again ends in the same records.
//
// The counter of the carer is written after the contract. An interruption between the two leaves a
// contract whose number the counter gives out again; such a number is passed over with a notice,
// never written over. A new contract that is given up after a part of it was stored is cancelled.

#include <optional>
#include <string>

#include "data/citem.h"

namespace dialogs {
class Frm_Reprise;
}

namespace editor {

class Frm_ElementsContrat;

class Enregistrement {
 public:
  explicit Enregistrement(Frm_ElementsContrat& editeur) : editeur_(editeur) {}

  // Forgets what an earlier editing has written.
  void Commencer();
  // The new contract is given up. What an interrupted save has stored of it is cancelled: its
  // record bears the mark, its number counts as given, and the previous contract is as it was.
  void Abandonner();

  // Brings the tabs into ItemContrat and stores it with its side records. False when a check
  // refused or the stored record is not sound: the refusal has been shown.
  bool Ecrire_Donnees();
  // The writes of an existing contract alone, for leaving with a save: declaration event, contract,
  // follow-up marks, then the reading back.
  bool Ecrire_Existant();

  // After a successful write: the missions that end with the contract, and the indexes.
  void Maj_Missions();
  void Maj_IndexCreation();
  void Maj_IndexAvenants();

  // The number under which this creation has already been written, "" before that.
  const std::string& NumeroContrat() const { return numeroEcrit_; }

 private:
  bool Ecrire_Nouveau();
  // The number of the new contract, counted in the carer's item; "" when none can be given: the
  // user has been told.
  std::string Choisir_Numero();
  bool NumeroLibre(const std::string& numero) const;

  std::optional<data::CItem> Chercher_ContratPrecedent() const;
  // Shows the previous contract, if any, and takes over its dates as far as the user accepts. The
  // key of the contract whose leave is taken over, "" for none.
  std::string Proposer_Reprise();
  void Remplir_Reprise(dialogs::Frm_Reprise& reprise, const data::CItem& precedent) const;
  void Reporter_Conges(const std::string& clePrecedent, const std::string& cle);
  void Defaire_Reprise();

  void Ecrire_Contrat(const std::string& cle);
  void Marquer_Suivi();
  void Ecrire_Tte();
  bool Relire(const std::string& cle);

  void Maj_EvenementDSN(const std::string& cle);
  bool Maj_FinDSN(const std::string& cle, bool annule);
  void Maj_LienDSN(const std::string& cle, bool annule, bool finChangee);
  void CreationLien(std::string_view fichier, const std::string& nomIndex);

  Frm_ElementsContrat& editeur_;
  // A previous contract that an attempt of this creation has linked, and how it stood before.
  struct Reprise {
    std::string cle;
    std::string contrat;
    std::optional<std::string> evenement;
  };
  std::optional<Reprise> reprise_;
  std::string numeroEcrit_;
  // What the last attempt of this creation tried to store, and under which number: a record that
  // holds just this is ours although its write was reported as failed.
  std::string numeroTente_;
  std::string texteTente_;
};

}  // namespace editor
