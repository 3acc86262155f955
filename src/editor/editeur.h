#pragma once
// The modal editor of one contract: the frame round five tabs. It prepares and releases them, loads
// each tab on its first visit, and decides on OK and Retour what is checked and written. The tabs
// are objects of their own; saving stands in enregistrement.h.
//
// The editor stays loaded between contracts: its own ways out only clear and hide it. What it works
// on is the session's ItemContrat.
//
// Invariant: FermetureAutorisee is 1 only between a way out that was granted and the next opening;
// with any other value closing the frame is refused.

#include <string>

#include "data/citem.h"
#include "editor/enregistrement.h"
#include "editor/onglet_caracteristiques.h"
#include "editor/onglet_conges.h"
#include "editor/onglet_fin.h"
#include "editor/onglet_origine.h"
#include "editor/onglet_paie.h"
#include "rules/chevauchement.h"
#include "screen/attente.h"
#include "screen/form.h"
#include "session/aide.h"
#include "session/droits.h"
#include "session/session.h"

namespace editor {

// The tabs of Ong_Contrat.
enum NumeroOnglet { Origine, Caracteristiques, ElementsPaie, DroitsConges, FinContrat };

class Frm_ElementsContrat : public screen::Form {
 public:
  // Form_Load: acts on the session's ModeCreation.
  Frm_ElementsContrat(screen::Platform& platform, session::Session& session);
  ~Frm_ElementsContrat() override;

  // What the contract list calls, in its order.
  void DroitsUtilisateur(const session::Droits& droits);
  void InitElementContrat();
  void init();
  void Afficher_Donnees();
  void Remplir_CombosElement();

  session::Session& Session() const { return session_; }
  const session::Droits& Droits() const { return *droits_; }
  bool DroitComplet() const { return droit_.Complet(); }

  // The contract as it stands on the screen, for the rules. The end date of a contract on file is
  // the one on file: nothing on the screen changes it.
  rules::Portee Portee() const;
  rules::Dates Dates() const;
  bool ConventionParticuliers() const;
  // Verif_SuppDateFin on these: shows the refusal. True when the end date may stand.
  bool AccepterDateFin();

  // False while the fields are filled or cleared by program: change handlers do nothing then.
  bool EvenementsActifs = false;
  // 1: closing may go on.
  int FermetureAutorisee = 0;
  // Ecrire_Ong1 and its like check and give messages; otherwise they copy silently.
  bool EcritureVerifiee = false;
  bool ValidationEnCours = false;
  // The last change of the end date was refused.
  bool DateFinRefusee = false;
  // The link records of this contract are written already.
  bool LiensDejaCrees = false;
  // The follow-up of the contract was changed in this opening.
  bool SuiviModifie = false;
  // A tab's fields have been filled from the contract. The first tab always is.
  bool Ong2Charge = false;
  bool Ong3Charge = false;
  bool Ong4Charge = false;
  bool Ong5Charge = false;
  // Attribute 58 as it stood at opening.
  std::string PeriodeBulletinInitiale;
  // The end of the contract in the way, and the neighbours' dates, from the last overlap check.
  rules::Voisinage Voisins;
  // One attribute for each amendment added in this editing.
  data::CItem ClesAvenants;
  // Rows of code, label and kind: the activities that Cbo_Activite offers.
  data::CItem ListeActivites;
  // Items of TABLES.
  data::CItem ItemCarteOrange;
  data::CItem ItemFinContrat;

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
  bool QueryUnload() override { return FermetureAutorisee == 1; }
  void Activate() override;
  void MouseDown(int bouton) override;

 private:
  void LierChamps();
  void OuvrirFichiers();
  void DesinitElementContrat();
  void Remplir_Activites();
  void Vider_Donnees();

  void Ong_Contrat_Click(int ancien);
  void ActiverActivites();
  bool BulletinAFacturer();
  void MontrerParts();

  void Cmd_Ok_Click();
  bool Verifier();
  // The overlap check: true when the confirmation goes on.
  bool AccepterDates();
  void Mnu_Sommaire_Click();

  void Cmd_Retour_Click();
  void QuitterCreation();
  // Gives the new contract up: what an interrupted save has stored of it is cancelled.
  void AbandonnerCreation();
  bool ProposerEnregistrement();
  bool ModePaiementChange() const;
  bool RibManquant(const char* modePaiement);
  bool EcrireEnQuittant();

  // Clears and hides the editor: every granted way out ends here.
  void Refermer();

  session::Session& session_;
  const session::Droits* droits_ = &session::SansDroits;
  session::Droit droit_;
  session::AideEnLigne aide_;
  // The nomenclature of professions, held open by the editor.
  data::DbFile F_PCS_;
  Enregistrement enregistrement_{*this};
};

}  // namespace editor
