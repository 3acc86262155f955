#pragma once
// What stands between the user's OK, or his leaving with a save, and the first write: a chain of
// guards in a fixed order, each of which lets pass, keeps the user on the screen after a message,
// or, after a question, gives a new contract up. A further guard is one line in its chain.

#include <span>

#include "editor/planning_contrat.h"
#include "rules/chevauchement.h"

namespace editor {

class Frm_ElementsContrat;

enum class Avis { Passe, Reste, Abandonne };

class Gardes {
 public:
  explicit Gardes(Frm_ElementsContrat& editeur) : editeur_(editeur) {}

  // Cmd_OK, before anything is copied: the tabs' checks, then the other contracts.
  Avis AvantConfirmation() { return Passer(Confirmation); }
  // Before the first write of a confirmed contract.
  Avis AvantEcriture() { return Passer(Ecriture); }
  // Cmd_Retour with a save: the same where something could have changed; the tabs check again.
  Avis EnQuittant() { return Passer(Depart); }

  // Two contracts overlap: the message, and for a new contract the question what to do. Another
  // contract without an end leaves no date to choose: the creation is given up at once.
  Avis Chevauchement(const rules::Voisinage& voisins);
  // The contract on file is that one. Where somebody else has written it since it was opened here,
  // the user decides whose stands; ours replaces that one and no later one.
  Avis Remplacement(const data::CItem& surFichier);

 private:
  using Garde = Avis (Gardes::*)();
  static const Garde Confirmation[5];
  static const Garde Ecriture[6];
  static const Garde Depart[6];
  Avis Passer(std::span<const Garde> chaine);

  // True, after a message, when somebody else has deleted the contract meanwhile.
  bool SupprimeAilleurs(const data::CItem& surFichier);
  Avis Onglets();
  // What a confirmed new contract begins with.
  Avis Preparation();
  // Legal hours that are refused give up what was typed, a new contract or a change; on leaving
  // they keep the user on the screen.
  Avis Heures();
  Avis HeuresEnQuittant();
  Avis AutresContrats();
  // Payroll has computed nothing after the end.
  Avis Modification();
  Avis DateFinModifiee();
  // The planning that a new contract does not frame; what a changed one does to it.
  Avis CoherencePlanning();
  Avis ImpactPlanning();
  Avis DateFin();
  // What only the writing of a tab refuses.
  Avis Ecrivables();
  Avis CopieSimple() { return Copie(false); }
  Avis CopieVerifiee() { return Copie(true); }
  Avis Copie(bool verifiee);
  Avis ArticleChange();

  Frm_ElementsContrat& editeur_;
  PlanningContrat planning_{editeur_};
};

}  // namespace editor
