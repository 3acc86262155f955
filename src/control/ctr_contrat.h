#pragma once
// The contract list of one carer: the embeddable screen that a host places on a form of its own.
// The host uses it in this order:
//
//   1. create it                          5. init
//   2. TheDatabase, TheClient             6. Affiche, if it wants filters preset
//   3. W_Code, W_NomPrenom,               7. when W_Sortir has become 1, or when it wishes,
//      W_EtatSuppAidant, W_CodeContrat       destroy it
//   4. DroitsUtilisateur
//
// The control has two modes. Selection mode: the filters are on, the lists off, Cmd_Recherche is
// on. List mode, after a search: the filters are off, the lists on, Cmd_OK is on and leads back.
// The database, client, rights and platform outlive the control. A StoreError other than an absent
// record rises from any call to the host, the screen being usable again.

#include <functional>
#include <memory>
#include <optional>
#include <string>
#include <vector>

#include "control/choix_filtres.h"
#include "control/contrat_aidant.h"
#include "control/contrats_lus.h"
#include "control/rangees.h"
#include "data/citem.h"
#include "editor/editeur.h"
#include "screen/colonnes.h"
#include "screen/form.h"
#include "session/aide.h"
#include "session/droits.h"
#include "session/session.h"

namespace control {

class Ctr_Contrat : public screen::Form {
 public:
  explicit Ctr_Contrat(screen::Platform& platform);
  ~Ctr_Contrat() override;

  // The host's properties. The carer code has 5 characters and is the left part of every contract
  // key.
  std::string W_Code;
  std::string W_NomPrenom;
  // The carer is in the deleted state: no contract can be added.
  bool W_EtatSuppAidant = false;
  // The key of one contract to open straight away, or "".
  std::string W_CodeContrat;
  // Output: 1 when the user has left by Cmd_Retour.
  int W_Sortir = 0;
  // Called when W_Sortir has become 1, so that the host closes the form that holds the control.
  screen::Handler Sortie;
  // What the user may like to know and need not answer: "Contrat 061 enregistré".
  std::function<void(const std::string& texte)> SurAvis;

  void TheDatabase(data::Db& db) { session_.Db = &db; }
  void TheClient(session::Client& client) { session_.LeClient = &client; }
  void DroitsUtilisateur(const session::Droits& droits) { session_.W_Droits = &droits; }
  // Opens the session's files, fills the legal-entity filter and shows the carer.
  void init();
  // Presets the filters and searches. `typeAct`: "P" entity contracts, "M" private employers, else
  // both. `codeAsso`: legal entity; "" or an unknown one leaves that filter as it stands. `actifs`:
  // "A" active, "H" ended, else all.
  void Affiche(std::string_view typeAct, std::string_view codeAsso, std::string_view actifs);
  void Remplir_Association();
  // List mode, with the lists as they stand.
  void Afficher_Liste();
  // Selection mode, with the default filters.
  void Effacer_Donnees();
  // Fills the list from the carer's contracts by the filters and the sort chosen.
  void Recherche_Contrat();
  // Opens the contract of the selected row, or W_CodeContrat when none is, in the editor, and
  // brings its row up to date when the editor has closed.
  void Appel_Contrat();

  // The contract key of each row: attribute = row + 1.
  const data::CItem& ClesContrats() const { return rangees_.Cles(); }
  // Every contract of the carer, kept by the filters or not.
  const ContratsLus& Contrats() const { return contrats_; }
  // Called when they are others. Unset, nothing happens.
  screen::Handler SurContrats;
  const session::Session& Etat() const { return session_; }
  // The contract as it stands in the editor's fields, nothing while none is shown.
  std::optional<ContratAidant> EnMain() const;
  // It is another than the one that was opened.
  bool EnMainModifie() const { return editeur_ != nullptr && editeur_->Dossier().Modifie(); }

  // The rows that fit the lists without a scroll bar.
  static constexpr int LignesVisibles = 15;

  screen::Label Etq_Aidant{*this, "Etq_Aidant", "Aidant :"};
  screen::Label Etq_CodeAidant{*this, "Etq_CodeAidant"};
  screen::Label Etq_NomPrenomAidant{*this, "Etq_NomPrenomAidant"};

  screen::Frame Cdr_Association{*this, "Cdr_Association", "Entité Juridique"};
  screen::ComboBox Cbo_Association{Cdr_Association, "Cbo_Association", true};

