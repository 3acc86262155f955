#pragma once
// The modulation agreement: monthly pay evened out over the year, and what becomes of the hours
// above or below it. Only production staff with monthly pay has one; the frame is shown then.

#include "data/citem.h"
#include "screen/field.h"
#include "session/sourdine.h"

namespace editor {

class Frm_ElementsContrat;

class Modulation {
 public:
  // `sourdine` is the tab's.
  Modulation(Frm_ElementsContrat& editeur, screen::Frame& page, session::Sourdine& sourdine);

  void Montrer(const data::CItem& contrat, int rang);
  void MontrerNouveau();
  // The treatment on file is kept while the boxes show what they showed.
  void Ecrire(data::CItem& contrat, int rang) const;
  void Ouvrir(bool ouverte);
  // Pay by the hour has nothing to even out.
  void Cesser() { Cac_Lissage.SetValue(0); }
  bool Lissee() const { return Cac_Lissage.Value() != 0; }
  void RetirerHeuresNegatives(bool retirees) { Cac_RetraitHeuresNeg.SetValue(retirees ? 1 : 0); }
  bool LissageManque() const { return Cdr_Lissage.Visible() && Cac_Lissage.Value() == 0; }

 private:
  void Cac_Lissage_Click();
  void Cmd_SuiviAnnuel_Click();
  // The three boxes as one text.
  std::string Cases() const;
  std::string Traitement() const;

  Frm_ElementsContrat& editeur_;
  screen::Frame& page_;
  // As the boxes stand untouched, with their attributes; nothing is on file for a new contract.
  bool surFichier_ = false;
  std::string casesMontrees_;
  std::string lissageSurFichier_;
  std::string traitementSurFichier_;

  screen::Frame Cdr_Lissage{page_, "Cdr_Lissage", "Accord de modulation"};
  screen::CheckBox Cac_Lissage{Cdr_Lissage, "Cac_Lissage", "Lissage des rémunérations"};
  screen::CheckBox Cac_RetraitHeuresNeg{Cdr_Lissage, "Cac_RetraitHeuresNeg",
                                        "Retrait des heures négatives"};
  screen::CheckBox Cac_PaiementHeuresPos{Cdr_Lissage, "Cac_PaiementHeuresPos",
                                         "Paiement des heures positives"};
  screen::Button Cmd_SuiviAnnuel{Cdr_Lissage, "Cmd_SuiviAnnuel", "Suivi Contrat"};
};

}  // namespace editor
