#pragma once
// Second tab, "Caractéristiques": what an amendment can change. Qualification, P.C.S., grid,
// working time, seniority. It shows one amendment at a time, the one of Bdh_Avenant.
//
// Its page takes no user act yet: what stands here follows the first tab.

#include "editor/onglet.h"

namespace editor {

class OngletCaracteristiques : public Onglet {
 public:
  explicit OngletCaracteristiques(Frm_ElementsContrat& editeur);

  void Afficher_Ong2();
  void SelonConvention(const std::string& convention) override;
  // What an agreement just chosen proposes: the profession of home help, and its grids.
  void ProposerSelonConvention(const std::string& convention);
  // Hours that are paid as they are worked are not evened out, nor are those of administrative
  // staff.
  void SelonSalaire(bool mensuel, bool production);
  // A new contract starts on that displayed day: so does its first state.
  void DebuterLe(const std::string& date);
  // Administrative staff have no modulation.
  void FermerModulation() { Cdr_Lissage.SetVisible(false); }
  bool GrilleChoisie() const { return !Cbo_GrilleContrat.Text().empty(); }
  // What a notice looks at: the day from which seniority counts, its whole days of suspension
  // added; nothing when none is given.
  std::optional<long> DepartAnciennete() const;
  bool Lissee() const { return Cac_Lissage.Value() != 0; }
  // What the reason of an end decides of the hours not worked.
  void RetirerHeuresNegatives(bool retirees) { Cac_RetraitHeuresNeg.SetValue(retirees ? 1 : 0); }

 private:
  void Afficher_Ong() override { Afficher_Ong2(); }
  void Vider_Ong() override;
  void SelonDroits(bool complet) override;
  void Remplir_Grilles(const std::string& convention);

  // The amendment shown.
  screen::Label Etq_AvenantContrat{Page, "Etq_AvenantContrat", "Numéro Avenant"};
  screen::TextField Txt_AvenantContrat{Page, "Txt_AvenantContrat", 3};
  screen::UpDown Bdh_Avenant{Page, "Bdh_Avenant"};
  screen::Label Etq_DatEffetContrat{Page, "Etq_DatEffetContrat", "Date d'effet"};
  screen::TextField Txt_DatEffetContrat{Page, "Txt_DatEffetContrat", 10};
  screen::Button Cmd_AjoutAvenant{Page, "Cmd_AjoutAvenant", "Ajouter"};
  screen::Button Cmd_OKAvenant{Page, "Cmd_OKAvenant", "OK"};
  screen::Button Cmd_AnnulerAvenant{Page, "Cmd_AnnulerAvenant", "Annuler"};
  screen::Button Cmd_ImpAvenant{Page, "Cmd_ImpAvenant", "Imprimer"};
  screen::Label Etq_QualifContrat{Page, "Etq_QualifContrat", "Qualif. Prof."};
  screen::ComboBox Cbo_QualifContrat{Page, "Cbo_QualifContrat", true};
  screen::Button Cmd_QualifPro{Page, "Cmd_QualifPro", "Ajouter Qualification"};
  screen::Label Etq_RegroupBudget{Page, "Etq_RegroupBudget", "Regroup. budget"};
  screen::TextField Txt_RegroupBudget{Page, "Txt_RegroupBudget", 0};

  // Nomenclature of professions.
  screen::Frame Cdr_PCS{Page, "Cdr_PCS", "Nomenclature P.C.S. "};
  screen::Label Etq_CategPCSContrat{Cdr_PCS, "Etq_CategPCSContrat", "Catégorie"};
  screen::ComboBox Cbo_CategPCSContrat{Cdr_PCS, "Cbo_CategPCSContrat", true};
  screen::Label Etq_CodPCSContrat{Cdr_PCS, "Etq_CodPCSContrat", "Code P.C.S."};
  screen::TextField Txt_CodPCSContrat{Cdr_PCS, "Txt_CodPCSContrat", 4};
  screen::Label Etq_FoncPCSContrat{Cdr_PCS, "Etq_FoncPCSContrat", "Fonction"};
  screen::ComboBox Cbo_FoncPCSContrat{Cdr_PCS, "Cbo_FoncPCSContrat", true};

