#pragma once
// Fourth tab, "Droits aux congés": the leave counters of the contract, fed by payroll.
//
// The fields alone: they hold no contract data yet, and the page takes no user act.

#include "editor/onglet.h"

namespace editor {

class OngletConges : public Onglet {
 public:
  explicit OngletConges(Frm_ElementsContrat& editeur);

  // Leave to use.
  screen::Label Etq_Periode;
  screen::Label Etq_PeriodeConges;
  screen::Frame Cdr_DroitAcquis;
  screen::Label Etq_JOAcquis;
  screen::TextField Txt_CPConsoAcqContrat;
  screen::Label Etq_JORestants;
  screen::TextField Txt_CPRestConsoContrat;
  screen::Frame Cdr_CongesPayes;
  screen::Label Etq_CFAcquis;
  screen::TextField Txt_CFConsoAcqContrat;
  screen::Label Etq_CFRestants;
  screen::TextField Txt_CFRestConsoContrat;
  screen::Frame Cdr_ValeurJour;
  screen::Label Etq_Conges_0;
  screen::Label Etq_Conges_1;
  screen::Label Etq_Conges_2;
  screen::TextField Txt_JrOuvrHContrat;
  screen::TextField Txt_JrOuvreHContrat;
  screen::Label Etq_Conges_3;
  screen::TextField Txt_JrOuvrMContrat;
  screen::TextField Txt_JrOuvreMContrat;

  // Leave being acquired.
  screen::Frame Cdr_DroitEnCours;
  screen::Label Etq_CPCoursJ;
  screen::TextField Txt_CPCoursJContrat;
  screen::Label Etq_CPCoursHM;
  screen::TextField Txt_CPCoursHContrat;
  screen::TextField Txt_CPCoursMContrat;
  screen::Label Etq_JourAnticipation;
  screen::TextField Txt_JourAnticipation;

  // Seniority, notice period, provision.
  screen::Frame Cdr_CongesAnc;
  screen::Label Etq_CAAcquis;
  screen::TextField Txt_CAncAcqContrat;
  screen::Label Etq_CARestants;
  screen::TextField Txt_CAncRestContrat;
  screen::Frame Cdr_DelaiPrev;
  screen::Label Etq_CDPAcquis;
  screen::TextField Txt_CDPAcquis;
  screen::Label Etq_CDPRestants;
  screen::TextField Txt_CDPRestants;
  screen::Button Cmd_Detail;
  screen::Label Etq_ProvisionCP;
  screen::TextField Txt_ProvisionCP;
  screen::Label Etq_ProvisionCours;
  screen::TextField Txt_ProvisionCours;

  // Leave taken over from another contract, or carried over to one.
  screen::CheckBox Cac_ReportConges;
  screen::Label Etq_ReportConges;
  screen::CheckBox Cac_RepriseConges;
  screen::Label Etq_RepriseConges;
  screen::Button Cmd_Conges;
};

}  // namespace editor
