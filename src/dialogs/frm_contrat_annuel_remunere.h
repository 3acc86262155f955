#pragma once
// First tab of the annual follow-up, "En rémunéré": the hours paid, month by month. Its lines stand
// in the contract; a new one takes only its month and its hours, all else is typed when it is taken
// down again.

#include "dialogs/frm_contrat_annuel_page.h"
#include "session/saisie.h"

namespace dialogs {

class SuiviEnRemunere : public PageSuivi {
 public:
  SuiviEnRemunere(screen::Form& forme, screen::TabStrip& onglets, session::Dossier& dossier);

  // The months that a new line may be of.
  void Remplir_Periode(const std::vector<std::string>& periodes);

  void Activer(LigneEnMain enMain, bool modifiable) override;
  void Commencer() override { Cbo_Periode.SetFocus(); }
  bool Confirmer(LigneEnMain enMain) override;
  void Vider_Texte() override;
  void SupprimerLigne() override;
  void SupprimerTout() override;
  int Nombre() const override { return Suivi().Table().Nombre(); }
  bool Modifiee() const override { return enCours_.Table().Modifiee(); }
  void Enregistrer() override { enCours_.Ecrire(dossier_.ItemContrat); }

  // Four digits and two decimals in every column.
  static constexpr session::FormeNombre Saisie{
      .avant = 4, .apres = 2, .affichage = session::FormeNombre::Serree};
  static constexpr session::FormeNombre SansSigne{.avant = 4, .apres = 2};
  static constexpr session::FormeNombre Signee{.avant = 4, .apres = 2, .signe = true};

  screen::ListBox Lst_Periode{Page, "Lst_Periode"};
  screen::ListBox Lst_HresParContrat{Page, "Lst_HresParContrat"};
  screen::ListBox Lst_HresAbs{Page, "Lst_HresAbs"};
  screen::ListBox Lst_HresForfait{Page, "Lst_HresForfait"};
  screen::ListBox Lst_HresReel{Page, "Lst_HresReel"};
  screen::ListBox Lst_Difference{Page, "Lst_Difference"};
  screen::ListBox Lst_CopieDiff{Page, "Lst_CopieDiff"};
  screen::ListBox Lst_DiffCumul{Page, "Lst_DiffCumul"};
  screen::ListBox Lst_Regul{Page, "Lst_Regul"};
  screen::ListBox Lst_Solde{Page, "Lst_Solde"};
  screen::ScrollBar Bdv_Detail{Page, "Bdv_Detail"};

  screen::ComboBox Cbo_Periode{Page, "Cbo_Periode", false};
  screen::TextField Txt_HresParContrat{Page, "Txt_HresParContrat", Saisie.Largeur()};
  screen::TextField Txt_HresAbs{Page, "Txt_HresAbs", Saisie.Largeur()};
  screen::TextField Txt_HresForfait{Page, "Txt_HresForfait", Signee.Largeur()};
  screen::TextField Txt_HresReel{Page, "Txt_HresReel", Saisie.Largeur()};
  screen::TextField Txt_Difference{Page, "Txt_Difference", Signee.Largeur()};
  screen::TextField Txt_DiffCumul{Page, "Txt_DiffCumul", Signee.Largeur()};
  screen::TextField Txt_Regul{Page, "Txt_Regul", Signee.Largeur()};
  screen::TextField Txt_Solde{Page, "Txt_Solde", Signee.Largeur()};

 private:
  static const rules::Verification<SuiviEnRemunere> Verifications[2];

  void Lier();
  void Montrer() override;
  const rules::SuiviRemunere& Suivi() const;
  void Descendre_Liste(int ligne);
  bool Recherche_Periode();
  // The month chosen for a new line.
  const std::string& Periode() const;
  rules::HeuresMois Saisies(int ligne) const;

  void Txt_HresParContrat_LostFocus();
  void Txt_HresAbs_LostFocus();
  void Txt_HresReel_LostFocus();
  void Txt_Difference_LostFocus();
  // "0" where nothing stands, then the form. False when the field keeps the focus.
  bool Quitter(screen::TextField& champ, const session::FormeNombre& forme);
  void Calculer(screen::TextField& champ, data::Monnaie valeur);

  std::vector<std::string> periodes_;
  rules::SuiviRemunere enCours_;
  rules::SuiviRemunere precedente_;
  screen::Colonnes lignes_{
      {&Lst_Periode, &Lst_HresParContrat, &Lst_HresAbs, &Lst_HresForfait, &Lst_HresReel,
       &Lst_Difference, &Lst_CopieDiff, &Lst_DiffCumul, &Lst_Regul, &Lst_Solde},
      Bdv_Detail,
      RangeesVisibles};
};

}  // namespace dialogs
