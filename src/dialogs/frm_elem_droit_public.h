#pragma once
// The job elements that a contract under public law declares, one set for each amendment:
// population, legal status, statutory category and job, step, indices and N.B.I. points.
//
//   Frm_ElemDroitPublic(platform, dossier, rang).ShowModal();     rank 1 is the contract as signed
//
// An amendment that has no set yet shows the one before, which goes into it with the OK.

#include "data/liste_codes.h"
#include "dialogs/dialogue.h"
#include "session/sourdine.h"
#include "session/zones.h"

namespace dialogs {

class Frm_ElemDroitPublic : public Dialogue {
 public:
  Frm_ElemDroitPublic(screen::Platform& platform, session::Dossier& dossier, int rangAvenant);

  // Lengths of codes, in characters.
  static constexpr int LongueurCorps = 4;
  static constexpr int LongueurGrade = 2;
  static constexpr int LongueurEmploi = 4;
  static constexpr int LongueurEchelon = 3;
  static constexpr int LongueurIndice = 4;
  static constexpr int LongueurLibelle = 60;
  static constexpr session::FormeNombre Points{
      .avant = 5, .apres = 2, .affichage = session::FormeNombre::Serree};

  screen::Label Etq_CodeAidant{*this, "Etq_CodeAidant"};
  screen::Label Etq_NomPrenomAidant{*this, "Etq_NomPrenomAidant"};
  screen::Label Etq_CodePopEmp{*this, "Etq_CodePopEmp", "Code population d'emploi"};
  screen::ComboBox Cbo_CodePopEmp{*this, "Cbo_CodePopEmp", false};
  screen::Label Etq_CodeStaJur{*this, "Etq_CodeStaJur", "Code statut juridique"};
  screen::ComboBox Cbo_CodeStaJur{*this, "Cbo_CodeStaJur", false};
  screen::Label Etq_CodeCatSta{*this, "Etq_CodeCatSta", "Code catégorie statutaire"};
  screen::ComboBox Cbo_CodeCatSta{*this, "Cbo_CodeCatSta", false};
  screen::Frame Frm_CodeEmpSta{*this, "Frm_CodeEmpSta", "Code emploi statutaire"};
  screen::Label Etq_CodeCorps{Frm_CodeEmpSta, "Etq_CodeCorps", "Code corps"};
  screen::TextField Txt_CodeCorps{Frm_CodeEmpSta, "Txt_CodeCorps", LongueurCorps};
  screen::Label Etq_CodeGrade{Frm_CodeEmpSta, "Etq_CodeGrade", "Code grade"};
  screen::TextField Txt_CodeGrade{Frm_CodeEmpSta, "Txt_CodeGrade", LongueurGrade};
  screen::Label Etq_CodeEmploi{Frm_CodeEmpSta, "Etq_CodeEmploi", "Code emploi"};
  screen::TextField Txt_CodeEmploi{Frm_CodeEmpSta, "Txt_CodeEmploi", LongueurEmploi};
  screen::Label Etq_CodeEche{*this, "Etq_CodeEche", "Code échelon"};
  screen::TextField Txt_CodeEche{*this, "Txt_CodeEche", LongueurEchelon};
  screen::Label Etq_IndBrut{*this, "Etq_IndBrut", "Indice brut"};
  screen::TextField Txt_IndBrut{*this, "Txt_IndBrut", LongueurIndice};
  screen::Label Etq_IndMaj{*this, "Etq_IndMaj", "Indice majoré"};
  screen::TextField Txt_IndMaj{*this, "Txt_IndMaj", LongueurIndice};
  screen::Label Etq_NbPtsNBI{*this, "Etq_NbPtsNBI", "Nombre mensuel de points N.B.I."};
  screen::TextField Txt_NbPtsNBI{*this, "Txt_NbPtsNBI", Points.Largeur()};
  screen::Label Etq_Grade{*this, "Etq_Grade", "Libellé grade"};
  screen::TextField Txt_Grade{*this, "Txt_Grade", LongueurLibelle};
  screen::Label Etq_Echelle{*this, "Etq_Echelle", "Echelle"};
  screen::TextField Txt_Echelle{*this, "Txt_Echelle", LongueurLibelle};
  screen::Button Cmd_Ok{*this, "Cmd_Ok", "Ok"};
  screen::Button Cmd_Annuler{*this, "Cmd_Annuler", "Annuler"};
  screen::Button Cmd_Retour{*this, "Cmd_Retour", "Retour"};

 private:
  static const rules::Verification<Frm_ElemDroitPublic> Verifications[7];

  void Lier();
  void Montrer();
  void Cbo_CodePopEmp_Change();
  void Txt_NbPtsNBI_LostFocus();
  void CompleterEmploi();
  void Ecrire(data::CItem& contrat) const;
  void Cmd_Ok_Click();
  void Cmd_Retour_Click();

  // Corps, grade and job, one after the other.
  std::string Emploi() const;
  // Where the set stands, and where it is shown from.
  int rang_;
  int rangLu_;
  // The contract as the OK of an untouched screen would leave it.
  std::string ItemSauvegarde_;

  session::Sourdine sourdine_;
  data::ListeCodes populations_;
  data::ListeCodes statuts_;
  data::ListeCodes categories_;
  session::Zones zones_;
};

}  // namespace dialogs
