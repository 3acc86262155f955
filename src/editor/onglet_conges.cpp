#include "editor/onglet_conges.h"

#include <initializer_list>

#include "editor/editeur.h"

namespace editor {

OngletConges::OngletConges(Frm_ElementsContrat& editeur)
    : Onglet(editeur, DroitsConges, "Cdr_Ong4"),
      Etq_Periode(editeur, "Etq_Periode", "Période", &Page),
      Etq_PeriodeConges(editeur, "Etq_PeriodeConges", "", &Page),
      Cdr_DroitAcquis(editeur, "Cdr_DroitAcquis", "Droits à consommer ", &Page),
      Etq_JOAcquis(editeur, "Etq_JOAcquis", "Jours ouvrables acquis", &Cdr_DroitAcquis),
      Txt_CPConsoAcqContrat(editeur, "Txt_CPConsoAcqContrat", 8, &Cdr_DroitAcquis),
      Etq_JORestants(editeur, "Etq_JORestants", "Jours ouvrables restants", &Cdr_DroitAcquis),
      Txt_CPRestConsoContrat(editeur, "Txt_CPRestConsoContrat", 8, &Cdr_DroitAcquis),
      Cdr_CongesPayes(editeur, "Cdr_CongesPayes", "Congés pour fractionnement", &Page),
      Etq_CFAcquis(editeur, "Etq_CFAcquis", "Jours ouvrables acquis", &Cdr_CongesPayes),
      Txt_CFConsoAcqContrat(editeur, "Txt_CFConsoAcqContrat", 8, &Cdr_CongesPayes),
      Etq_CFRestants(editeur, "Etq_CFRestants", "Jours ouvrables restants", &Cdr_CongesPayes),
      Txt_CFRestConsoContrat(editeur, "Txt_CFRestConsoContrat", 8, &Cdr_CongesPayes),
      Cdr_ValeurJour(editeur, "Cdr_ValeurJour", "Valeur d'une journée", &Page),
      Etq_Conges_0(editeur, "Etq_Conges(0)", "Ouvrable", &Cdr_ValeurJour),
      Etq_Conges_1(editeur, "Etq_Conges(1)", "Ouvrée", &Cdr_ValeurJour),
      Etq_Conges_2(editeur, "Etq_Conges(2)", "- en Heures", &Cdr_ValeurJour),
      Txt_JrOuvrHContrat(editeur, "Txt_JrOuvrHContrat", 8, &Cdr_ValeurJour),
      Txt_JrOuvreHContrat(editeur, "Txt_JrOuvreHContrat", 8, &Cdr_ValeurJour),
      Etq_Conges_3(editeur, "Etq_Conges(3)", "- en Montant", &Cdr_ValeurJour),
      Txt_JrOuvrMContrat(editeur, "Txt_JrOuvrMContrat", 8, &Cdr_ValeurJour),
      Txt_JrOuvreMContrat(editeur, "Txt_JrOuvreMContrat", 8, &Cdr_ValeurJour),
      Cdr_DroitEnCours(editeur, "Cdr_DroitEnCours", "Droits en cours d'acquisition ", &Page),
      Etq_CPCoursJ(editeur, "Etq_CPCoursJ", "Jours ouvrables", &Cdr_DroitEnCours),
      Txt_CPCoursJContrat(editeur, "Txt_CPCoursJContrat", 8, &Cdr_DroitEnCours),
      Etq_CPCoursHM(editeur, "Etq_CPCoursHM", "Heures                 Montant brut",
                    &Cdr_DroitEnCours),
      Txt_CPCoursHContrat(editeur, "Txt_CPCoursHContrat", 8, &Cdr_DroitEnCours),
      Txt_CPCoursMContrat(editeur, "Txt_CPCoursMContrat", 10, &Cdr_DroitEnCours),
      Etq_JourAnticipation(editeur, "Etq_JourAnticipation", "Jours pris par anticipation", &Page),
      Txt_JourAnticipation(editeur, "Txt_JourAnticipation", 8, &Page),
      Cdr_CongesAnc(editeur, "Cdr_CongesAnc", "Congés d'ancienneté ", &Page),
      Etq_CAAcquis(editeur, "Etq_CAAcquis", "Jours ouvrables acquis", &Cdr_CongesAnc),
      Txt_CAncAcqContrat(editeur, "Txt_CAncAcqContrat", 8, &Cdr_CongesAnc),
      Etq_CARestants(editeur, "Etq_CARestants", "Jours ouvrables restants", &Cdr_CongesAnc),
      Txt_CAncRestContrat(editeur, "Txt_CAncRestContrat", 8, &Cdr_CongesAnc),
      Cdr_DelaiPrev(editeur, "Cdr_DelaiPrev", "Congé délai prévenance", &Page),
      Etq_CDPAcquis(editeur, "Etq_CDPAcquis", "Jours ouvrables acquis", &Cdr_DelaiPrev),
      Txt_CDPAcquis(editeur, "Txt_CDPAcquis", 8, &Cdr_DelaiPrev),
      Etq_CDPRestants(editeur, "Etq_CDPRestants", "Jours ouvrables restants", &Cdr_DelaiPrev),
      Txt_CDPRestants(editeur, "Txt_CDPRestants", 8, &Cdr_DelaiPrev),
      Cmd_Detail(editeur, "Cmd_Detail", "Détail", &Cdr_DelaiPrev),
      Etq_ProvisionCP(editeur, "Etq_ProvisionCP", "Provision Employeur", &Page),
      Txt_ProvisionCP(editeur, "Txt_ProvisionCP", 10, &Page),
      Etq_ProvisionCours(editeur, "Etq_ProvisionCours", "Provision Employeur", &Page),
      Txt_ProvisionCours(editeur, "Txt_ProvisionCours", 10, &Page),
      Cac_ReportConges(editeur, "Cac_ReportConges", "", &Page),
      Etq_ReportConges(editeur, "Etq_ReportConges", "", &Page),
      Cac_RepriseConges(editeur, "Cac_RepriseConges", "", &Page),
      Etq_RepriseConges(editeur, "Etq_RepriseConges", "", &Page),
      Cmd_Conges(editeur, "Cmd_Conges", "Détail décompte", &Page) {
  Page.SetEnabled(false);
  // They name the contract that leave goes to or comes from: none yet.
  for (screen::Field* const champ : std::initializer_list<screen::Field*>{
           &Cac_ReportConges, &Etq_ReportConges, &Cac_RepriseConges, &Etq_RepriseConges}) {
    champ->SetVisible(false);
  }
}

}  // namespace editor
