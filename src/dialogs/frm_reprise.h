#pragma once
// Shown while a new contract is saved and the carer had one before with the same employer: the
// previous contract, and the departure dates that are proposed for the pay grid and for seniority.
// The save computes what is shown and acts on the answer:
//
//   Frm_Reprise reprise(platform, session);
//   reprise.Afficher(donnees);
//   reprise.ShowModal();
//   if (!reprise.RepriseRefusee) use reprise.NouvelleDateGrille ...

#include <string>

#include "dialogs/dialogue.h"

namespace dialogs {

// The texts as they are displayed: dates JJ/MM/AAAA, day counts as numbers, "" for none.
struct DonneesReprise {
  std::string aidant;
  std::string debut;
  std::string fin;
  bool determinee = false;
  std::string departGrille;
  std::string joursGrille;
  std::string referenceGrille;
  std::string departAnciennete;
  std::string joursAnciennete;
  std::string referenceAnciennete;
  bool congesAuMois = false;
  // The proposed dates.
  std::string grilleProposee;
  std::string ancienneteProposee;
  // Without a grid on both contracts nothing is shown nor asked about it.
  bool avecGrille = false;
  // The leave of the previous contract can be taken over.
  bool congesReprenables = false;
};

class Frm_Reprise : public Dialogue {
 public:
  Frm_Reprise(screen::Platform& platform, session::Session& session);

  void Afficher(const DonneesReprise& donnees);

  // Results. The dates are displayed ones, "" for none: those proposed, unless the user has typed
  // others; a proposed date that was erased stays. Nothing is taken over until Cmd_Ok.
  std::string NouvelleDateGrille;
  std::string NouvelleDateAnciennete;
  std::string RepriseCalcul = "N";  // "O" or "N"
  bool RepriseRefusee = true;

  static constexpr int LongueurDate = 10;  // "99/99/9999"
  static constexpr int LongueurJours = 8;

  screen::Label Etq_Aidant{*this, "Etq_Aidant"};
  // The misspelling is what users know.
  screen::Frame Frm_ContratPrec{*this, "Frm_ContratPrec", "Contrat prédécent"};
  screen::Label Etq_DateDeb{*this, "Etq_DateDeb", "Date début", &Frm_ContratPrec};
  screen::TextField Txt_DateDeb{*this, "Txt_DateDeb", LongueurDate, &Frm_ContratPrec};
  screen::Label Etq_DateFin{*this, "Etq_DateFin", "Date fin", &Frm_ContratPrec};
  screen::TextField Txt_DateFin{*this, "Txt_DateFin", LongueurDate, &Frm_ContratPrec};
  screen::OptionButton Opt_Cdi{*this, "Opt_Cdi", "CDI", &Frm_ContratPrec};
  screen::OptionButton Opt_Cdd{*this, "Opt_Cdd", "CDD", &Frm_ContratPrec};
  screen::Label Etq_DebGrille{*this, "Etq_DebGrille", "Date départ calcul de grille",
                              &Frm_ContratPrec};
  screen::TextField Txt_DebGrille{*this, "Txt_DebGrille", LongueurDate, &Frm_ContratPrec};
  screen::Label Etq_JoursSusp{*this, "Etq_JoursSusp", "Jours suspension", &Frm_ContratPrec};
  screen::TextField Txt_JoursSusp{*this, "Txt_JoursSusp", LongueurJours, &Frm_ContratPrec};
  screen::Label Etq_DateRef{*this, "Etq_DateRef", "Date référence", &Frm_ContratPrec};
  screen::TextField Txt_DateRef{*this, "Txt_DateRef", LongueurDate, &Frm_ContratPrec};
  screen::Label Etq_DebAnc{*this, "Etq_DebAnc", "Date départ ancienneté", &Frm_ContratPrec};
  screen::TextField Txt_DebAnc{*this, "Txt_DebAnc", LongueurDate, &Frm_ContratPrec};
  screen::Label Etq_JoursSuspAnc{*this, "Etq_JoursSuspAnc", "Jours suspension", &Frm_ContratPrec};
  screen::TextField Txt_JoursSuspAnc{*this, "Txt_JoursSuspAnc", LongueurJours, &Frm_ContratPrec};
  screen::Label Etq_DateRefAnc{*this, "Etq_DateRefAnc", "Date référence", &Frm_ContratPrec};
  screen::TextField Txt_DateRefAnc{*this, "Txt_DateRefAnc", LongueurDate, &Frm_ContratPrec};
  screen::CheckBox Cac_CpMois{*this, "Cac_CpMois", "Congés payés au mois", &Frm_ContratPrec};

  screen::Label Etq_DebGrilleRecalc{*this, "Etq_DebGrilleRecalc",
                                    "Date départ calcul de grille recalculée"};
  screen::TextField Txt_DebGrilleRecalc{*this, "Txt_DebGrilleRecalc", LongueurDate};
  screen::Label Etq_DebAncRecalc{*this, "Etq_DebAncRecalc", "Date départ ancienneté recalculée"};
  screen::TextField Txt_DebAncRecalc{*this, "Txt_DebAncRecalc", LongueurDate};
  screen::CheckBox Cac_CpPerenne{*this, "Cac_CpPerenne", "Pérenniser les congés"};
  screen::Button Cmd_Ok{*this, "Cmd_Ok", "Ok"};
  screen::Button Cmd_Annuler{*this, "Cmd_Annuler", "Annuler"};

 private:
  void LierDateRecalculee(screen::TextField& champ);
  void DateRecalculee_LostFocus(screen::TextField& champ);
  void Cmd_Ok_Click();
  void Cmd_Annuler_Click();
};

}  // namespace dialogs
