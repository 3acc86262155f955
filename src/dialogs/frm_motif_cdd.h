#pragma once
// Why a contract is of a fixed term: the reason for recourse, the hiring reason, and the carers who
// are replaced, each with the absence that the replacement covers. Opened by the editor's button
// and by its check of the first tab:
//
//   Frm_MotifCDD motif(platform, session);
//   motif.DroitsUtilisateur(droits);
//   motif.Etq_CodeAidant.SetLibelle("00001");
//   motif.Etq_NomPrenomAidant.SetLibelle("DURAND Anne");
//   motif.DateDebut = "01/03/2026";
//   motif.Contexte = {"01", "001", "001"};
//   motif.init();
//   motif.ShowModal();
//
// The frame of the replaced carers is idle or edits one entry. Idle: the list, Cmd_AjouterAidant
// and the dialog's buttons are on, the entry's fields are off and empty. Editing: the other way
// round. A code that stands in Txt_CodeAidant with five characters has passed the checks of a carer
// to be replaced, unless the store failed meanwhile; then they are made again before it is taken.

#include <string>

#include "dialogs/dialogue.h"
#include "dialogs/ligne_remplace.h"
#include "dialogs/recherche_remplace.h"

namespace dialogs {

class Frm_MotifCDD : public DialogueContrat {
 public:
  Frm_MotifCDD(screen::Platform& platform, session::Session& session);

  // Displayed start date of the contract, as the editor shows it; "" or no date: not known yet, and
  // no carer is found to have a contract then.
  std::string DateDebut;
  ContexteMotif Contexte;

  // Hides Cmd_OK without the full right.
  void init();

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
  screen::ComboBox Cbo_MotifEmbauche{*this, "Cbo_MotifEmbauche", true, nullptr, LongueurMotif};
  screen::TextField Txt_MotifEmbContrat_0{*this, "Txt_MotifEmbContrat(0)", LongueurMotif};
  screen::TextField Txt_MotifEmbContrat_1{*this, "Txt_MotifEmbContrat(1)", LongueurMotif};
  screen::Button Cmd_MotifsEmbauche{*this, "Cmd_MotifsEmbauche", "Motifs contrats CDD"};

  screen::Frame Fra_AidantsRemplace{*this, "Fra_AidantsRemplace", "Aidants remplacés"};
  screen::ListBox Lst_AidantRemplace{*this, "Lst_AidantRemplace", &Fra_AidantsRemplace};
  screen::Label Etq_CodeRemplace{*this, "Etq_CodeRemplace", "Code", &Fra_AidantsRemplace};
  screen::TextField Txt_CodeAidant{*this, "Txt_CodeAidant", 5, &Fra_AidantsRemplace};
  screen::Label Etq_NomRemplace{*this, "Etq_NomRemplace", "Nom-prénom", &Fra_AidantsRemplace};
  screen::ComboBox Cbo_AidantRemplace{*this, "Cbo_AidantRemplace", true, &Fra_AidantsRemplace,
                                      LongueurNom};
  screen::Label Etq_Absence{*this, "Etq_Absence", "Absences", &Fra_AidantsRemplace};
  screen::ComboBox Cbo_Absence{*this, "Cbo_Absence", true, &Fra_AidantsRemplace};
  // Behind the screen: the key of the absence chosen, and a place that nothing fills.
  screen::TextField Txt_CodeAbs{*this, "Txt_CodeAbs", 0, &Fra_AidantsRemplace};
  screen::TextField Txt_AidantRemplContrat{*this, "Txt_AidantRemplContrat", 0,
                                           &Fra_AidantsRemplace};
  screen::Button Cmd_AjouterAidant{*this, "Cmd_AjouterAidant", "Ajouter", &Fra_AidantsRemplace};
  screen::Button Cmd_SupprimerAidant{*this, "Cmd_SupprimerAidant", "Supprimer",
                                     &Fra_AidantsRemplace};
  screen::Button Cmd_OkAidant{*this, "Cmd_OkAidant", "OK", &Fra_AidantsRemplace};
  screen::Button Cmd_AnnulerAidant{*this, "Cmd_AnnulerAidant", "Annuler", &Fra_AidantsRemplace};

  screen::Button Cmd_OK{*this, "Cmd_OK", "OK"};
  screen::Button Cmd_Retour{*this, "Cmd_Retour", "Retour"};

 protected:
  void Copier_Champs(data::CItem& item) const override;

 private:
  void LierAidant();

  void Afficher_Donnees();
  void Remplir_MotifEmbauche();
  void Remplir_ListeAidant();
  void Cmd_MotifsEmbauche_Click();
  void Cmd_Ok_Click();

  // The code of the hiring reason shown; "" for none, and for a text that is no label of the table.
  std::string CodeMotif() const;
  std::string DebutInterne() const;

  // The frame of the replaced carers: frm_motif_cdd_aidants.cpp.
  void Grise_Liste();
  void Degrise_Liste();
  void ActiverSaisie(bool saisie);
  void ViderAbsences();

  void Txt_CodeAidant_Change();
  bool Completer_CodeAidant();
  bool Verifier_CodeAidant();
  bool RefuserCode(const char* message);
  void Recherche_AbsAidant(const std::string& code, const std::string& debut);
  void Recherche_Aidant();
  void Cbo_AidantRemplace_Click();
  void Cbo_AidantRemplace_Change();
  void Cbo_AidantRemplace_LostFocus();
  void Cbo_Absence_Click();
  void Cbo_Absence_Change();
  void Cbo_Absence_LostFocus();

  void Cmd_AjouterAidant_Click();
  void Cmd_SupprimerAidant_Click();
  void Cmd_OkAidant_Click();
  void Cmd_AnnulerAidant_Click();
  void Lst_AidantRemplace_DblClick();
  void ReprendreLigne(const LigneRemplace& ligne);

  void Verif_AidantRemplacant();
  bool SansCode() const;
  bool SansNom() const;
  bool SeRemplaceLuiMeme() const;
  bool DejaDansLaListe() const;
  // The name shown is the one of the carer last checked, whole or as the search shows it.
  bool NomConcorde() const;

  bool enCreationAidant_ = false;
  bool erreurAidant_ = false;
  // The row that is being modified, -1 for none.
  int ligneAidant_ = -1;
  // The rows behind Cbo_AidantRemplace and Cbo_Absence.
  data::CItem resultatsAidant_;
  data::CItem resultatsAbsence_;
  // TABLES items: hiring reasons, absence types.
  data::CItem motifs_;
  data::CItem absences_;
  // The carer last found on file, and the code that has passed every check.
  std::string nomAidant_;
  std::string codeVerifie_;
};

}  // namespace dialogs
