#pragma once
// The annual follow-up of a modulated contract, in paid hours and in effective working time: a
// frame round two tables of months (frm_contrat_annuel_page.h). Opened by the editor's button:
//
//   Frm_ContratAnnuel(platform, dossier, {convention, entite, employeur}).ShowModal();
//
// Nothing of the dossier changes before the whole is confirmed: the paid hours then stand in its
// ItemContrat, the effective time in its ItemAidantTte, for the editor's save to store. Giving up
// leaves the dossier as it was on opening.
//
// Invariant: while a line is in hand, only that line can be acted on: neither the tabs, nor the
// years, nor the lists, nor the way out.

#include "dialogs/dialogue.h"
#include "dialogs/frm_contrat_annuel_remunere.h"
#include "dialogs/frm_contrat_annuel_tte.h"
#include "session/aide.h"

namespace dialogs {

// What stands in the editor's boxes, confirmed or not.
struct EmployeurSuivi {
  std::string convention;
  std::string entite;
  std::string employeur;
};

class Frm_ContratAnnuel : public Dialogue {
 public:
  Frm_ContratAnnuel(screen::Platform& platform, session::Dossier& dossier,
                    const EmployeurSuivi& employeur);

  screen::Label Etq_CodeAidant{*this, "Etq_CodeAidant"};
  screen::Label Etq_NomAidant{*this, "Etq_NomAidant"};
  // The month that is being paid, which the tables mark.
  screen::Label Etq_PeriodePaie{*this, "Etq_PeriodePaie"};
  screen::Frame Cdr_Periode{*this, "Cdr_Periode"};
  screen::OptionButton Opt_EnCours{Cdr_Periode, "Opt_EnCours", "En - cours"};
  screen::OptionButton Opt_Precedent{Cdr_Periode, "Opt_Precedent", "Précédent"};
  screen::TabStrip Ong_SuivContrat{
      *this, "Ong_SuivContrat", {"En rémunéré", "En Temps de Travail Effectif"}};

  SuiviEnRemunere remunere{*this, Ong_SuivContrat, dossier_};
  SuiviEnTempsEffectif tempsEffectif{*this, Ong_SuivContrat, dossier_};

  screen::Button Cmd_Ajouter{*this, "Cmd_Ajouter", "Ajouter"};
  screen::Button Cmd_Supprimer{*this, "Cmd_Supprimer", "Supprimer"};
  screen::Button Cmd_OK{*this, "Cmd_OK", "OK"};
  screen::Button Cmd_Annuler{*this, "Cmd_Annuler", "Annuler"};
  screen::Button Cmd_Retour{*this, "Cmd_Retour", "Retour"};
  screen::MenuItem Mnu_Aide{*this, "Mnu_Aide", "Aide"};
  screen::MenuItem Mnu_Sommaire{*this, "Mnu_Sommaire", "Aide_KORVALDIS"};

 protected:
  void MouseDown(int bouton) override;

 private:
  void Lier();
  void Remplir_Periode(const EmployeurSuivi& employeur);
  // The second tab: available or not, its year, and which tab is shown first.
  void init();
  std::string MoisCloture(const std::string& etablissement) const;

  PageSuivi& Montree();
  rules::Annee Annee() const;
  // Shows the tab in front for the year chosen.
  void Afficher();
  void Prendre(LigneEnMain enMain);
  bool Confirmer(const char* question);

  void Cmd_Ajouter_Click();
  void Cmd_Supprimer_Click();
  void Cmd_Ok_Click();
  void Cmd_Annuler_Click();
  void Cmd_Retour_Click();
  void Enregistrer();
  void Quitter();

  LigneEnMain enMain_ = LigneEnMain::Aucune;
  bool tteDisponible_ = false;
  session::AideEnLigne aide_;
};

}  // namespace dialogs
