#pragma once
// Fifth tab, "Fin du contrat": end of the contract, notice period and last payslip. A notification
// date and a reason give the end and the notice; without a notification there is no end.
//
// A contract on file can have an end and no notification, from other programs of the suite. The tab
// then shows nothing of it, and its end and all that belongs to it stay as on file until a
// notification is typed. Emptying a notification that is shown cancels the end as a whole.

#include "editor/fin_bulletin.h"
#include "editor/fin_dates.h"
#include "editor/fin_initiale.h"
#include "editor/fin_motif.h"
#include "editor/fin_preavis.h"
#include "editor/fin_retraite.h"
#include "editor/onglet.h"
#include "editor/suppression.h"

namespace editor {

class OngletFin : public Onglet {
 public:
  explicit OngletFin(Frm_ElementsContrat& editeur);

  void Afficher_Ong5();
  bool Verif_Ong5();
  // Run again on other fields, it leaves what a single run on them would.
  void Ecrire_Ong5();
  bool Admettre() override;
  void Entrer() override;
  // What only a fixed term has: the insecurity bonus.
  void SelonType(bool determine);
  // The retirement body follows the entity.
  RetraiteFin& Retraite() { return retraite_; }

  // The end of the contract as an internal day: the one place that says which end the rules see.
  std::optional<long> DateFin() const;
  // The end that the tab shows, and the period of its last payslip, AAAAMM; "" for none.
  std::optional<long> FinAffichee() const { return dates_.Fin(); }
  const std::string& DernierBulletin() const { return bulletin_.Periode(); }
  // The end date was refused: the period of its last payslip is to be given anew.
  void RefuserDateFin() { bulletin_.Effacer(); }
  // The last day worked as it is displayed, now and when the contract was opened.
  std::string DernierJour() const { return dates_.DernierJour(); }
  const std::string& DernierJourInitial() const { return initiale_.DernierJour(); }
  // The planning holds work of the contract: it is not offered for deletion any more.
  void CacherSuppression() { Cmd_SupprimerContrat.SetVisible(false); }

 private:
  static const rules::Verification<OngletFin> Verifications[];
  static const rules::Verification<OngletFin> VerificationsFin[];

  void Afficher_Ong() override { Afficher_Ong5(); }
  bool Verif_Ong() override { return Verif_Ong5(); }
  void Ecrire_Ong() override { Ecrire_Ong5(); }
  void Vider_Ong() override;
  void SelonDroits(bool complet) override;

  void AfficherFin();
  void CalculPreavis();
  void OuvrirSuite();
  void Txt_DatNotifContrat_LostFocus();
  // The end has been left, as a date or empty.
  void FinQuittee();
  void ActiverFin(bool active);

  FinInitiale initiale_{editeur_, Page};
  // The notification from which the notice was computed, or that was shown with its end.
  std::string notificationVue_;
  Suppression suppression_{editeur_};

  // The end and its reason.
  screen::Label Etq_DatNotifContrat{Page, "Etq_DatNotifContrat",
                                    "Date de Notification licenciement / démission"};
  screen::TextField Txt_DatNotifContrat{Page, "Txt_DatNotifContrat", LongueurDate};
  MotifFin motif_{editeur_, Page, sourdine_};
  DatesFin dates_{editeur_, Page, sourdine_};
  BulletinFin bulletin_{Page, sourdine_};
  screen::CheckBox Cac_PrecaLibContrat{Page, "Cac_PrecaLibContrat", "Versement prime de précarité"};
  PreavisFin preavis_{Session(), Page};

  // What is left to say.
  screen::Label Etq_NonVersContrat{
      Page, "Etq_NonVersContrat",
      "Motif en cas de non versement d'indemnités de préavis ou congés payés"};
  screen::TextField Txt_NonVersContrat{Page, "Txt_NonVersContrat", 0};
  screen::Label Etq_ObsFinContrat{Page, "Etq_ObsFinContrat", "Observations"};
  screen::TextField Txt_ObsFinContrat_0{Page, "Txt_ObsFinContrat(0)", 0};
  screen::TextField Txt_ObsFinContrat_1{Page, "Txt_ObsFinContrat(1)", 0};
  RetraiteFin retraite_{Session(), Page, sourdine_};
  screen::Button Cmd_SupprimerContrat{Page, "Cmd_SupprimerContrat", "Supprimer ce contrat"};

  session::Zones zones_;
};

}  // namespace editor
