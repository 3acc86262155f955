#pragma once
// Fourth tab, "Droits aux congés": the leave counters of the contract. Payroll feeds them; they may
// be corrected by hand. A counter left empty is 0.

#include "editor/conges_compteurs.h"
#include "editor/conges_liens.h"
#include "editor/onglet.h"

namespace editor {

class OngletConges : public Onglet {
 public:
  explicit OngletConges(Frm_ElementsContrat& editeur);

  void Afficher_Ong4();
  bool Verif_Ong4();
  // A tab that shows what it showed at first leaves the contract as it was, its empty counters
  // included; any other writes every counter.
  void Ecrire_Ong4();
  void SelonConvention(const std::string& convention) override;
  void Entrer() override;
  // The contracts that leave passes to or comes from: on opening, whether the tab is shown or not.
  void AfficherLiens() { liens_.Afficher(Dossier()); }
  void EcrireLiens() { liens_.Ecrire(Dossier()); }
  // What payroll goes on counting takes no correction before a contract's counters are shown.
  void Grise_Conges() { Activer(false); }
  void Affiche_Conges() { Activer(true); }

 private:
  static const rules::Verification<OngletConges> Verifications[];

  void Afficher_Ong() override { Afficher_Ong4(); }
  bool Verif_Ong() override { return Verif_Ong4(); }
  void Ecrire_Ong() override { Ecrire_Ong4(); }
  void Vider_Ong() override;

  std::vector<Compteur> Compteurs();
  std::vector<Compteur> CompteursDelai();
  std::vector<Compteur> Provisions();
  void QuitterAnticipation();
  // The value of a day in the five-day count, from that of the six-day count.
  void Ouvrer(const screen::TextField& ouvrable, screen::TextField& ouvree) const;
  // Captions and the group of the notice-period leave, by agreement and status.
  void SelonDecompte();
  void MettreZero();
  void Activer(bool actifs);
  void Cmd_Conges_Click();
  void Cmd_Detail_Click();

  data::Monnaie Valeur(const screen::TextField& champ) const;
  bool AvecSeparateur(const screen::TextField& champ) const;

  // Leave to use.
  screen::Label Etq_Periode{Page, "Etq_Periode", "Période"};
  screen::Label Etq_PeriodeConges{Page, "Etq_PeriodeConges", ""};
  screen::Frame Cdr_DroitAcquis{Page, "Cdr_DroitAcquis", "Droits à consommer "};
  screen::Label Etq_JOAcquis{Cdr_DroitAcquis, "Etq_JOAcquis", "Jours ouvrables acquis"};
  screen::TextField Txt_CPConsoAcqContrat{Cdr_DroitAcquis, "Txt_CPConsoAcqContrat", 8};
  screen::Label Etq_JORestants{Cdr_DroitAcquis, "Etq_JORestants", "Jours ouvrables restants"};
  screen::TextField Txt_CPRestConsoContrat{Cdr_DroitAcquis, "Txt_CPRestConsoContrat", 8};
  screen::Frame Cdr_CongesPayes{Page, "Cdr_CongesPayes", "Congés pour fractionnement"};
  screen::Label Etq_CFAcquis{Cdr_CongesPayes, "Etq_CFAcquis", "Jours ouvrables acquis"};
  screen::TextField Txt_CFConsoAcqContrat{Cdr_CongesPayes, "Txt_CFConsoAcqContrat", 8};
  screen::Label Etq_CFRestants{Cdr_CongesPayes, "Etq_CFRestants", "Jours ouvrables restants"};
  screen::TextField Txt_CFRestConsoContrat{Cdr_CongesPayes, "Txt_CFRestConsoContrat", 8};
  screen::Frame Cdr_ValeurJour{Page, "Cdr_ValeurJour", "Valeur d'une journée"};
  screen::Label Etq_Conges_0{Cdr_ValeurJour, "Etq_Conges(0)", "Ouvrable"};
  screen::Label Etq_Conges_1{Cdr_ValeurJour, "Etq_Conges(1)", "Ouvrée"};
  screen::Label Etq_Conges_2{Cdr_ValeurJour, "Etq_Conges(2)", "- en Heures"};
  screen::TextField Txt_JrOuvrHContrat{Cdr_ValeurJour, "Txt_JrOuvrHContrat", 8};
  screen::TextField Txt_JrOuvreHContrat{Cdr_ValeurJour, "Txt_JrOuvreHContrat", 8};
  screen::Label Etq_Conges_3{Cdr_ValeurJour, "Etq_Conges(3)", "- en Montant"};
  screen::TextField Txt_JrOuvrMContrat{Cdr_ValeurJour, "Txt_JrOuvrMContrat", 8};
  screen::TextField Txt_JrOuvreMContrat{Cdr_ValeurJour, "Txt_JrOuvreMContrat", 8};

