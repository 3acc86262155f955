#pragma once
// Fifth tab, "Fin du contrat": end of the contract, notice period and last payslip.
//
// Its page takes no user act yet: what stands here follows the first tab.

#include "data/liste_codes.h"
#include "editor/onglet.h"

namespace editor {

class OngletFin : public Onglet {
 public:
  explicit OngletFin(Frm_ElementsContrat& editeur);

  void Afficher_Ong5();
  bool Admettre() override;
  // What only a fixed term has: the insecurity bonus.
  void SelonType(bool determine);
  // The retirement bodies of the entity: the first one is chosen.
  void ChoisirEntite(const std::string& entite, bool particuliers);
  void QuitterEntite();
  // The end of the contract as an internal day: the one place that says which end the rules see.
  std::optional<long> DateFin() const;
  // The end date was refused: the period of its last payslip is to be given anew.
  void RefuserDateFin() { Txt_DernBullContrat.SetText(""); }

 private:
  void Afficher_Ong() override { Afficher_Ong5(); }
  void Vider_Ong() override;
  void SelonDroits(bool complet) override;
  void RemplirRetraite(const std::string& entite, bool particuliers);

  // The retirement bodies that Cbo_OrgRetraite offers.
  data::ListeCodes ListeOrgRetraite_;

  // The end and its reason.
  screen::Label Etq_DatNotifContrat{Page, "Etq_DatNotifContrat",
                                    "Date de Notification licenciement / démission"};
  screen::TextField Txt_DatNotifContrat{Page, "Txt_DatNotifContrat", 10};
  screen::Label Etq_MotifFinContrat{Page, "Etq_MotifFinContrat", "Motif"};
  screen::ComboBox Cbo_MotifFinContrat{Page, "Cbo_MotifFinContrat", true};
  screen::Label Etq_CmpltMotif{Page, "Etq_CmpltMotif", "Complément motif"};
  screen::TextField Txt_CmpltMotif{Page, "Txt_CmpltMotif", 0};
  screen::Label Etq_DateSignConvCol{Page, "Etq_DateSignConvCol",
                                    "Date signature convention rupture conventionnelle"};
  screen::TextField Txt_DateSignConvCol{Page, "Txt_DateSignConvCol", 10};
  screen::CheckBox Cac_CalcIndLic{Page, "Cac_CalcIndLic", "Calcul indemnité licenciement"};
  screen::Label Etq_DateFinContrat{Page, "Etq_DateFinContrat", "Date Fin de Contrat"};
  screen::TextField Txt_DateFinContrat{Page, "Txt_DateFinContrat", 10};
  screen::Label Etq_FinReelle{Page, "Etq_FinReelle", "Date de fin réelle"};
  screen::TextField Txt_FinReelle{Page, "Txt_FinReelle", 10};
  screen::Label Etq_DernJrWContrat{Page, "Etq_DernJrWContrat", "Dernier Jour Travaillé"};
  screen::TextField Txt_DernJrWContrat{Page, "Txt_DernJrWContrat", 10};
  screen::Label Etq_DernBullContrat{Page, "Etq_DernBullContrat", "Période du Dernier Bulletin"};
  screen::TextField Txt_DernBullContrat{Page, "Txt_DernBullContrat", 0};
  screen::UpDown Bdh_Bulletin{Page, "Bdh_Bulletin"};
  screen::CheckBox Cac_PrecaLibContrat{Page, "Cac_PrecaLibContrat", "Versement prime de précarité"};

  // Notice period.
  screen::Frame Cdr_Preavis{Page, "Cdr_Preavis", "Préavis "};
  screen::OptionButton Opt_Effectue{Cdr_Preavis, "Opt_Effectue", "Effectué"};
  screen::Label Etq_DebEffContrat{Cdr_Preavis, "Etq_DebEffContrat", "Du"};
  screen::TextField Txt_DebEffContrat{Cdr_Preavis, "Txt_DebEffContrat", 10};
  screen::Label Etq_FinEffContrat{Cdr_Preavis, "Etq_FinEffContrat", "Au"};
  screen::TextField Txt_FinEffContrat{Cdr_Preavis, "Txt_FinEffContrat", 10};
  screen::OptionButton Opt_Paye{Cdr_Preavis, "Opt_Paye", "Payé mais non effectué"};
  screen::Label Etq_DebPayeContrat{Cdr_Preavis, "Etq_DebPayeContrat", "Du"};
  screen::TextField Txt_DebPayeContrat{Cdr_Preavis, "Txt_DebPayeContrat", 10};
  screen::Label Etq_FinPayeContrat{Cdr_Preavis, "Etq_FinPayeContrat", "Au"};
  screen::TextField Txt_FinPayeContrat{Cdr_Preavis, "Txt_FinPayeContrat", 10};
  screen::OptionButton Opt_NonEffNonPaye{Cdr_Preavis, "Opt_NonEffNonPaye",
                                         "Non effectué et non payé"};
  screen::Label Etq_DebNonEffNonPaye{Cdr_Preavis, "Etq_DebNonEffNonPaye", "Du"};
  screen::TextField Txt_DebNonEffNonPaye{Cdr_Preavis, "Txt_DebNonEffNonPaye", 10};
  screen::Label Etq_FinNonEffNonPaye{Cdr_Preavis, "Etq_FinNonEffNonPaye", "Au"};
  screen::TextField Txt_FinNonEffNonPaye{Cdr_Preavis, "Txt_FinNonEffNonPaye", 10};

  // What is left to say.
  screen::Label Etq_NonVersContrat{
      Page, "Etq_NonVersContrat",
      "Motif en cas de non versement d'indemnités de préavis ou congés payés"};
  screen::TextField Txt_NonVersContrat{Page, "Txt_NonVersContrat", 0};
  screen::Label Etq_ObsFinContrat{Page, "Etq_ObsFinContrat", "Observations"};
  screen::TextField Txt_ObsFinContrat_0{Page, "Txt_ObsFinContrat(0)", 0};
  screen::TextField Txt_ObsFinContrat_1{Page, "Txt_ObsFinContrat(1)", 0};
  screen::Label Etq_OrgRetraite{Page, "Etq_OrgRetraite", "Organisme de retraite"};
  screen::TextField Txt_OrgRetraite{Page, "Txt_OrgRetraite", 0};
  screen::ComboBox Cbo_OrgRetraite{Page, "Cbo_OrgRetraite", true};
  screen::Label Etq_InfoComplMotifFin{Page, "Etq_InfoComplMotifFin", ""};
  screen::Button Cmd_SupprimerContrat{Page, "Cmd_SupprimerContrat", "Supprimer ce contrat"};
};

}  // namespace editor
