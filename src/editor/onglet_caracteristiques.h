#pragma once
// Second tab, "Caractéristiques": what an amendment can change. Qualification, P.C.S., grid,
// working time, seniority. It shows one amendment at a time, the one of Bdh_Avenant.
//
// The fields alone: they hold no contract data yet, and the page takes no user act.

#include "editor/onglet.h"

namespace editor {

class OngletCaracteristiques : public Onglet {
 public:
  explicit OngletCaracteristiques(Frm_ElementsContrat& editeur);

  // The amendment shown.
  screen::Label Etq_AvenantContrat;
  screen::TextField Txt_AvenantContrat;
  screen::UpDown Bdh_Avenant;
  screen::Label Etq_DatEffetContrat;
  screen::TextField Txt_DatEffetContrat;
  screen::Button Cmd_AjoutAvenant;
  screen::Button Cmd_OKAvenant;
  screen::Button Cmd_AnnulerAvenant;
  screen::Button Cmd_ImpAvenant;
  screen::Label Etq_QualifContrat;
  screen::ComboBox Cbo_QualifContrat;
  screen::Button Cmd_QualifPro;
  screen::Label Etq_RegroupBudget;
  screen::TextField Txt_RegroupBudget;

  // Nomenclature of professions.
  screen::Frame Cdr_PCS;
  screen::Label Etq_CategPCSContrat;
  screen::ComboBox Cbo_CategPCSContrat;
  screen::Label Etq_CodPCSContrat;
  screen::TextField Txt_CodPCSContrat;
  screen::Label Etq_FoncPCSContrat;
  screen::ComboBox Cbo_FoncPCSContrat;

  // Working time and modulation.
  screen::Label Etq_DureeWContrat;
  screen::TextField Txt_DureeWContrat;
  screen::Label Etq_FreqWContrat;
  screen::ComboBox Cbo_FreqWContrat;
  screen::Frame Cdr_Lissage;
  screen::CheckBox Cac_Lissage;
  screen::CheckBox Cac_RetraitHeuresNeg;
  screen::CheckBox Cac_PaiementHeuresPos;
  screen::Button Cmd_SuiviAnnuel;

  // Career grid.
  screen::Frame Cdr_Grille;
  screen::Label Etq_GrilleContrat;
  screen::ComboBox Cbo_GrilleContrat;
  screen::Label Etq_DepartGrilContrat;
  screen::TextField Txt_DepartGrilContrat;
  screen::Label Etq_JourSusp;
  screen::TextField Txt_JourSusp;
  screen::Label Etq_DatReference;
  screen::TextField Txt_DatReference;
  screen::Label Etq_CoefNivContrat;
  screen::TextField Txt_CoefNivContrat;
  screen::Label Etq_TauxHorContrat;
  screen::TextField Txt_TauxHorContrat;
  screen::Label Etq_Categorie;
  screen::TextField Txt_Categorie;

  // Seniority.
  screen::Frame Cdr_Anciennete;
  screen::Label Etq_DateAnciennete;
  screen::TextField Txt_DateAnciennete;
  screen::Label Etq_JourSuspAnc;
  screen::TextField Txt_JourSuspAnc;
  screen::Label Etq_DatReferenceAnc;
  screen::TextField Txt_DatReferenceAnc;

  // Comments and declarations.
  screen::Label Etq_Commentaire;
  screen::TextField Txt_Commentaire;
  screen::TextField Txt_Commentaire2;
  screen::Label Etq_NormCrc;
  screen::TextField Txt_NormCrc;
  screen::CheckBox Cac_ChgtSitAdm;
  screen::Label Etq_CodePop;
  screen::TextField Txt_CodePop;
  screen::Button Cmd_ElemDrtPub;
};

}  // namespace editor
