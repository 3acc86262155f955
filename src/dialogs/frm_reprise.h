#pragma once
// Shown while a new contract is saved and the carer had one before with the same employer: the
// previous contract, and the departure dates that are proposed for the pay grid and for seniority.
// The save computes what is shown and acts on the answer:
//
//   Frm_Reprise reprise(platform, dossier);
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
  Frm_Reprise(screen::Platform& platform, session::Dossier& dossier);

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
  screen::Label Etq_DateDeb{Frm_ContratPrec, "Etq_DateDeb", "Date début"};
  screen::TextField Txt_DateDeb{Frm_ContratPrec, "Txt_DateDeb", LongueurDate};
  screen::Label Etq_DateFin{Frm_ContratPrec, "Etq_DateFin", "Date fin"};
  screen::TextField Txt_DateFin{Frm_ContratPrec, "Txt_DateFin", LongueurDate};
  screen::OptionButton Opt_Cdi{Frm_ContratPrec, "Opt_Cdi", "CDI"};
  screen::OptionButton Opt_Cdd{Frm_ContratPrec, "Opt_Cdd", "CDD"};
  screen::Label Etq_DebGrille{Frm_ContratPrec, "Etq_DebGrille", "Date départ calcul de grille"};
  screen::TextField Txt_DebGrille{Frm_ContratPrec, "Txt_DebGrille", LongueurDate};
  screen::Label Etq_JoursSusp{Frm_ContratPrec, "Etq_JoursSusp", "Jours suspension"};
  screen::TextField Txt_JoursSusp{Frm_ContratPrec, "Txt_JoursSusp", LongueurJours};
  screen::Label Etq_DateRef{Frm_ContratPrec, "Etq_DateRef", "Date référence"};
  screen::TextField Txt_DateRef{Frm_ContratPrec, "Txt_DateRef", LongueurDate};
  screen::Label Etq_DebAnc{Frm_ContratPrec, "Etq_DebAnc", "Date départ ancienneté"};
  screen::TextField Txt_DebAnc{Frm_ContratPrec, "Txt_DebAnc", LongueurDate};
  screen::Label Etq_JoursSuspAnc{Frm_ContratPrec, "Etq_JoursSuspAnc", "Jours suspension"};
  screen::TextField Txt_JoursSuspAnc{Frm_ContratPrec, "Txt_JoursSuspAnc", LongueurJours};
  screen::Label Etq_DateRefAnc{Frm_ContratPrec, "Etq_DateRefAnc", "Date référence"};
  screen::TextField Txt_DateRefAnc{Frm_ContratPrec, "Txt_DateRefAnc", LongueurDate};
  screen::CheckBox Cac_CpMois{Frm_ContratPrec, "Cac_CpMois", "Congés payés au mois"};

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
