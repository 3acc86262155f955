#pragma once
// What a contract does to the planning, to be read, printed and decided on. For a fixed term the
// planning can be left as it is; any other contract is saved with its incidences, or not at all.
//
//   Frm_AnomaliesAjoutgraph rapport(platform, dossier, {texte, determine, employeur});
//   rapport.ShowModal();
//   if (!rapport.AnomaliesAcceptees) the user stays; else rapport.PlanningAApplier says what to do

#include <string>

#include "dialogs/dialogue.h"
#include "session/aide.h"

namespace dialogs {

class Frm_AnomaliesAjoutgraph : public Dialogue {
 public:
  struct Rapport {
    std::string texte;
    // A fixed term: the user may answer No.
    bool determine = false;
    // Code and label of the private employer, or of the legal entity.
    std::string employeur;
  };
  Frm_AnomaliesAjoutgraph(screen::Platform& platform, session::Dossier& dossier, Rapport rapport);

  bool AnomaliesAcceptees = false;
  bool PlanningAApplier = false;

  screen::TextField Text1{*this, "Text1"};
  screen::Label Label1{*this, "Label1", "Fin du rapport"};
  screen::Label Etq_DefinitionOui{
      *this, "Etq_DefinitionOui",
      "Oui : Les modifications ci-dessus seront appliquées au planning"};
  screen::Label Etq_DefinitionNon{
      *this, "Etq_DefinitionNon",
      "Non : La fin de contrat n'entrainera aucune modification du planning"};
  screen::Button Cmd_Ok{*this, "Cmd_Ok", "Oui"};
  screen::Button Cmd_Non{*this, "Cmd_Non", "Non"};
  screen::Button Cmd_Annuler{*this, "Cmd_Annuler", "Annuler"};
  screen::Button Cmd_Imprimer{*this, "Cmd_Imprimer", "Imprimer"};
  screen::MenuItem Mnu_Aide{*this, "Mnu_Aide", "Aide"};
  screen::MenuItem Mnu_Sommaire{*this, "Mnu_Sommaire", "Aide KORVALDIS"};

 protected:
  void MouseDown(int bouton) override;

 private:
  void Repondre(bool acceptees, bool appliquer);
  void Cmd_Imprimer_Click();

  Rapport rapport_;
  session::AideEnLigne aide_;
};

}  // namespace dialogs
