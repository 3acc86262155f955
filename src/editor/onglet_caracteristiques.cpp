#include "editor/onglet_caracteristiques.h"

#include "editor/editeur.h"

namespace editor {

namespace {

// Row n is stored as n + 1.
constexpr const char* Frequences[] = {"Hebdo", "Quatorzaine", "Mensuelle", "Annuelle"};

}  // namespace

OngletCaracteristiques::OngletCaracteristiques(Frm_ElementsContrat& editeur)
    : Onglet(editeur, Caracteristiques, "Cdr_Ong2"),
      Etq_AvenantContrat(editeur, "Etq_AvenantContrat", "Numéro Avenant", &Page),
      Txt_AvenantContrat(editeur, "Txt_AvenantContrat", 3, &Page),
      Bdh_Avenant(editeur, "Bdh_Avenant", &Page),
      Etq_DatEffetContrat(editeur, "Etq_DatEffetContrat", "Date d'effet", &Page),
      Txt_DatEffetContrat(editeur, "Txt_DatEffetContrat", 10, &Page),
      Cmd_AjoutAvenant(editeur, "Cmd_AjoutAvenant", "Ajouter", &Page),
      Cmd_OKAvenant(editeur, "Cmd_OKAvenant", "OK", &Page),
      Cmd_AnnulerAvenant(editeur, "Cmd_AnnulerAvenant", "Annuler", &Page),
      Cmd_ImpAvenant(editeur, "Cmd_ImpAvenant", "Imprimer", &Page),
      Etq_QualifContrat(editeur, "Etq_QualifContrat", "Qualif. Prof.", &Page),
      Cbo_QualifContrat(editeur, "Cbo_QualifContrat", true, &Page),
      Cmd_QualifPro(editeur, "Cmd_QualifPro", "Ajouter Qualification", &Page),
      Etq_RegroupBudget(editeur, "Etq_RegroupBudget", "Regroup. budget", &Page),
      Txt_RegroupBudget(editeur, "Txt_RegroupBudget", 0, &Page),
      Cdr_PCS(editeur, "Cdr_PCS", "Nomenclature P.C.S. ", &Page),
      Etq_CategPCSContrat(editeur, "Etq_CategPCSContrat", "Catégorie", &Cdr_PCS),
      Cbo_CategPCSContrat(editeur, "Cbo_CategPCSContrat", true, &Cdr_PCS),
      Etq_CodPCSContrat(editeur, "Etq_CodPCSContrat", "Code P.C.S.", &Cdr_PCS),
      Txt_CodPCSContrat(editeur, "Txt_CodPCSContrat", 4, &Cdr_PCS),
      Etq_FoncPCSContrat(editeur, "Etq_FoncPCSContrat", "Fonction", &Cdr_PCS),
      Cbo_FoncPCSContrat(editeur, "Cbo_FoncPCSContrat", true, &Cdr_PCS),
      Etq_DureeWContrat(editeur, "Etq_DureeWContrat", "Durée de travail", &Page),
      Txt_DureeWContrat(editeur, "Txt_DureeWContrat", 8, &Page),
      Etq_FreqWContrat(editeur, "Etq_FreqWContrat", "Fréquence", &Page),
      Cbo_FreqWContrat(editeur, "Cbo_FreqWContrat", false, &Page),
      Cdr_Lissage(editeur, "Cdr_Lissage", "Accord de modulation", &Page),
      Cac_Lissage(editeur, "Cac_Lissage", "Lissage des rémunérations", &Cdr_Lissage),
      Cac_RetraitHeuresNeg(editeur, "Cac_RetraitHeuresNeg", "Retrait des heures négatives",
                           &Cdr_Lissage),
      Cac_PaiementHeuresPos(editeur, "Cac_PaiementHeuresPos", "Paiement des heures positives",
                            &Cdr_Lissage),
      Cmd_SuiviAnnuel(editeur, "Cmd_SuiviAnnuel", "Suivi Contrat", &Cdr_Lissage),
      Cdr_Grille(editeur, "Cdr_Grille", "Grille", &Page),
      Etq_GrilleContrat(editeur, "Etq_GrilleContrat", "Grille déroulement de carrière",
                        &Cdr_Grille),
      Cbo_GrilleContrat(editeur, "Cbo_GrilleContrat", true, &Cdr_Grille),
      Etq_DepartGrilContrat(editeur, "Etq_DepartGrilContrat", "Date départ calcul de grille",
                            &Cdr_Grille),
      Txt_DepartGrilContrat(editeur, "Txt_DepartGrilContrat", 10, &Cdr_Grille),
      Etq_JourSusp(editeur, "Etq_JourSusp", "Jours de suspension", &Cdr_Grille),
      Txt_JourSusp(editeur, "Txt_JourSusp", 8, &Cdr_Grille),
      Etq_DatReference(editeur, "Etq_DatReference", "Date référence", &Cdr_Grille),
      Txt_DatReference(editeur, "Txt_DatReference", 10, &Cdr_Grille),
      Etq_CoefNivContrat(editeur, "Etq_CoefNivContrat", "Coefficient / Niveau", &Cdr_Grille),
      Txt_CoefNivContrat(editeur, "Txt_CoefNivContrat", 10, &Cdr_Grille),
      Etq_TauxHorContrat(editeur, "Etq_TauxHorContrat", "Taux horaire", &Cdr_Grille),
      Txt_TauxHorContrat(editeur, "Txt_TauxHorContrat", 10, &Cdr_Grille),
      Etq_Categorie(editeur, "Etq_Categorie", "Catégorie", &Cdr_Grille),
      Txt_Categorie(editeur, "Txt_Categorie", 10, &Cdr_Grille),
      Cdr_Anciennete(editeur, "Cdr_Anciennete", "Ancienneté", &Page),
      Etq_DateAnciennete(editeur, "Etq_DateAnciennete", "Date de départ", &Cdr_Anciennete),
      Txt_DateAnciennete(editeur, "Txt_DateAnciennete", 10, &Cdr_Anciennete),
      Etq_JourSuspAnc(editeur, "Etq_JourSuspAnc", "Jours de suspension", &Cdr_Anciennete),
      Txt_JourSuspAnc(editeur, "Txt_JourSuspAnc", 8, &Cdr_Anciennete),
      Etq_DatReferenceAnc(editeur, "Etq_DatReferenceAnc", "Date référence", &Cdr_Anciennete),
      Txt_DatReferenceAnc(editeur, "Txt_DatReferenceAnc", 10, &Cdr_Anciennete),
      Etq_Commentaire(editeur, "Etq_Commentaire", "Commentaires", &Page),
      Txt_Commentaire(editeur, "Txt_Commentaire", 0, &Page),
      Txt_Commentaire2(editeur, "Txt_Commentaire2", 0, &Page),
      Etq_NormCrc(editeur, "Etq_NormCrc", "Numéro de rattachement retraite DADS-U", &Page),
      Txt_NormCrc(editeur, "Txt_NormCrc", 0, &Page),
      Cac_ChgtSitAdm(editeur, "Cac_ChgtSitAdm", "Changement de situation administrative", &Page),
      Etq_CodePop(editeur, "Etq_CodePop", "Code population rattachement prévoyance", &Page),
      Txt_CodePop(editeur, "Txt_CodePop", 0, &Page),
      Cmd_ElemDrtPub(editeur, "Cmd_ElemDrtPub", "Eléments droit public", &Page) {
  for (const char* frequence : Frequences) Cbo_FreqWContrat.AddItem(frequence);
  Page.SetEnabled(false);
}

}  // namespace editor
