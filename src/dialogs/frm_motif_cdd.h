#pragma once
// Why a contract is of a fixed term: the reason for recourse, the hiring reason, and the carers who
// are replaced, each with the absence that the replacement covers. Opened by the editor's button
// and by its check of the first tab:
//
//   Frm_MotifCDD(platform, dossier, "01/03/2026", {"01", "001", "001"}).ShowModal();
//
// The frame of the replaced carers is idle or edits one entry. Idle: the list, Cmd_AjouterAidant
// and the dialog's buttons are on, the entry's fields are off and empty. Editing: the other way
// round. A code that stands in Txt_CodeAidant with five characters has passed the checks of a carer
// to be replaced, unless the store failed meanwhile; then they are made again before it is taken.

#include <string>

#include "data/liste_codes.h"
#include "dialogs/dialogue.h"
#include "dialogs/ligne_remplace.h"
#include "dialogs/recherche_remplace.h"
#include "session/paire_code.h"
#include "session/zones.h"

namespace dialogs {

class Frm_MotifCDD : public DialogueContrat {
 public:
  // `dateDebut`: displayed start of the contract, as the editor shows it; "" or no date: not known
  // yet, and no carer is found to have a contract then.
  Frm_MotifCDD(screen::Platform& platform, session::Dossier& dossier, const std::string& dateDebut,
               ContexteMotif contexte);

  // Most characters of a text that is typed.
  static constexpr int LongueurMotif = 100;
  static constexpr int LongueurNom = 60;
  // Names of the search's result are cut at this.
  static constexpr int LongueurNomTrouve = 25;

  screen::Label Etq_CodeAidant{*this, "Etq_CodeAidant"};
  screen::Label Etq_NomPrenomAidant{*this, "Etq_NomPrenomAidant"};
  screen::Label Etq_MotifCDD{*this, "Etq_MotifCDD", "Motif de recours à un C.D.D."};
  screen::ComboBox Cbo_MotifCDD{*this, "Cbo_MotifCDD", false};
  screen::Label Etq_MotifEmbauche{*this, "Etq_MotifEmbauche", "Motif d'embauche"};
  screen::ComboBox Cbo_MotifEmbauche{*this, "Cbo_MotifEmbauche", true, LongueurMotif};
  screen::TextField Txt_MotifEmbContrat_0{*this, "Txt_MotifEmbContrat(0)", LongueurMotif};
  screen::TextField Txt_MotifEmbContrat_1{*this, "Txt_MotifEmbContrat(1)", LongueurMotif};
  screen::Button Cmd_MotifsEmbauche{*this, "Cmd_MotifsEmbauche", "Motifs contrats CDD"};

  screen::Frame Fra_AidantsRemplace{*this, "Fra_AidantsRemplace", "Aidants remplacés"};
  screen::ListBox Lst_AidantRemplace{Fra_AidantsRemplace, "Lst_AidantRemplace"};
  screen::Label Etq_CodeRemplace{Fra_AidantsRemplace, "Etq_CodeRemplace", "Code"};
  screen::TextField Txt_CodeAidant{Fra_AidantsRemplace, "Txt_CodeAidant", 5};
  screen::Label Etq_NomRemplace{Fra_AidantsRemplace, "Etq_NomRemplace", "Nom-prénom"};
  screen::ComboBox Cbo_AidantRemplace{Fra_AidantsRemplace, "Cbo_AidantRemplace", true, LongueurNom};
  screen::Label Etq_Absence{Fra_AidantsRemplace, "Etq_Absence", "Absences"};
  screen::ComboBox Cbo_Absence{Fra_AidantsRemplace, "Cbo_Absence", true};
  // Behind the screen: the key of the absence chosen, and a place that nothing fills.
  screen::TextField Txt_CodeAbs{Fra_AidantsRemplace, "Txt_CodeAbs", 0};
  screen::TextField Txt_AidantRemplContrat{Fra_AidantsRemplace, "Txt_AidantRemplContrat", 0};
  screen::Button Cmd_AjouterAidant{Fra_AidantsRemplace, "Cmd_AjouterAidant", "Ajouter"};
  screen::Button Cmd_SupprimerAidant{Fra_AidantsRemplace, "Cmd_SupprimerAidant", "Supprimer"};
  screen::Button Cmd_OkAidant{Fra_AidantsRemplace, "Cmd_OkAidant", "OK"};
  screen::Button Cmd_AnnulerAidant{Fra_AidantsRemplace, "Cmd_AnnulerAidant", "Annuler"};

  screen::Button Cmd_OK{*this, "Cmd_OK", "OK"};
  screen::Button Cmd_Retour{*this, "Cmd_Retour", "Retour"};

 protected:
  void Copier_Champs(data::CItem& contrat) const override;

 private:
  static const rules::Verification<Frm_MotifCDD> Verifications[1];
  static const rules::Verification<Frm_MotifCDD> VerificationsAidant[4];

  void Afficher_Donnees();
  void Remplir_MotifEmbauche();
  void Remplir_ListeAidant();
  void Cmd_MotifsEmbauche_Click();
  void Cmd_Ok_Click();

  // The frame of the replaced carers: frm_motif_cdd_aidants.cpp.
  void LierAidant();
  session::RegleCode RegleAidant();
  void Grise_Liste();
  void ActiverSaisie(bool saisie);
  void ViderAbsences();
  std::optional<std::string> NomConnu(const std::string& code);
  const char* RefusAidant(const std::string& code);
  void Recherche_AbsAidant(const std::string& code);
  void Recherche_Aidant();
  void Cmd_AjouterAidant_Click();
  void Cmd_SupprimerAidant_Click();
  void Cmd_OkAidant_Click();
  void Cmd_AnnulerAidant_Click();
  void Lst_AidantRemplace_DblClick();
  void ReprendreLigne(const LigneRemplace& ligne);
  bool DejaDansLaListe() const;

  // Start of the contract as an internal day; "" when it is not known.
  std::string debut_;
  ContexteMotif contexte_;
  bool enCreationAidant_ = false;
  // The row that is being modified, -1 for none.
  int ligneAidant_ = -1;
  // TABLES items.
  data::ListeCodes motifs_;
  data::ListeCodes absences_;
  session::Zones zones_;
  session::Sourdine sourdine_;
  session::PaireCode aidant_{Txt_CodeAidant, Cbo_AidantRemplace, sourdine_, RegleAidant()};
  session::PaireCode absence_{
      Txt_CodeAbs, Cbo_Absence, sourdine_, {.tape = session::RegleCode::Nomme}};
};

}  // namespace dialogs