  screen::Frame Cdr_SelectContrat{*this, "Cdr_SelectContrat", "Sélection des contrats "};
  screen::Frame Cdr_Validite{Cdr_SelectContrat, "Cdr_Validite", "Validité "};
  screen::OptionButton Opt_TousValid{Cdr_Validite, "Opt_TousValid", "Tous"};
  screen::OptionButton Opt_Actif{Cdr_Validite, "Opt_Actif", "Actifs"};
  screen::OptionButton Opt_Historique{Cdr_Validite, "Opt_Historique", "Historiques"};
  screen::Frame Cdr_Type{Cdr_SelectContrat, "Cdr_Type", "Type "};
  screen::OptionButton Opt_PartEmpl{Cdr_Type, "Opt_PartEmpl", "Particuliers employeurs"};
  screen::OptionButton Opt_Autres{Cdr_Type, "Opt_Autres", "Autres"};
  screen::OptionButton Opt_TousType{Cdr_Type, "Opt_TousType", "Tous"};
  screen::Frame Cdr_TriContrat{*this, "Cdr_TriContrat", "Tri des contrats "};
  screen::OptionButton Opt_TriEmpl{Cdr_TriContrat, "Opt_TriEmpl", "Employeur"};
  screen::OptionButton Opt_TriCroiss{Cdr_TriContrat, "Opt_TriCroiss", "Anc. croissante"};
  screen::OptionButton Opt_TriDecroiss{Cdr_TriContrat, "Opt_TriDecroiss", "Anc. décroissante"};
  screen::Button Cmd_Recherche{*this, "Cmd_Recherche", "Recherche"};

  screen::Label Etq_Debut{*this, "Etq_Debut", "Début"};
  screen::Label Etq_Fin{*this, "Etq_Fin", "Fin"};
  screen::Label Etq_Type{*this, "Etq_Type", "Type"};
  screen::Label Etq_Employeur{*this, "Etq_Employeur", "Employeur"};
  screen::Label Etq_Qualification{*this, "Etq_Qualification", "Convention Collective"};
  screen::ListBox Lst_DatDebContrat{*this, "Lst_DatDebContrat"};
  screen::ListBox Lst_DatFinContrat{*this, "Lst_DatFinContrat"};
  screen::ListBox Lst_Type{*this, "Lst_Type"};
  screen::ListBox Lst_EmplEtabContrat{*this, "Lst_EmplEtabContrat"};
  screen::ListBox Lst_QualifContrat{*this, "Lst_QualifContrat"};
  screen::ScrollBar Bdv_Detail{*this, "Bdv_Detail"};

  screen::Button Cmd_Ajouter{*this, "Cmd_Ajouter", "Ajouter"};
  screen::Button Cmd_OK{*this, "Cmd_OK", "OK"};
  screen::Button Cmd_Retour{*this, "Cmd_Retour", "Retour"};

  screen::MenuItem Mnu_Aide{*this, "Mnu_Aide", "Aide"};
  screen::MenuItem Mnu_Sommaire{*this, "Mnu_Sommaire", "Aide KORVALDIS"};

 protected:
  void MouseDown(int bouton) override;

 private:
  void Cmd_Recherche_Click();
  void Cmd_Ajouter_Click();
  void Cmd_Ok_Click();
  void Cmd_Retour_Click();

  // Opens the contract of that key; a row of the list that it is follows.
  void OuvrirContrat(const std::string& cle);
  // The editor, prepared by `preparer` under the wait state.
  editor::Frm_ElementsContrat& Editeur(
      const std::function<void(editor::Frm_ElementsContrat&)>& preparer);
  // What became of the contract of that key.
  void Annoncer(const std::string& cle, const char* sort) const;

  session::Session session_;
  session::AideEnLigne aide_;
  ChoixFiltres filtres_{*this};
  ContratsLus contrats_{session_};
  screen::Colonnes colonnes_{
      {&Lst_DatDebContrat, &Lst_DatFinContrat, &Lst_Type, &Lst_EmplEtabContrat, &Lst_QualifContrat},
      Bdv_Detail,
      LignesVisibles};
  Rangees rangees_{session_, colonnes_};
  // Stays loaded between contracts; it is let go of before the session that it works on.
  std::unique_ptr<editor::Frm_ElementsContrat> editeur_;
};

}  // namespace control
