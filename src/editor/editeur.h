#pragma once
// The modal editor of one contract: the frame round a row of five tabs. A caller opens a contract
// or begins a new one in one call, shows the form, and asks what became of it:
//
//   editeur.Ouvrir("00001001");        or   editeur.Creer();
//   editeur.ShowModal();                    editeur.ShowModal();
//                                           if (editeur.Cree()) use editeur.Dossier()
//
// The editor stays loaded between contracts: its own ways out only clear and hide it. What it works
// on is its dossier, which stands until the next opening. What is checked on the way out is in
// gardes.h, what is stored in enregistrement.h.
//
// Invariant: the frame's box closes the editor only after a way out was granted.

#include <array>
#include <optional>
#include <string>

#include "editor/enregistrement.h"
#include "editor/gardes.h"
#include "editor/impression.h"
#include "editor/onglet_caracteristiques.h"
#include "editor/onglet_conges.h"
#include "editor/onglet_fin.h"
#include "editor/onglet_origine.h"
#include "editor/onglet_paie.h"
#include "rules/chevauchement.h"
#include "rules/traitements.h"
#include "session/aide.h"

namespace editor {

// The tabs of Ong_Contrat.
enum NumeroOnglet { Origine, Caracteristiques, ElementsPaie, DroitsConges, FinContrat };

class Frm_ElementsContrat : public screen::Form {
  // Before the tabs, which tie their fields to the session while they are made.
  session::Session& session_;
  std::optional<session::Dossier> dossier_;

 public:
  Frm_ElementsContrat(screen::Platform& platform, session::Session& session);

  // Prepares the editor for the contract of that key; an unknown one opens on an empty contract.
  // When a StoreError rises the editor is to be let go of: it may show half of the contract.
  void Ouvrir(const std::string& cle);
  void Creer();
  // The creation went through to the end: its contract stands under the dossier's key.
  bool Cree() const { return cree_; }
  // The contract was stored, by OK or on leaving; it stands under the dossier's key.
  bool Enregistre() const { return enregistre_; }

  session::Session& Session() const { return session_; }
  session::Dossier& Dossier() { return *dossier_; }

  // The contract as it stands on the screen, for the rules.
  rules::Portee Portee() const;
  rules::Dates Dates() const;
  rules::ContratTraite ContratTraite() const;

  // The tabs in their order, on which OK, leaving, saving and clearing work alike.
  const std::array<Onglet*, 5>& Onglets() const { return onglets_; }
  // What can be printed of the contract.
  Impression& Papiers() { return impression_; }
  // The user's OK: checks, writes and closes. False when he was refused or gave a new contract up.
  // `contratImprime`: a new contract that goes on to its letter is not entered in the indexes.
  bool Confirmer(bool contratImprime = false);
  // While an amendment is entered, no other tab can be reached and no way out is open.
  void ReserverSaisie(bool saisie);
  // The contract in hand was deleted: nothing of it is to be shown any more.
  void Supprime();
  // Tells every tab the agreement that stands in its box.
  void AnnoncerConvention();

  screen::Label Etq_Aidant{*this, "Etq_Aidant"};
  screen::Label Etq_CodeAidant{*this, "Etq_CodeAidant"};
  screen::Label Etq_NomPrenomAidant{*this, "Etq_NomPrenomAidant"};
  screen::TabStrip Ong_Contrat{
      *this,
      "Ong_Contrat",
      {"Origine", "Caractéristiques", "Elements de paie", "Droits aux congés", "Fin du contrat"}};

  OngletOrigine origine{*this};
  OngletCaracteristiques caracteristiques{*this};
  OngletPaie paie{*this};
  OngletConges conges{*this};
  OngletFin fin{*this};

  screen::Button Cmd_ImpContrat{*this, "Cmd_ImpContrat", "Imprimer"};
  screen::Button Cmd_DPAE{*this, "Cmd_DPAE", "DPAE"};
  screen::Button Cmd_OK{*this, "Cmd_OK", "OK"};
  screen::Button Cmd_Retour{*this, "Cmd_Retour", "Retour"};
  screen::MenuItem Mnu_Aide{*this, "Mnu_Aide", "Aide"};
  screen::MenuItem Mnu_Sommaire{*this, "Mnu_Sommaire", "Aide KORVALDIS"};

 protected:
  bool QueryUnload() override { return sortieAccordee_; }
  void Activate() override;
  void MouseDown(int bouton) override;

 private:
  void Commencer();
  void Presenter();
  void Ong_Contrat_Click(int ancien);

  void Cmd_Retour_Click();
  void QuitterCreation();
  // True when the editor may close.
  bool ProposerEnregistrement();
  // Clears and hides the editor: every granted way out ends here.
  void Refermer();

  bool sortieAccordee_ = false;
  bool cree_ = false;
  bool enregistre_ = false;
  bool combosRemplis_ = false;
  std::array<Onglet*, 5> onglets_{&origine, &caracteristiques, &paie, &conges, &fin};
  session::AideEnLigne aide_;
  Gardes gardes_{*this};
  Enregistrement enregistrement_{*this, gardes_};
  Impression impression_{*this};
};

}  // namespace editor
