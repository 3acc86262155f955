#pragma once
// Fifth tab, "Fin du contrat": end of the contract, notice period and last payslip.
//
// The fields alone: they hold no contract data yet, and the page takes no user act.

#include "editor/onglet.h"

namespace editor {

class OngletFin : public Onglet {
 public:
  explicit OngletFin(Frm_ElementsContrat& editeur);

  // The end and its reason.
  screen::Label Etq_DatNotifContrat;
  screen::TextField Txt_DatNotifContrat;
  screen::Label Etq_MotifFinContrat;
  screen::ComboBox Cbo_MotifFinContrat;
  screen::Label Etq_CmpltMotif;
  screen::TextField Txt_CmpltMotif;
  screen::Label Etq_DateSignConvCol;
  screen::TextField Txt_DateSignConvCol;
  screen::CheckBox Cac_CalcIndLic;
  screen::Label Etq_DateFinContrat;
  screen::TextField Txt_DateFinContrat;
  screen::Label Etq_FinReelle;
  screen::TextField Txt_FinReelle;
  screen::Label Etq_DernJrWContrat;
  screen::TextField Txt_DernJrWContrat;
  screen::Label Etq_DernBullContrat;
  screen::TextField Txt_DernBullContrat;
  screen::UpDown Bdh_Bulletin;
  screen::CheckBox Cac_PrecaLibContrat;

  // Notice period.
  screen::Frame Cdr_Preavis;
  screen::OptionButton Opt_Effectue;
  screen::Label Etq_DebEffContrat;
  screen::TextField Txt_DebEffContrat;
  screen::Label Etq_FinEffContrat;
  screen::TextField Txt_FinEffContrat;
  screen::OptionButton Opt_Paye;
  screen::Label Etq_DebPayeContrat;
  screen::TextField Txt_DebPayeContrat;
  screen::Label Etq_FinPayeContrat;
  screen::TextField Txt_FinPayeContrat;
  screen::OptionButton Opt_NonEffNonPaye;
  screen::Label Etq_DebNonEffNonPaye;
  screen::TextField Txt_DebNonEffNonPaye;
  screen::Label Etq_FinNonEffNonPaye;
  screen::TextField Txt_FinNonEffNonPaye;

  // What is left to say.
  screen::Label Etq_NonVersContrat;
  screen::TextField Txt_NonVersContrat;
  screen::Label Etq_ObsFinContrat;
  screen::TextField Txt_ObsFinContrat_0;
  screen::TextField Txt_ObsFinContrat_1;
  screen::Label Etq_OrgRetraite;
  screen::TextField Txt_OrgRetraite;
  screen::ComboBox Cbo_OrgRetraite;
  screen::Label Etq_InfoComplMotifFin;
  screen::Button Cmd_SupprimerContrat;
};

}  // namespace editor
