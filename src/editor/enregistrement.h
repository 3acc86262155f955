#pragma once
// Saving a contract: several files in a fixed order. What makes a new contract is one block of the
// store (bloc_creation.h). What follows are writes of their own, each final; the order keeps the
// data usable when one of them fails.
//
// A StoreError rises from the write that failed; nothing later in the order has been written, the
// fields are as they were, and saving again ends in the same records: each attempt first takes back
// what the one before has done beside the contract itself. A new contract that is given up after a
// part of it was stored is cancelled.

#include <optional>
#include <string>

#include "data/citem.h"
#include "editor/bloc_creation.h"
#include "editor/gardes.h"

namespace editor {

class Enregistrement {
 public:
  Enregistrement(Frm_ElementsContrat& editeur, Gardes& gardes)
      : editeur_(editeur), gardes_(gardes) {}

  // The guards before the first write, then the contract with its side records.
  Avis Ecrire_Donnees();
  // The writes of a contract on file: declaration event, contract, marks. When somebody else has
  // written it since the guards, the user is asked again before anything is written.
  Avis Ecrire_Existant();
  // Reads the stored contract back. False when it is not sound: the user has been told.
  bool Relire();
  // After a successful write: the missions that end with the contract, and the indexes.
  void Maj_Missions();
  // `sansLiens`: a new contract stays out of the indexes of its entity and agreement.
  void Maj_Index(bool sansLiens = false);
  // The new contract is given up: what an attempt has stored of it is cancelled, and its number
  // counts as given. A store that refuses that too does not hold the user: he is told what stands.
  void Abandonner();

 private:
  Avis Ecrire_Nouveau();
  BlocCreation::Reprise Proposer_Reprise();
  std::optional<data::CItem> Chercher_ContratPrecedent() const;

  void Marquer_Suivi();
  bool RemplacerEnBloc(data::CItem& surFichier);
  void Ecrire_Tte();
  bool FinirMissions(data::CItem& missions, long fin) const;
  void Maj_PremiereEmbauche();
  void Maj_IndexCreation(bool sansLiens);
  void Maj_IndexAvenants();
  void CreationLien(std::string_view fichier, const std::string& nomIndex);

  Frm_ElementsContrat& editeur_;
  Gardes& gardes_;
};

}  // namespace editor
