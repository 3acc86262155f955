#pragma once
// Third tab, "Elements de paie": profiles, payment, mutual insurance, provident scheme, ceilings
// and activities.
//
// The fields alone: they hold no contract data yet, and the page takes no user act.

#include "editor/onglet.h"

namespace editor {

class OngletPaie : public Onglet {
 public:
  explicit OngletPaie(Frm_ElementsContrat& editeur);

  // Profiles and payment.
  screen::Label Etq_ProfilContrat;
  screen::TextField Txt_ProfilContrat;
  screen::ComboBox Cbo_LibProfilContrat;
  screen::Label Etq_ProfilContrat2;
  screen::TextField Txt_ProfilContrat2;
  screen::ComboBox Cbo_LibProfilContrat2;
  screen::Label Etq_ModPaieContrat;
  screen::ComboBox Cbo_ModPaieContrat;
  screen::CheckBox Cac_PaieSalContrat;
  screen::CheckBox Cac_CPMoisContrat;
  screen::CheckBox Cac_ProvCP;

  // Mutual insurance and provident scheme.
  screen::Frame Cdr_Mutuelle;
  screen::Label Etq_MutSalContrat;
  screen::TextField Txt_MutSalContrat;
  screen::Label Etq_MutPatContrat;
  screen::TextField Txt_MutPatContrat;
  screen::Label Etq_ChargMutContrat;
  screen::TextField Txt_ChargMutContrat;
  screen::ComboBox Cbo_ChargMutContrat;
  screen::Frame Cdr_RegimePrev;
  screen::Label Etq_PrevContrat;
  screen::TextField Txt_PrevContrat;
  screen::ComboBox Cbo_LibPrevContrat;
  screen::Label Etq_IdentCRCContrat;
  screen::TextField Txt_IdentCRCContrat;
  screen::Label Etq_CartOrangContrat;
  screen::ComboBox Cbo_CartOrangContrat;
  screen::Label Etq_PlafSecu;
  screen::TextField Txt_PlafSecu;
  screen::Label Etq_AssietteSecu;
  screen::TextField Txt_AssietteSecu;

  // Activities by effect period.
  screen::Frame Cdr_AffectActiv;
  screen::Label Etq_PeriodeEffet;
  screen::ComboBox Cbo_PeriodeEffet;
  screen::ComboBox Cbo_PeriodeEffetAffichage;
  screen::Button Cmd_AjoutePeriodeEffet;
  screen::Label Etq_ListeActivite;
  screen::ComboBox Cbo_Activite;
  screen::TextField Txt_ActiviteContrat;
  screen::TextField Txt_RepartActContrat;
  screen::ListBox Lst_ActiviteContrat;
  screen::ListBox Lst_RepartActContrat;
  screen::ScrollBar VS_Bdv;
  screen::Button Cmd_OKActivite;
  screen::Button Cmd_AnnulerActivite;

  // Dialogs.
  screen::Button Cmd_RubSaisie;
  screen::Button Cmd_Comment;
  screen::Button Cmd_Telegestion;
  screen::Button Cmd_TpsIndem;
};

}  // namespace editor
