#pragma once
// The comments that are printed on the payslips of a contract: one text a month, in the order of
// the months. Only the months that payroll has open can be given a new one.
//
//   Frm_CommentBull(platform, dossier).ShowModal();

#include <string>
#include <vector>

#include "dialogs/dialogue_lignes.h"
#include "screen/colonnes.h"

namespace dialogs {

class Frm_CommentBull : public DialogueLignes {
 public:
  Frm_CommentBull(screen::Platform& platform, session::Dossier& dossier);

  static constexpr int LongueurLibelle = 100;
  // Rows that the lists show without their bar.
  static constexpr int Visibles = 10;

  screen::Label Etq_Periode{*this, "Etq_Periode", "Période"};
  screen::Label Etq_Libelle{*this, "Etq_Libelle", "Libellé sur bulletin"};
  screen::ListBox Lst_Periode{*this, "Lst_Periode"};
  screen::ListBox Lst_Libelle{*this, "Lst_Libelle"};
  screen::ScrollBar Bdv_Detail{*this, "Bdv_Detail"};
  screen::ComboBox Cbo_Periode{*this, "Cbo_Periode", false};
  screen::TextField Txt_Libelle{*this, "Txt_Libelle", LongueurLibelle};
  screen::Button Cmd_Ajouter{*this, "Cmd_Ajouter", "Ajouter"};
  screen::Button Cmd_Supprimer{*this, "Cmd_Supprimer", "Supprimer"};
  screen::Button Cmd_OK{*this, "Cmd_OK", "OK"};
  screen::Button Cmd_Annuler{*this, "Cmd_Annuler", "Annuler"};
  screen::Button Cmd_Sortir{*this, "Cmd_Sortir", "Retour"};

 protected:
  void Copier_Champs(data::CItem& contrat) const override;
  bool Ranger() override;
  void Liberer() override;

 private:
  struct Commentaire {
    std::string periode;  // yyyymm
    std::string texte;
  };

  static const rules::Verification<Frm_CommentBull> Verifications[3];

  void Remplir_Donnees();
  void Remplir_Periode();
  // At its place: before the first comment of a later month.
  void Inserer(const Commentaire& commentaire);
  void Retirer(int ligne);

  const std::string& Periode() const;
  void Griser(bool saisie);
  void Cmd_Ajouter_Click();
  void Descendre(int ligne);
  void Cmd_Supprimer_Click();

  screen::Colonnes colonnes_{{&Lst_Periode, &Lst_Libelle}, Bdv_Detail, Visibles};
  // The rows of the lists, and the months of Cbo_Periode.
  std::vector<Commentaire> lignes_;
  std::vector<std::string> ouvertes_;
};

}  // namespace dialogs
