#include "editor/onglet_paie.h"

#include "editor/editeur.h"

namespace editor {

namespace {

// Row n is stored as n + 1.
constexpr const char* ModesPaiement[] = {"Virement bancaire", "Chèque", "Espèces"};

}  // namespace

OngletPaie::OngletPaie(Frm_ElementsContrat& editeur)
    : Onglet(editeur, ElementsPaie, "Cdr_Ong3"),
      Etq_ProfilContrat(editeur, "Etq_ProfilContrat", "Profil n° 1", &Page),
      Txt_ProfilContrat(editeur, "Txt_ProfilContrat", 3, &Page),
      Cbo_LibProfilContrat(editeur, "Cbo_LibProfilContrat", true, &Page),
      Etq_ProfilContrat2(editeur, "Etq_ProfilContrat2", "Profil n° 2", &Page),
      Txt_ProfilContrat2(editeur, "Txt_ProfilContrat2", 3, &Page),
      Cbo_LibProfilContrat2(editeur, "Cbo_LibProfilContrat2", true, &Page),
      Etq_ModPaieContrat(editeur, "Etq_ModPaieContrat", "Mode de Paiement", &Page),
      Cbo_ModPaieContrat(editeur, "Cbo_ModPaieContrat", false, &Page),
      Cac_PaieSalContrat(editeur, "Cac_PaieSalContrat", "Paiement du salaire par l'association",
                         &Page),
      Cac_CPMoisContrat(editeur, "Cac_CPMoisContrat", "Congés payés au mois", &Page),
      Cac_ProvCP(editeur, "Cac_ProvCP", "Provision des congés", &Page),
      Cdr_Mutuelle(editeur, "Cdr_Mutuelle", "Mutuelle ", &Page),
      Etq_MutSalContrat(editeur, "Etq_MutSalContrat", "Part Salariale", &Cdr_Mutuelle),
      Txt_MutSalContrat(editeur, "Txt_MutSalContrat", 8, &Cdr_Mutuelle),
      Etq_MutPatContrat(editeur, "Etq_MutPatContrat", "Part Patronale", &Cdr_Mutuelle),
      Txt_MutPatContrat(editeur, "Txt_MutPatContrat", 8, &Cdr_Mutuelle),
      Etq_ChargMutContrat(editeur, "Etq_ChargMutContrat", "Rub. de charge", &Cdr_Mutuelle),
      Txt_ChargMutContrat(editeur, "Txt_ChargMutContrat", 3, &Cdr_Mutuelle),
      Cbo_ChargMutContrat(editeur, "Cbo_ChargMutContrat", true, &Cdr_Mutuelle),
      Cdr_RegimePrev(editeur, "Cdr_RegimePrev", "Regime de prévoyance ", &Page),
      Etq_PrevContrat(editeur, "Etq_PrevContrat", "Contrat prévoyance", &Cdr_RegimePrev),
      Txt_PrevContrat(editeur, "Txt_PrevContrat", 2, &Cdr_RegimePrev),
      Cbo_LibPrevContrat(editeur, "Cbo_LibPrevContrat", true, &Cdr_RegimePrev),
      Etq_IdentCRCContrat(editeur, "Etq_IdentCRCContrat", "Identification CRC", &Page),
      Txt_IdentCRCContrat(editeur, "Txt_IdentCRCContrat", 0, &Page),
      Etq_CartOrangContrat(editeur, "Etq_CartOrangContrat", "Zone carte orange", &Page),
      Cbo_CartOrangContrat(editeur, "Cbo_CartOrangContrat", true, &Page),
      Etq_PlafSecu(editeur, "Etq_PlafSecu", "Plaf. sécu. mensuel individualisé", &Page),
      Txt_PlafSecu(editeur, "Txt_PlafSecu", 10, &Page),
      Etq_AssietteSecu(editeur, "Etq_AssietteSecu", "Assiette sécurité sociale", &Page),
      Txt_AssietteSecu(editeur, "Txt_AssietteSecu", 10, &Page),
      Cdr_AffectActiv(editeur, "Cdr_AffectActiv", "Affectation des activités", &Page),
      Etq_PeriodeEffet(editeur, "Etq_PeriodeEffet", "Période d'effet", &Cdr_AffectActiv),
      Cbo_PeriodeEffet(editeur, "Cbo_PeriodeEffet", false, &Cdr_AffectActiv),
      Cbo_PeriodeEffetAffichage(editeur, "Cbo_PeriodeEffetAffichage", false, &Cdr_AffectActiv),
      Cmd_AjoutePeriodeEffet(editeur, "Cmd_AjoutePeriodeEffet", "Ajouter", &Cdr_AffectActiv),
      Etq_ListeActivite(editeur, "Etq_ListeActivite", "Activités", &Cdr_AffectActiv),
      Cbo_Activite(editeur, "Cbo_Activite", false, &Cdr_AffectActiv),
      Txt_ActiviteContrat(editeur, "Txt_ActiviteContrat", 0, &Cdr_AffectActiv),
      Txt_RepartActContrat(editeur, "Txt_RepartActContrat", 6, &Cdr_AffectActiv),
      Lst_ActiviteContrat(editeur, "Lst_ActiviteContrat", &Cdr_AffectActiv),
      Lst_RepartActContrat(editeur, "Lst_RepartActContrat", &Cdr_AffectActiv),
      VS_Bdv(editeur, "VS_Bdv", &Cdr_AffectActiv),
      Cmd_OKActivite(editeur, "Cmd_OKActivite", "OK", &Cdr_AffectActiv),
      Cmd_AnnulerActivite(editeur, "Cmd_AnnulerActivite", "Annuler", &Cdr_AffectActiv),
      Cmd_RubSaisie(editeur, "Cmd_RubSaisie", "Rubriques de saisie", &Page),
      Cmd_Comment(editeur, "Cmd_Comment", "Commentaires sur bulletin", &Page),
      Cmd_Telegestion(editeur, "Cmd_Telegestion", "Droits télégestion", &Page),
      Cmd_TpsIndem(editeur, "Cmd_TpsIndem", "Temps d'indemnisation", &Page) {
  for (const char* mode : ModesPaiement) Cbo_ModPaieContrat.AddItem(mode);
  Page.SetEnabled(false);
  // Holds the periods as the record does; Cbo_PeriodeEffetAffichage shows them.
  Cbo_PeriodeEffet.SetVisible(false);
}

}  // namespace editor