  // Leave being acquired.
  screen::Frame Cdr_DroitEnCours{Page, "Cdr_DroitEnCours", "Droits en cours d'acquisition "};
  screen::Label Etq_CPCoursJ{Cdr_DroitEnCours, "Etq_CPCoursJ", "Jours ouvrables"};
  screen::TextField Txt_CPCoursJContrat{Cdr_DroitEnCours, "Txt_CPCoursJContrat", 8};
  screen::Label Etq_CPCoursHM{Cdr_DroitEnCours, "Etq_CPCoursHM",
                              "Heures                 Montant brut"};
  screen::TextField Txt_CPCoursHContrat{Cdr_DroitEnCours, "Txt_CPCoursHContrat", 8};
  screen::TextField Txt_CPCoursMContrat{Cdr_DroitEnCours, "Txt_CPCoursMContrat", 10};
  screen::Label Etq_JourAnticipation{Page, "Etq_JourAnticipation", "Jours pris par anticipation"};
  screen::TextField Txt_JourAnticipation{Page, "Txt_JourAnticipation", 8};

  // Seniority, notice period, provision.
  screen::Frame Cdr_CongesAnc{Page, "Cdr_CongesAnc", "Congés d'ancienneté "};
  screen::Label Etq_CAAcquis{Cdr_CongesAnc, "Etq_CAAcquis", "Jours ouvrables acquis"};
  screen::TextField Txt_CAncAcqContrat{Cdr_CongesAnc, "Txt_CAncAcqContrat", 8};
  screen::Label Etq_CARestants{Cdr_CongesAnc, "Etq_CARestants", "Jours ouvrables restants"};
  screen::TextField Txt_CAncRestContrat{Cdr_CongesAnc, "Txt_CAncRestContrat", 8};
  screen::Frame Cdr_DelaiPrev{Page, "Cdr_DelaiPrev", "Congé délai prévenance"};
  screen::Label Etq_CDPAcquis{Cdr_DelaiPrev, "Etq_CDPAcquis", "Jours ouvrables acquis"};
  screen::TextField Txt_CDPAcquis{Cdr_DelaiPrev, "Txt_CDPAcquis", 8};
  screen::Label Etq_CDPRestants{Cdr_DelaiPrev, "Etq_CDPRestants", "Jours ouvrables restants"};
  screen::TextField Txt_CDPRestants{Cdr_DelaiPrev, "Txt_CDPRestants", 8};
  screen::Button Cmd_Detail{Cdr_DelaiPrev, "Cmd_Detail", "Détail"};
  screen::Label Etq_ProvisionCP{Page, "Etq_ProvisionCP", "Provision Employeur"};
  screen::TextField Txt_ProvisionCP{Page, "Txt_ProvisionCP", 10};
  screen::Label Etq_ProvisionCours{Page, "Etq_ProvisionCours", "Provision Employeur"};
  screen::TextField Txt_ProvisionCours{Page, "Txt_ProvisionCours", 10};

  LiensConges liens_{Page};
  screen::Button Cmd_Conges{Page, "Cmd_Conges", "Détail décompte"};

  // The contract as it was shown.
  data::CItem montre_;
  // The counters of every contract, those of notice-period leave, and the employer's provisions.
  CompteursConges compteurs_;
  CompteursConges delai_;
  CompteursConges provisions_;
};

}  // namespace editor
