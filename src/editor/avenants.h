#pragma once
// The amendment that the second tab shows: its number and effect date, the bar that walks through
// them, and the entry of a new one. While one is entered, nothing else of the editor can be reached
// but this tab; the record in memory takes it when it is confirmed, and is what it was before when
// it is given up.

#include <string>

#include "rules/avenants.h"
#include "screen/field.h"
#include "session/dossier.h"
#include "session/sourdine.h"

namespace editor {

class Frm_ElementsContrat;
class OngletCaracteristiques;

class Avenants {
 public:
  Avenants(Frm_ElementsContrat& editeur, OngletCaracteristiques& onglet, screen::Frame& page,
           session::Sourdine& sourdine);

  // The amendment of the bar, or the last one when the tab is shown anew.
  void Montrer(bool dernier);
  void MontrerNouveau();
  // Number and effect date; gives the value in which the rest of the state stands.
  int Ecrire(data::CItem& contrat, const rules::Debut& debut) const;
  // Leaves the entry of an amendment, without a word: the editor is cleared.
  void Vider();
  void SelonDroits(bool complet);
  // A new contract starts on that displayed day: so does its first state.
  void DebuterLe(const std::string& date);

  // The value that the tab shows, from 1; while an amendment is entered, the one that it copies.
  int Rang() const { return Bdh_Avenant.Value() + 1; }
  // The value that the public-law elements of what is on the screen stand in.
  int RangAvenant() const;
  const std::string& DateEffet() const { return Txt_DatEffetContrat.Text(); }

 private:
  void Cmd_AjoutAvenant_Click();
  void Cmd_OKAvenant_Click();
  void Cmd_AnnulerAvenant_Click();
  void Bdh_Avenant_Change();
  void Txt_DatEffetContrat_LostFocus();
  void RefuserDateEffet(std::string_view texte);

  void AllerA(int rang);
  void EnSaisie(bool saisie);
  void Reprendre();
  void AdapterBoutons();
  void Situer();
  data::CItem& Contrat() const;

  Frm_ElementsContrat& editeur_;
  OngletCaracteristiques& onglet_;
  screen::Frame& page_;
  session::Sourdine& sourdine_;
  bool avenantEnCreation_ = false;
  // The contract before the entry began.
  data::CItem avantSaisie_;
  // The bar's value that stands on the screen, and the effect date that it shows untouched, with
  // its attribute.
  int montre_ = 0;
  std::string effetMontre_;
  std::string effetSurFichier_;

  screen::Label Etq_AvenantContrat{page_, "Etq_AvenantContrat", "Numéro Avenant"};
  screen::TextField Txt_AvenantContrat{page_, "Txt_AvenantContrat", 3};
  screen::UpDown Bdh_Avenant{page_, "Bdh_Avenant"};
  screen::Label Etq_RangAvenant{page_, "Etq_RangAvenant"};
  screen::Label Etq_DatEffetContrat{page_, "Etq_DatEffetContrat", "Date d'effet"};
  screen::TextField Txt_DatEffetContrat{page_, "Txt_DatEffetContrat", 10};
  screen::Button Cmd_AjoutAvenant{page_, "Cmd_AjoutAvenant", "Ajouter"};
  screen::Button Cmd_OKAvenant{page_, "Cmd_OKAvenant", "OK"};
  screen::Button Cmd_AnnulerAvenant{page_, "Cmd_AnnulerAvenant", "Annuler"};
  screen::Button Cmd_ImpAvenant{page_, "Cmd_ImpAvenant", "Imprimer"};
};

}  // namespace editor
