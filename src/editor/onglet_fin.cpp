#include "editor/onglet_fin.h"

#include "editor/editeur.h"

namespace editor {

OngletFin::OngletFin(Frm_ElementsContrat& editeur)
    : Onglet(editeur, FinContrat, "Cdr_Ong5"),
      Etq_DatNotifContrat(editeur, "Etq_DatNotifContrat",
                          "Date de Notification licenciement / démission", &Page),
      Txt_DatNotifContrat(editeur, "Txt_DatNotifContrat", 10, &Page),
      Etq_MotifFinContrat(editeur, "Etq_MotifFinContrat", "Motif", &Page),
      Cbo_MotifFinContrat(editeur, "Cbo_MotifFinContrat", true, &Page),
      Etq_CmpltMotif(editeur, "Etq_CmpltMotif", "Complément motif", &Page),
      Txt_CmpltMotif(editeur, "Txt_CmpltMotif", 0, &Page),
      Etq_DateSignConvCol(editeur, "Etq_DateSignConvCol",
                          "Date signature convention rupture conventionnelle", &Page),
      Txt_DateSignConvCol(editeur, "Txt_DateSignConvCol", 10, &Page),
      Cac_CalcIndLic(editeur, "Cac_CalcIndLic", "Calcul indemnité licenciement", &Page),
      Etq_DateFinContrat(editeur, "Etq_DateFinContrat", "Date Fin de Contrat", &Page),
      Txt_DateFinContrat(editeur, "Txt_DateFinContrat", 10, &Page),
      Etq_FinReelle(editeur, "Etq_FinReelle", "Date de fin réelle", &Page),
      Txt_FinReelle(editeur, "Txt_FinReelle", 10, &Page),
      Etq_DernJrWContrat(editeur, "Etq_DernJrWContrat", "Dernier Jour Travaillé", &Page),
      Txt_DernJrWContrat(editeur, "Txt_DernJrWContrat", 10, &Page),
      Etq_DernBullContrat(editeur, "Etq_DernBullContrat", "Période du Dernier Bulletin", &Page),
      Txt_DernBullContrat(editeur, "Txt_DernBullContrat", 0, &Page),
      Bdh_Bulletin(editeur, "Bdh_Bulletin", &Page),
      Cac_PrecaLibContrat(editeur, "Cac_PrecaLibContrat", "Versement prime de précarité", &Page),
      Cdr_Preavis(editeur, "Cdr_Preavis", "Préavis ", &Page),
      Opt_Effectue(editeur, "Opt_Effectue", "Effectué", &Cdr_Preavis),
      Etq_DebEffContrat(editeur, "Etq_DebEffContrat", "Du", &Cdr_Preavis),
      Txt_DebEffContrat(editeur, "Txt_DebEffContrat", 10, &Cdr_Preavis),
      Etq_FinEffContrat(editeur, "Etq_FinEffContrat", "Au", &Cdr_Preavis),
      Txt_FinEffContrat(editeur, "Txt_FinEffContrat", 10, &Cdr_Preavis),
      Opt_Paye(editeur, "Opt_Paye", "Payé mais non effectué", &Cdr_Preavis),
      Etq_DebPayeContrat(editeur, "Etq_DebPayeContrat", "Du", &Cdr_Preavis),
      Txt_DebPayeContrat(editeur, "Txt_DebPayeContrat", 10, &Cdr_Preavis),
      Etq_FinPayeContrat(editeur, "Etq_FinPayeContrat", "Au", &Cdr_Preavis),
      Txt_FinPayeContrat(editeur, "Txt_FinPayeContrat", 10, &Cdr_Preavis),
      Opt_NonEffNonPaye(editeur, "Opt_NonEffNonPaye", "Non effectué et non payé", &Cdr_Preavis),
      Etq_DebNonEffNonPaye(editeur, "Etq_DebNonEffNonPaye", "Du", &Cdr_Preavis),
      Txt_DebNonEffNonPaye(editeur, "Txt_DebNonEffNonPaye", 10, &Cdr_Preavis),
      Etq_FinNonEffNonPaye(editeur, "Etq_FinNonEffNonPaye", "Au", &Cdr_Preavis),
      Txt_FinNonEffNonPaye(editeur, "Txt_FinNonEffNonPaye", 10, &Cdr_Preavis),
      Etq_NonVersContrat(editeur, "Etq_NonVersContrat",
                         "Motif en cas de non versement d'indemnités de préavis ou congés payés",
                         &Page),
      Txt_NonVersContrat(editeur, "Txt_NonVersContrat", 0, &Page),
      Etq_ObsFinContrat(editeur, "Etq_ObsFinContrat", "Observations", &Page),
      Txt_ObsFinContrat_0(editeur, "Txt_ObsFinContrat(0)", 0, &Page),
      Txt_ObsFinContrat_1(editeur, "Txt_ObsFinContrat(1)", 0, &Page),
      Etq_OrgRetraite(editeur, "Etq_OrgRetraite", "Organisme de retraite", &Page),
      Txt_OrgRetraite(editeur, "Txt_OrgRetraite", 0, &Page),
      Cbo_OrgRetraite(editeur, "Cbo_OrgRetraite", true, &Page),
      Etq_InfoComplMotifFin(editeur, "Etq_InfoComplMotifFin", "", &Page),
      Cmd_SupprimerContrat(editeur, "Cmd_SupprimerContrat", "Supprimer ce contrat", &Page) {
  Page.SetEnabled(false);
}

}  // namespace editor