  // Working time and modulation.
  screen::Label Etq_DureeWContrat{Page, "Etq_DureeWContrat", "Durée de travail"};
  screen::TextField Txt_DureeWContrat{Page, "Txt_DureeWContrat", 8};
  screen::Label Etq_FreqWContrat{Page, "Etq_FreqWContrat", "Fréquence"};
  screen::ComboBox Cbo_FreqWContrat{Page, "Cbo_FreqWContrat", false};
  screen::Frame Cdr_Lissage{Page, "Cdr_Lissage", "Accord de modulation"};
  screen::CheckBox Cac_Lissage{Cdr_Lissage, "Cac_Lissage", "Lissage des rémunérations"};
  screen::CheckBox Cac_RetraitHeuresNeg{Cdr_Lissage, "Cac_RetraitHeuresNeg",
                                        "Retrait des heures négatives"};
  screen::CheckBox Cac_PaiementHeuresPos{Cdr_Lissage, "Cac_PaiementHeuresPos",
                                         "Paiement des heures positives"};
  screen::Button Cmd_SuiviAnnuel{Cdr_Lissage, "Cmd_SuiviAnnuel", "Suivi Contrat"};

  // Career grid.
  screen::Frame Cdr_Grille{Page, "Cdr_Grille", "Grille"};
  screen::Label Etq_GrilleContrat{Cdr_Grille, "Etq_GrilleContrat",
                                  "Grille déroulement de carrière"};
  screen::ComboBox Cbo_GrilleContrat{Cdr_Grille, "Cbo_GrilleContrat", true};
  screen::Label Etq_DepartGrilContrat{Cdr_Grille, "Etq_DepartGrilContrat",
                                      "Date départ calcul de grille"};
  screen::TextField Txt_DepartGrilContrat{Cdr_Grille, "Txt_DepartGrilContrat", 10};
  screen::Label Etq_JourSusp{Cdr_Grille, "Etq_JourSusp", "Jours de suspension"};
  screen::TextField Txt_JourSusp{Cdr_Grille, "Txt_JourSusp", 8};
  screen::Label Etq_DatReference{Cdr_Grille, "Etq_DatReference", "Date référence"};
  screen::TextField Txt_DatReference{Cdr_Grille, "Txt_DatReference", 10};
  screen::Label Etq_CoefNivContrat{Cdr_Grille, "Etq_CoefNivContrat", "Coefficient / Niveau"};
  screen::TextField Txt_CoefNivContrat{Cdr_Grille, "Txt_CoefNivContrat", 10};
  screen::Label Etq_TauxHorContrat{Cdr_Grille, "Etq_TauxHorContrat", "Taux horaire"};
  screen::TextField Txt_TauxHorContrat{Cdr_Grille, "Txt_TauxHorContrat", 10};
  screen::Label Etq_Categorie{Cdr_Grille, "Etq_Categorie", "Catégorie"};
  screen::TextField Txt_Categorie{Cdr_Grille, "Txt_Categorie", 10};

  // Seniority.
  screen::Frame Cdr_Anciennete{Page, "Cdr_Anciennete", "Ancienneté"};
  screen::Label Etq_DateAnciennete{Cdr_Anciennete, "Etq_DateAnciennete", "Date de départ"};
  screen::TextField Txt_DateAnciennete{Cdr_Anciennete, "Txt_DateAnciennete", 10};
  screen::Label Etq_JourSuspAnc{Cdr_Anciennete, "Etq_JourSuspAnc", "Jours de suspension"};
  screen::TextField Txt_JourSuspAnc{Cdr_Anciennete, "Txt_JourSuspAnc", 8};
  screen::Label Etq_DatReferenceAnc{Cdr_Anciennete, "Etq_DatReferenceAnc", "Date référence"};
  screen::TextField Txt_DatReferenceAnc{Cdr_Anciennete, "Txt_DatReferenceAnc", 10};

  // Comments and declarations.
  screen::Label Etq_Commentaire{Page, "Etq_Commentaire", "Commentaires"};
  screen::TextField Txt_Commentaire{Page, "Txt_Commentaire", 0};
  screen::TextField Txt_Commentaire2{Page, "Txt_Commentaire2", 0};
  screen::Label Etq_NormCrc{Page, "Etq_NormCrc", "Numéro de rattachement retraite DADS-U"};
  screen::TextField Txt_NormCrc{Page, "Txt_NormCrc", 0};
  screen::CheckBox Cac_ChgtSitAdm{Page, "Cac_ChgtSitAdm", "Changement de situation administrative"};
  screen::Label Etq_CodePop{Page, "Etq_CodePop", "Code population rattachement prévoyance"};
  screen::TextField Txt_CodePop{Page, "Txt_CodePop", 0};
  screen::Button Cmd_ElemDrtPub{Page, "Cmd_ElemDrtPub", "Eléments droit public"};
};

}  // namespace editor
